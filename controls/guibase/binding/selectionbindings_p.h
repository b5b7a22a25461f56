// SPDX-License-Identifier: MIT
#pragma once

#include "create.h"

#include <QComboBox>
#include <QLabel>

namespace ValueWidgetBinding::Internal {

class ValueSelectionQComboBoxBinding : public ValueWidgetBindingBase<ValueSelection, QComboBox>
{
    Q_OBJECT
    Q_PROPERTY(int index READ index WRITE setIndex)
public:
    ValueSelectionQComboBoxBinding(ValueSelection& value, QComboBox& box,
                                   const ItemToShown<QComboBox>& toShown,
                                   const ShownToItem<QComboBox>& toItem, QObject* parent);

    using ValueWidgetBindingBase::Init;

    /// Of the box.
    int index() const;
    /// As if the user had chosen it.
    void setIndex(int index);

public Q_SLOTS:
    void slCurrentIndexChanged(int index);

protected:
    void UpdateWidget(TChangeCode code) override;
    void afterWrite() override { showCurrent(); }

private:
    void showCurrent();
    void refuse(const QString& reason);
    void showItems();
    void showDisabledItems();
    void take(int index, int key);
    int chosenIndex(int index) const;

    ItemToShown<QComboBox> m_toShown;
    ShownToItem<QComboBox> m_toItem;
};

class ValueSelectionQLabelBinding : public ValueWidgetBindingBase<ValueSelection, QLabel>
{
    Q_OBJECT
public:
    ValueSelectionQLabelBinding(ValueSelection& value, QLabel& label,
                                const ItemToShown<QLabel>& toShown,
                                const ShownToItem<QLabel>& toItem, QObject* parent);

    using ValueWidgetBindingBase::Init;

protected:
    void UpdateWidget(TChangeCode code) override;
    void afterWrite() override {}

private:
    ItemToShown<QLabel> m_toShown;
};

} // namespace ValueWidgetBinding::Internal
