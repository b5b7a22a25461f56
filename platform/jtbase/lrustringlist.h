// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QStringList>

/// A bounded list of distinct strings, most recently used first.
///
/// Strings compare case-sensitively. An empty string is never stored. An index out of range is
/// ignored, or gives an empty string.
class JTBASE_EXPORT LruStringList
{
public:
    /// A limit below 1 keeps the list empty for ever.
    explicit LruStringList(int limit);

    /// The largest number of strings, and what there is, most recent first.
    int GetLimit() const;
    int GetCount() const;
    QString At(int index) const;
    const QStringList& GetStrings() const;

    /// Adds the string behind the others, as when a stored list is read; ignored when it is already
    /// there or the list is full. Returns whether it was added.
    bool Append(const QString& text);
    /// Makes the string the first one, adding it if needed; what exceeds the limit drops off the
    /// end. Returns the string.
    QString Select(const QString& text);
    /// Moves the entry to the front and returns it.
    QString Select(int index);
    bool Erase(const QString& text);
    bool Erase(int index);
    void Clear();

private:
    int m_limit;
    QStringList m_strings;
};
