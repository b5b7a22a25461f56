// SPDX-License-Identifier: MIT
#include "accessiblenotification_p.h"

#include "standardnotification.h"

#include <QAccessibleWidget>

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* popup = qobject_cast<StandardNotification*>(object);
    return popup != nullptr ? new QAccessibleWidget(popup, QAccessible::AlertMessage) : nullptr;
}

} // namespace

void AccessibleNotification::install()
{
    static const bool isInstalled = (QAccessible::installFactory(&makeInterface), true);
    Q_UNUSED(isInstalled)
}

void AccessibleNotification::announce(QWidget& popup)
{
    QAccessibleEvent event(&popup, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}
