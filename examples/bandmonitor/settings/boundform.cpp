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
        const QString pattern = QCoreApplication::translate("BoundForm", "Change %1");
        QString name = static_cast<QWidget*>(binding->parent())->accessibleName();
        // Inside a sentence names begin small. German, where they do not, begins with them.
        if (!pattern.startsWith(QLatin1String("%1")))
            name.replace(0, 1, name.left(1).toLower());
        binding->setUndoText(pattern.arg(name));
    }
}

} // namespace bandmonitor
