// SPDX-License-Identifier: MIT
#include "settings/boundform.h"

#include <guibase/binding/formbinding.h>
#include <guibase/binding/valuewidgetbinding.h>

#include <QCoreApplication>
#include <QWidget>

namespace bandmonitor {

void bindForm(QWidget& form, const QString& path)
{
    const auto bound = ValueWidgetBinding::BindForm(form, path);
    for (ValueWidgetBinding::ValueWidgetBinding* binding : bound.bindings) {
        QString name = static_cast<QWidget*>(binding->parent())->accessibleName();
        name.replace(0, 1, name.left(1).toLower());
        binding->setUndoText(QCoreApplication::translate("BoundForm", "Change %1").arg(name));
    }
}

} // namespace bandmonitor
