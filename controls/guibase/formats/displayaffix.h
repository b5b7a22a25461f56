// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QRegularExpression>
#include <QString>

#include <optional>

/// The text that stands before or after a number: how it is written, and by which pattern it is
/// recognised when it is read.
///
/// The pattern follows the text, taken literally and case-sensitively, until a pattern of its own
/// is set. An invalid or empty pattern recognises nothing.
class GUIBASE_EXPORT DisplayAffix
{
public:
    /// A place in a text; the length may be 0, the start is -1 when there is no match.
    struct Match
    {
        /// Positions count UTF-16 units, as QString does.
        qsizetype start = -1;
        qsizetype length = 0;
        explicit operator bool() const { return start >= 0; }
    };

    /// Sets the text, and drops a pattern of its own.
    void setText(const QString& text);
    const QString& text() const { return m_text; }
    /// Replaces the recognition of the text; an empty pattern recognises nothing.
    void setPattern(const QRegularExpression& pattern);
    QRegularExpression pattern() const;

    /// The match that begins exactly at `offset`; "^" stands for that place.
    Match matchAt(const QString& text, qsizetype offset) const;
    /// The match that ends exactly at `end`, found by searching backwards: the one that starts last
    /// counts. Patterns of its own are searched in the last `longestSuffix` characters only, so
    /// that texts of any length cost little.
    Match matchEndingAt(const QString& text, qsizetype end) const;

    /// See matchEndingAt(); in UTF-16 units.
    static constexpr qsizetype longestSuffix = 256;

private:
    bool canMatch() const { return m_pattern->isValid() && !m_pattern->pattern().isEmpty(); }

    QString m_text;
    std::optional<QRegularExpression> m_pattern; // Nothing: the text is its own pattern.
};
