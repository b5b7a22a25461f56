// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valuebase.h>

#include <vector>

/// One choice of a ValueSelection.
class VALUEFRAMEWORK_EXPORT SelectionItem
{
public:
    /// An item with the number as its value and its key. A disabled item is shown, but the user
    /// cannot choose it.
    SelectionItem(const QString& name, bool disabled, int value);
    SelectionItem(const QString& name, bool disabled, double value, int key);

    /// What the item was made with.
    const QString& GetName() const;
    double GetValue() const;
    int GetKey() const;
    bool IsDisabled() const;

private:
    QString m_name;
    double m_value;
    int m_key;
    bool m_disabled;
};

/// A list of items, one of which is current.
///
/// An empty selection has the current index -1; otherwise one item is always current. Setting to an
/// index, value, key or name that no item has changes nothing and returns false.
class VALUEFRAMEWORK_EXPORT ValueSelection : public ValueBase
{
public:
    /// Without items.
    explicit ValueSelection(const QString& name);
    ~ValueSelection() override;

    /// Appends the item; the first one becomes current.
    void AddItem(const SelectionItem& item);
    /// An index out of range counts as the nearest one; the current item stays current.
    void InsertItem(int index, const SelectionItem& item);
    /// Removing the current item makes its successor current, or the new last one.
    /// False for an index out of range.
    bool RemoveItem(int index);
    /// Replaces all items; the item with the current one's key stays current, else the first. Tells
    /// ChangeCode::Range, then ChangeCode::CurrentValue when the current item is not the same.
    void SetItems(const std::vector<SelectionItem>& items);

    /// The number of items.
    int GetCount() const;
    /// Null out of range. Valid until the items change.
    const SelectionItem* GetItem(int index) const;
    /// The index of the first such item, or -1. Values and names are compared exactly.
    int FindByValue(double value) const;
    int FindByKey(int key) const;
    int FindByName(const QString& name) const;

    /// -1 and null without items.
    int GetCurrentIndex() const;
    const SelectionItem* GetCurrentItem() const;
    /// The current item's value, or 0 without one.
    double GetValue() const;

    /// Setting what the current item has already changes nothing and returns true, also when an
    /// earlier item has it too.
    bool SetCurrentIndex(int index);
    bool SetValue(double value);
    bool SetKey(int key);

    /// The current item's key, invalid without one. SetVariant() takes a key.
    QVariant GetVariant() const override;
    bool SetVariant(const QVariant& value) override;

private:
    bool isIndex(int index) const;
    void tellItems(TChangeCode code, bool currentChanged);

    std::vector<SelectionItem> m_items;
    int m_current = -1;
};
