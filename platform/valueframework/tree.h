// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <QHash>
#include <QString>
#include <QStringList>

class ValueBase;

/// The value tree: every value that takes part is found by its path. Paths are names parted by '/'.
class VALUEFRAMEWORK_EXPORT Tree
{
public:
    static Tree& Instance();

    /// Puts the value at `parentPath` + '/' + its name. False when another value stands there or the
    /// name is empty. The value is not owned and leaves the tree when it dies. A value that is
    /// already in the tree moves.
    bool Add(const QString& parentPath, ValueBase* value);
    void Remove(ValueBase* value);
    /// Null when nothing stands there.
    ValueBase* Find(const QString& path) const;
    /// The paths at and below `basePath` (all when it is empty), sorted.
    QStringList GetPaths(const QString& basePath = {}) const;

private:
    Tree() = default;

    QHash<QString, ValueBase*> m_values;
};
