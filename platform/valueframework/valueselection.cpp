// SPDX-License-Identifier: MIT
#include <valueframework/valueselection.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

template <typename Predicate>
int findItem(const std::vector<SelectionItem>& items, Predicate matches)
{
    const auto found = std::find_if(items.begin(), items.end(), matches);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

bool isSame(const SelectionItem& a, const SelectionItem& b)
{
    return a.GetKey() == b.GetKey() && a.GetValue() == b.GetValue() && a.GetName() == b.GetName();
}

} // namespace

SelectionItem::SelectionItem(const QString& name, bool disabled, int value)
    : SelectionItem(name, disabled, static_cast<double>(value), value)
{}

SelectionItem::SelectionItem(const QString& name, bool disabled, double value, int key)
    : m_name(name)
    , m_value(value)
    , m_key(key)
    , m_disabled(disabled)
{}

const QString& SelectionItem::GetName() const
{
    return m_name;
}

double SelectionItem::GetValue() const
{
    return m_value;
}

int SelectionItem::GetKey() const
{
    return m_key;
}

bool SelectionItem::IsDisabled() const
{
    return m_disabled;
}

ValueSelection::ValueSelection(const QString& name)
    : ValueBase(name)
{}

ValueSelection::~ValueSelection()
{
    leave();
}

void ValueSelection::AddItem(const SelectionItem& item)
{
    InsertItem(GetCount(), item);
}

void ValueSelection::InsertItem(int index, const SelectionItem& item)
{
    const bool first = m_items.empty();
    const int place = std::clamp(index, 0, GetCount());
    if (first)
        aboutToChange();
    m_items.insert(m_items.begin() + place, item);
    if (first || place <= m_current)
        ++m_current;
    tellItems(ChangeCode::ItemInserted, first);
}

bool ValueSelection::RemoveItem(int index)
{
    if (!isIndex(index))
        return false;
    const bool wasCurrent = index == m_current;
    if (wasCurrent)
        aboutToChange();
    m_items.erase(m_items.begin() + index);
    if (index < m_current || m_current == GetCount())
        --m_current;
    tellItems(ChangeCode::ItemRemoved, wasCurrent);
    return true;
}

void ValueSelection::SetItems(const std::vector<SelectionItem>& items)
{
    std::optional<SelectionItem> former;
    if (isIndex(m_current))
        former = m_items[static_cast<std::size_t>(m_current)];
    int next = items.empty() ? -1 : 0;
    if (former.has_value()) {
        const int key = former->GetKey();
        next = std::max(next, findItem(items, [key](const auto& i) { return i.GetKey() == key; }));
    }
    const bool hasNext = next >= 0;
    const bool currentChanges =
        hasNext != former.has_value() ||
        (hasNext && !isSame(items[static_cast<std::size_t>(next)], *former));
    if (currentChanges)
        aboutToChange();
    m_items = items;
    m_current = next;
    tellItems(ChangeCode::Range, currentChanges);
}

int ValueSelection::GetCount() const
{
    return static_cast<int>(m_items.size());
}

const SelectionItem* ValueSelection::GetItem(int index) const
{
    return isIndex(index) ? &m_items[static_cast<std::size_t>(index)] : nullptr;
}

int ValueSelection::FindByValue(double value) const
{
    return findItem(m_items, [value](const auto& item) { return item.GetValue() == value; });
}

int ValueSelection::FindByKey(int key) const
{
    return findItem(m_items, [key](const auto& item) { return item.GetKey() == key; });
}

int ValueSelection::FindByName(const QString& name) const
{
    return findItem(m_items, [&name](const auto& item) { return item.GetName() == name; });
}

int ValueSelection::GetCurrentIndex() const
{
    return m_current;
}

const SelectionItem* ValueSelection::GetCurrentItem() const
{
    return GetItem(m_current);
}

double ValueSelection::GetValue() const
{
    const SelectionItem* current = GetCurrentItem();
    return current != nullptr ? current->GetValue() : 0.0;
}

bool ValueSelection::SetCurrentIndex(int index)
{
    if (!isIndex(index))
        return false;
    if (index == m_current)
        return true;
    aboutToChange();
    m_current = index;
    tell(ChangeCode::CurrentValue);
    return true;
}

bool ValueSelection::SetValue(double value)
{
    const SelectionItem* current = GetCurrentItem();
    if (current != nullptr && current->GetValue() == value)
        return true;
    return SetCurrentIndex(FindByValue(value));
}

bool ValueSelection::SetKey(int key)
{
    const SelectionItem* current = GetCurrentItem();
    if (current != nullptr && current->GetKey() == key)
        return true;
    return SetCurrentIndex(FindByKey(key));
}

QVariant ValueSelection::GetVariant() const
{
    const SelectionItem* current = GetCurrentItem();
    return current != nullptr ? QVariant(current->GetKey()) : QVariant();
}

bool ValueSelection::SetVariant(const QVariant& value)
{
    QVariant converted = value;
    if (!convertVariant(converted, QMetaType::fromType<double>()))
        return false;
    const double key = converted.toDouble();
    constexpr double lowest = std::numeric_limits<int>::lowest();
    constexpr double highest = std::numeric_limits<int>::max();
    if (!(key >= lowest && key <= highest) || key != std::trunc(key))
        return false;
    return SetKey(static_cast<int>(key));
}

bool ValueSelection::isIndex(int index) const
{
    return index >= 0 && index < GetCount();
}

void ValueSelection::tellItems(TChangeCode code, bool currentChanged)
{
    if (tell(code) && currentChanged)
        tell(ChangeCode::CurrentValue);
}
