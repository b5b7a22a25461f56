// SPDX-License-Identifier: MIT
#include <guibase/colors/colordefinitionset.h>

#include <algorithm>
#include <utility>

namespace {

constexpr int idsPerSet = 1000;

template <typename Predicate>
ColorDefinition* firstOf(std::deque<ColorDefinition>& entries, Predicate predicate)
{
    const auto found = std::find_if(entries.begin(), entries.end(), predicate);
    return found == entries.end() ? nullptr : &*found;
}

} // namespace

ColorDefinitionSet::ColorDefinitionSet(int count)
    : m_entries(static_cast<std::size_t>(std::max(count, 0)))
{}

void ColorDefinitionSet::Add(const QColor& color, qint32 id, int alpha)
{
    store(ColorDefinition(color, id, alpha));
}

void ColorDefinitionSet::Add(const QString& text, qint32 id, int alpha)
{
    store(ColorDefinition(text, id, alpha));
}

void ColorDefinitionSet::store(ColorDefinition definition)
{
    if (definition.GetId() < 0)
        return;
    const auto position = static_cast<std::size_t>(definition.GetId() % idsPerSet);
    if (position >= m_entries.size())
        m_entries.resize(position + 1);
    m_entries[position] = std::move(definition);
}

ColorDefinition* ColorDefinitionSet::At(int position)
{
    return const_cast<ColorDefinition*>(std::as_const(*this).At(position));
}

const ColorDefinition* ColorDefinitionSet::At(int position) const
{
    if (position < 0 || position >= GetCount())
        return nullptr;
    return &m_entries[static_cast<std::size_t>(position)];
}

ColorDefinition* ColorDefinitionSet::Find(const QString& colorString)
{
    return firstOf(m_entries, [&](const ColorDefinition& entry) {
        return entry.GetColorString() == colorString;
    });
}

ColorDefinition* ColorDefinitionSet::Find(const QColor& color)
{
    if (!color.isValid())
        return nullptr;
    return firstOf(m_entries, [wanted = color.rgba()](const ColorDefinition& entry) {
        return entry.GetColor().isValid() && entry.GetColor().rgba() == wanted;
    });
}
