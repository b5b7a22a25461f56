// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// The slots and separators of a MaskedLineEdit, and what typing and pasting do to a text that has
/// them; see there for the pattern.
class InputMask
{
public:
    static constexpr QChar blank = u'_'; ///< In a slot without character.

    /// Without slots.
    InputMask() = default;
    explicit InputMask(const QString& pattern);

    bool isEmpty() const { return m_places.empty(); }
    /// Whether the text has the separators, and the slots have blanks or what they take.
    bool fits(const QString& text) const;
    /// Blanks in all slots.
    QString emptyText() const;

    struct State
    {
        QString text; ///< Fits the mask.
        qsizetype cursor;
    };
    /// The character goes into the slot at the cursor or behind it, or leads over the next
    /// separator that it is. The same state for any other character.
    State typed(const State& state, QChar c) const;
    /// The letters and digits of the piece go into the slots from the cursor on: group by group
    /// where there are as many groups as fields, with zeros around short numbers; else one by one,
    /// if there is only one group or the mask becomes full. Nothing when they do not fit.
    std::optional<State> pasted(const State& state, const QString& piece) const;
    /// The slots from `begin` to `end` become blank.
    QString erased(const QString& text, qsizetype begin, qsizetype end) const;

    /// The first slot at the place or behind it; the size of the mask without one.
    qsizetype slotFrom(qsizetype place) const;
    /// The last slot before the place; -1 without one.
    qsizetype slotBefore(qsizetype place) const;

private:
    struct Place
    {
        QString choices; ///< Empty for a separator.
        QChar separator;
    };
    struct Field
    {
        qsizetype begin;
        qsizetype end;
    };

    qsizetype size() const { return static_cast<qsizetype>(m_places.size()); }
    const Place& at(qsizetype i) const { return m_places[static_cast<std::size_t>(i)]; }
    bool isSlot(qsizetype i) const { return !at(i).choices.isEmpty(); }
    /// As the slot shows it; null when it does not take it.
    QChar taken(qsizetype slot, QChar c) const;
    std::vector<Field> fieldsFrom(qsizetype place) const;
    bool isDecimals(Field field) const;
    bool fill(QString& text, Field field, const QString& group) const;

    std::optional<State> pastedByGroups(const State& state, const QStringList& groups) const;

    std::vector<Place> m_places;
};
