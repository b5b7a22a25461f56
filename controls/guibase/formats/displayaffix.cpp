// SPDX-License-Identifier: MIT
#include "displayaffix.h"

#include <algorithm>

void DisplayAffix::setText(const QString& text)
{
    m_text = text;
    m_pattern.reset();
}

void DisplayAffix::setPattern(const QRegularExpression& pattern)
{
    m_pattern = pattern;
}

QRegularExpression DisplayAffix::pattern() const
{
    return m_pattern ? *m_pattern
                     : QRegularExpression(QRegularExpression::escape(m_text.trimmed()));
}

DisplayAffix::Match DisplayAffix::matchAt(const QString& text, qsizetype offset) const
{
    if (!m_pattern) {
        const QStringView own = QStringView(m_text).trimmed();
        if (own.isEmpty() || !QStringView(text).sliced(offset).startsWith(own))
            return {};
        return {offset, own.size()};
    }
    if (!canMatch())
        return {};
    // Cut off, since "^" means the start of the text and not the offset.
    const QRegularExpressionMatch match =
        m_pattern->match(text.mid(offset), 0, QRegularExpression::NormalMatch,
                         QRegularExpression::AnchorAtOffsetMatchOption);
    return match.hasMatch() ? Match{offset, match.capturedLength()} : Match{};
}

DisplayAffix::Match DisplayAffix::matchEndingAt(const QString& text, qsizetype end) const
{
    if (!m_pattern) {
        const QStringView own = QStringView(m_text).trimmed();
        if (own.isEmpty() || !QStringView(text).first(end).endsWith(own))
            return {};
        return {end - own.size(), own.size()};
    }
    if (!canMatch())
        return {};
    const qsizetype skipped = std::max<qsizetype>(0, end - longestSuffix);
    const QString tail = text.mid(skipped, end - skipped);
    for (qsizetype start = tail.size() - 1; start >= 0; --start) {
        if (tail[start].isLowSurrogate() && start > 0 && tail[start - 1].isHighSurrogate())
            continue;
        const QRegularExpressionMatch match =
            m_pattern->match(tail, start, QRegularExpression::NormalMatch,
                             QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.isValid()) // Broken Unicode, or a pattern that takes too long.
            return {};
        if (match.hasMatch() && match.capturedEnd() == tail.size())
            return {skipped + start, match.capturedLength()};
    }
    return {};
}
