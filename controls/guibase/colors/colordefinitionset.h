// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/colordefinition.h>
#include <guibase/guibase_export.h>

#include <deque>

/// A growable array of colour definitions; the position of an entry follows from its id.
///
/// Entries never move and never go away while the set lives: growing and overwriting leave every
/// pointer that At() or Find() gave valid, and an overwritten entry changes under such a pointer.
class GUIBASE_EXPORT ColorDefinitionSet
{
public:
    /// `count` default-made entries; a negative count gives none.
    explicit ColorDefinitionSet(int count = 0);

    /// Stores the definition at position `id` modulo 1000, over what stood there, filling a gap
    /// before it with default-made entries. A negative id is ignored. `alpha` from 0 to 255.
    void Add(const QColor& color, qint32 id, int alpha = 255);
    void Add(const QString& text, qint32 id, int alpha = 255);

    /// The number of entries.
    int GetCount() const { return static_cast<int>(m_entries.size()); }

    /// Null outside the array.
    ColorDefinition* At(int position);
    const ColorDefinition* At(int position) const;

    /// The first entry with this colour string, exactly; null without one.
    ColorDefinition* Find(const QString& colorString);
    /// The first entry that looks like `color`, compared as red, green, blue and alpha of 8 bits
    /// whatever model the colour is given in; null without one and for an invalid colour.
    ColorDefinition* Find(const QColor& color);

private:
    void store(ColorDefinition definition);

    std::deque<ColorDefinition> m_entries;
};
