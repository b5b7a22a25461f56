// SPDX-License-Identifier: MIT
#include "inputmask_p.h"

#include <algorithm>

namespace {

const QString digits = QStringLiteral("0123456789");
const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");

/// "A-DX" stands for "ABCDX", "D-A" for "ABCD".
QString withRanges(const QString& list)
{
    QString all;
    for (qsizetype i = 0; i < list.size(); ++i) {
        const bool isRange = i + 2 < list.size() && list[i + 1] == u'-';
        const auto [first, last] = std::minmax({list[i], list[isRange ? i + 2 : i]});
        for (int c = first.unicode(); c <= last.unicode(); ++c)
            all += QChar(c);
        i += isRange ? 2 : 0;
    }
    return all;
}

/// The letters and digits between separators; also parted where letters and digits meet.
QStringList groupsOf(const QString& piece, bool areKindsParted)
{
    QStringList groups(QString{});
    for (const QChar c : piece) {
        const QString& last = groups.last();
        const bool isOtherKind = !last.isEmpty() && last.back().isDigit() != c.isDigit();
        if (!last.isEmpty() && (!c.isLetterOrNumber() || (areKindsParted && isOtherKind)))
            groups << QString();
        if (c.isLetterOrNumber())
            groups.last() += c;
    }
    groups.removeAll(QString());
    return groups;
}

} // namespace

InputMask::InputMask(const QString& pattern)
{
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        const qsizetype end = c == u'[' ? pattern.indexOf(u']', i) : -1;
        if (end > i + 1) {
            m_places.push_back({withRanges(pattern.mid(i + 1, end - i - 1)), {}});
            i = end;
        } else if (c == u'9') {
            m_places.push_back({digits, {}});
        } else if (c == u'A') {
            m_places.push_back({letters, {}});
        } else if (c == u'X') {
            m_places.push_back({letters + digits, {}});
        } else {
            i += c == u'\\' && i + 1 < pattern.size() ? 1 : 0;
            m_places.push_back({{}, pattern[i]});
        }
    }
    if (slotFrom(0) == size())
        m_places.clear();
}

QChar InputMask::taken(qsizetype slot, QChar c) const
{
    const QString& choices = at(slot).choices;
    for (const QChar candidate : {c, c.toUpper(), c.toLower()}) {
        if (choices.contains(candidate))
            return candidate;
    }
    return {};
}

bool InputMask::fits(const QString& text) const
{
    if (isEmpty() || text.size() != size())
        return false;
    for (qsizetype i = 0; i < size(); ++i) {
        const bool isRight = isSlot(i) ? text[i] == blank || at(i).choices.contains(text[i])
                                       : text[i] == at(i).separator;
        if (!isRight)
            return false;
    }
    return true;
}

QString InputMask::emptyText() const
{
    QString text;
    for (qsizetype i = 0; i < size(); ++i)
        text += isSlot(i) ? blank : at(i).separator;
    return text;
}

qsizetype InputMask::slotFrom(qsizetype place) const
{
    while (place < size() && !isSlot(place))
        ++place;
    return place;
}

qsizetype InputMask::slotBefore(qsizetype place) const
{
    do
        --place;
    while (place >= 0 && !isSlot(place));
    return place;
}

InputMask::State InputMask::typed(const State& state, QChar c) const
{
    const qsizetype slot = slotFrom(state.cursor);
    if (slot < size()) {
        if (const QChar shown = taken(slot, c); !shown.isNull()) {
            State next{state.text, slotFrom(slot + 1)};
            next.text[slot] = shown;
            return next;
        }
    }
    // The one that the cursor has just passed by itself leads nowhere.
    for (qsizetype i = slotBefore(state.cursor) + 1; i < state.cursor; ++i) {
        if (at(i).separator == c)
            return state;
    }
    for (qsizetype i = state.cursor; i < size(); ++i) {
        if (!isSlot(i) && at(i).separator == c)
            return {state.text, slotFrom(i)};
    }
    return state;
}

QString InputMask::erased(const QString& text, qsizetype begin, qsizetype end) const
{
    QString result = text;
    for (qsizetype i = begin; i < end; ++i) {
        if (isSlot(i))
            result[i] = blank;
    }
    return result;
}

std::vector<InputMask::Field> InputMask::fieldsFrom(qsizetype place) const
{
    std::vector<Field> fields;
    for (qsizetype i = slotFrom(place); i < size(); i = slotFrom(i)) {
        const qsizetype begin = i;
        while (i < size() && isSlot(i))
            ++i;
        fields.push_back({begin, i});
    }
    return fields;
}

/// Whether the field follows the only point of a number: "99.99", but not "99.99.99".
bool InputMask::isDecimals(Field field) const
{
    const auto isPoint = [this](qsizetype place) {
        return place >= 0 && place < size() && !isSlot(place) &&
               (at(place).separator == u'.' || at(place).separator == u',');
    };
    qsizetype whole = field.begin - 2; // the last slot before the point
    while (whole >= 0 && isSlot(whole))
        --whole;
    return isPoint(field.begin - 1) && !isPoint(field.end) && !isPoint(whole);
}

/// A short number gets zeros before it or, as decimals, behind it.
bool InputMask::fill(QString& text, Field field, const QString& group) const
{
    const qsizetype missing = field.end - field.begin - group.size();
    const bool isNumber = at(field.begin).choices == digits;
    if (missing < 0 || (missing > 0 && !isNumber))
        return false;
    const QString zeros(missing, u'0');
    const QString whole = isDecimals(field) ? group + zeros : zeros + group;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        const QChar shown = taken(field.begin + i, whole[i]);
        if (shown.isNull())
            return false;
        text[field.begin + i] = shown;
    }
    return true;
}

std::optional<InputMask::State> InputMask::pastedByGroups(const State& state,
                                                          const QStringList& groups) const
{
    const std::vector<Field> fields = fieldsFrom(state.cursor);
    if (groups.size() < 2 || groups.size() != static_cast<qsizetype>(fields.size()))
        return std::nullopt;
    State filled = state;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        if (!fill(filled.text, fields[static_cast<std::size_t>(i)], groups[i]))
            return std::nullopt;
    }
    filled.cursor = fields.back().end;
    return filled;
}

std::optional<InputMask::State> InputMask::pasted(const State& state, const QString& piece) const
{
    const QStringList groups = groupsOf(piece, false);
    for (const QStringList& parted : {groups, groupsOf(piece, true)}) {
        if (const auto filled = pastedByGroups(state, parted))
            return filled;
    }
    State filled = state;
    for (const QChar c : groups.join(QString())) {
        const qsizetype slot = slotFrom(filled.cursor);
        const QChar shown = slot < size() ? taken(slot, c) : QChar();
        if (shown.isNull())
            return std::nullopt;
        filled.text[slot] = shown;
        filled.cursor = slotFrom(slot + 1);
    }
    // Separators in other places would give the characters another meaning.
    return groups.size() < 2 || filled.cursor >= size() ? std::optional(filled) : std::nullopt;
}
