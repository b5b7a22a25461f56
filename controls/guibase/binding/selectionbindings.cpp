// SPDX-License-Identifier: MIT
#include "selectionbindings_p.h"

#include <QPointer>
#include <QStandardItemModel>
#include <QStringList>

namespace ValueWidgetBinding::Internal {

namespace {

constexpr int mostAttempts = 5;

template <typename WidgetClass>
QString shownText(const SelectionItem& item, WidgetClass& widget,
                  const ItemToShown<WidgetClass>& toShown)
{
    return toShown ? toShown(item, widget).toString() : item.GetName();
}

bool isOfItems(TChangeCode code)
{
    return code == ChangeCode::Range || code == ChangeCode::Items ||
           code == ChangeCode::ItemInserted || code == ChangeCode::ItemRemoved;
}

} // namespace

ValueSelectionQComboBoxBinding::ValueSelectionQComboBoxBinding(
    ValueSelection& value, QComboBox& box, const ItemToShown<QComboBox>& toShown,
    const ShownToItem<QComboBox>& toItem, QObject* parent)
    : ValueWidgetBindingBase(value, box, parent)
    , m_toShown(toShown)
    , m_toItem(toItem)
{
    connect(&box, &QComboBox::currentIndexChanged, this,
            &ValueSelectionQComboBoxBinding::slCurrentIndexChanged);
}

int ValueSelectionQComboBoxBinding::index() const
{
    return isWidgetAlive() ? widget().currentIndex() : -1;
}

void ValueSelectionQComboBoxBinding::setIndex(int index)
{
    if (isWidgetAlive())
        widget().setCurrentIndex(index);
}

void ValueSelectionQComboBoxBinding::UpdateWidget(TChangeCode code)
{
    if (isOfItems(code))
        showItems();
    else if (code == ChangeCode::CurrentValue)
        showCurrent();
}

void ValueSelectionQComboBoxBinding::showCurrent()
{
    if (isMarked())
        setUnshownValue(QString());
    if (widget().currentIndex() == value()->GetCurrentIndex())
        return;
    const WidgetUpdateTransaction transaction = openWidgetUpdateTransaction();
    // What hears of it may choose something else meanwhile; the value wins.
    for (int i = 0; i < mostAttempts && transaction.isBindingAlive() && isWidgetAlive() &&
                    value() != nullptr && widget().currentIndex() != value()->GetCurrentIndex();
         ++i)
        widget().setCurrentIndex(value()->GetCurrentIndex());
}

void ValueSelectionQComboBoxBinding::refuse(const QString& reason)
{
    const QPointer<QObject> guard(this);
    showCurrent();
    if (guard && isWidgetAlive() && !reason.isEmpty())
        showRefusal(reason);
}

void ValueSelectionQComboBoxBinding::showItems()
{
    QStringList texts;
    for (int i = 0; i < value()->GetCount(); ++i)
        texts << shownText(*value()->GetItem(i), widget(), m_toShown);
    const WidgetUpdateTransaction transaction = openWidgetUpdateTransaction();
    const auto isWhole = [&] {
        return transaction.isBindingAlive() && isWidgetAlive() && value() != nullptr;
    };
    widget().hidePopup(); // An open list would show items that are no more.
    widget().clear();
    if (!isWhole())
        return;
    widget().addItems(texts);
    if (!isWhole())
        return;
    showDisabledItems();
    showCurrent();
}

void ValueSelectionQComboBoxBinding::showDisabledItems()
{
    auto* model = qobject_cast<QStandardItemModel*>(widget().model());
    for (int i = 0; model != nullptr && i < value()->GetCount(); ++i) {
        if (QStandardItem* item = model->item(i);
            item != nullptr && value()->GetItem(i)->IsDisabled())
            item->setEnabled(false);
    }
}

int ValueSelectionQComboBoxBinding::chosenIndex(int index) const
{
    if (!m_toItem)
        return index;
    const SelectionItem item = m_toItem(widget().itemText(index), widget());
    const SelectionItem* atIndex = value()->GetItem(index);
    const bool isAtIndex = atIndex != nullptr && atIndex->GetKey() == item.GetKey();
    return isAtIndex ? index : value()->FindByKey(item.GetKey());
}

void ValueSelectionQComboBoxBinding::slCurrentIndexChanged(int index)
{
    if (isUpdatingWidget() || value() == nullptr || index != widget().currentIndex())
        return;
    const int chosen = index < 0 ? -1 : chosenIndex(index);
    const SelectionItem* item = value()->GetItem(chosen);
    const bool isForUser = item != nullptr && !item->IsDisabled();
    const int key = item != nullptr ? item->GetKey() : 0;
    const QPointer<QObject> guard(this); // The guard of the value may delete all of it.
    const QString refusal = isForUser ? refusalOf(item->GetValue()) : QString();
    if (!guard || value() == nullptr)
        return;
    if (!isForUser || !refusal.isEmpty()) {
        refuse(refusal);
        return;
    }
    scheduleUpdate([this, chosen, key] { take(chosen, key); });
}

void ValueSelectionQComboBoxBinding::take(int index, int key)
{
    // The items may have moved during the delay, and what the guard looks at may have changed.
    const SelectionItem* item = value()->GetItem(index);
    if (item == nullptr || item->GetKey() != key)
        index = value()->FindByKey(key);
    item = value()->GetItem(index);
    if (item == nullptr)
        return;
    const QPointer<QObject> guard(this);
    const QString refusal = refusalOf(item->GetValue());
    if (!guard || value() == nullptr)
        return;
    if (refusal.isEmpty())
        value()->SetCurrentIndex(index);
    else
        refuse(refusal);
}

ValueSelectionQLabelBinding::ValueSelectionQLabelBinding(ValueSelection& value, QLabel& label,
                                                         const ItemToShown<QLabel>& toShown,
                                                         const ShownToItem<QLabel>& /*toItem*/,
                                                         QObject* parent)
    : ValueWidgetBindingBase(value, label, parent)
    , m_toShown(toShown)
{}

void ValueSelectionQLabelBinding::UpdateWidget(TChangeCode code)
{
    if (code != ChangeCode::CurrentValue && !isOfItems(code))
        return;
    const SelectionItem* item = value()->GetCurrentItem();
    const QString text = item != nullptr ? shownText(*item, widget(), m_toShown) : QString();
    if (text == widget().text())
        return;
    const WidgetUpdateTransaction transaction = openWidgetUpdateTransaction();
    widget().setText(text);
}

} // namespace ValueWidgetBinding::Internal
