// SPDX-License-Identifier: MIT
#include "create.h"

#include "bindingrows_p.h"
#include "createbyclass_p.h"
#include "namedbindings_p.h"
#include "selectionbindings_p.h"

#include <guibase/inputs/controllers/controllerdial.h>
#include <guibase/inputs/controllers/controllerslider.h>
#include <guibase/inputs/coordinates/coordinateedit.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>

#include <QDial>
#include <QPointer>
#include <QScrollBar>

#include <optional>
#include <utility>

namespace ValueWidgetBinding::Internal {

namespace {

/// Null when the binding does not survive its first showing.
template <typename Binding, typename... Arguments>
Binding* makeBinding(QWidget& widget, QObject* parent, Arguments&&... arguments)
{
    const QPointer<Binding> binding =
        new Binding(std::forward<Arguments>(arguments)..., parent != nullptr ? parent : &widget);
    binding->Init();
    return binding;
}

using Created = std::optional<ValueWidgetBinding*>;

template <typename V, typename W>
Created createIfOfClass(ValueBase& value, QWidget& widget)
{
    auto* kind = dynamic_cast<V*>(&value);
    auto* box = kind != nullptr ? qobject_cast<W*>(&widget) : nullptr;
    if (box == nullptr)
        return std::nullopt;
    if constexpr (std::is_same_v<V, ValueSelection>)
        return Create<V, W>(*kind, *box, {}, {});
    else
        return Create<V, W>(*kind, *box);
}

} // namespace

ComboBoxIndexBinding::ComboBoxIndexBinding(ValueNumeric<int>& value, QComboBox& box,
                                           QObject* parent)
    : InputBinding(value, box, parent)
    , m_isEmpty(box.count() == 0)
{
    connect(box.model(), &QAbstractItemModel::rowsInserted, this,
            &ComboBoxIndexBinding::itemsInserted);
}

void ComboBoxIndexBinding::widgetChanged(int index)
{
    if (index < 0)
        m_isEmpty = isWidgetAlive() && widget().count() == 0;
    else if (!m_isEmpty) // Else the box has selected its first item by itself.
        InputBinding::widgetChanged(index);
}

void ComboBoxIndexBinding::itemsInserted()
{
    m_isEmpty = false;
    if (isWidgetAlive() && value() != nullptr)
        showValue();
}

template <typename V, typename W>
ValueWidgetBindingBase<V, W>* Create(V& value, W& widget, QObject* parent)
{
    return makeBinding<typename BindingFor<V, W>::Binding>(widget, parent, value, widget);
}

template <>
GUIBASE_EXPORT ValueWidgetBindingBase<ValueSelection, QComboBox>*
Create(ValueSelection& value, QComboBox& box, const ItemToShown<QComboBox>& toShown,
       const ShownToItem<QComboBox>& toItem, QObject* parent)
{
    return makeBinding<ValueSelectionQComboBoxBinding>(box, parent, value, box, toShown, toItem);
}

template <>
GUIBASE_EXPORT ValueWidgetBindingBase<ValueSelection, QLabel>*
Create(ValueSelection& value, QLabel& label, const ItemToShown<QLabel>& toShown,
       const ShownToItem<QLabel>& toItem, QObject* parent)
{
    return makeBinding<ValueSelectionQLabelBinding>(label, parent, value, label, toShown, toItem);
}

#define INSTANTIATE(V, W)                                                                          \
    template GUIBASE_EXPORT ValueWidgetBindingBase<V, W>* Create<V, W>(V&, W&, QObject*);
GUIBASE_FOR_EACH_BINDING(INSTANTIATE)
#undef INSTANTIATE

Created createByClass(ValueBase& value, QWidget& widget)
{
    using Creator = Created (*)(ValueBase&, QWidget&);
#define CREATOR(V, W) &createIfOfClass<V, W>,
    static constexpr Creator creators[] = {GUIBASE_FOR_EACH_BINDING(CREATOR)
                                               CREATOR(ValueSelection, QComboBox) //
                                           CREATOR(ValueSelection, QLabel)};
#undef CREATOR
    for (const Creator create : creators) {
        if (const Created binding = create(value, widget))
            return binding;
    }
    return std::nullopt;
}

} // namespace ValueWidgetBinding::Internal
