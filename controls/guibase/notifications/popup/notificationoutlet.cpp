// SPDX-License-Identifier: MIT
#include "notificationoutlet.h"

#include <QObject>
#include <QPointer>

#include <utility>

namespace {

struct Outlet
{
    QPointer<const QObject> owner;
    NotificationOutlet::Function function;
};

Outlet& outlet()
{
    static Outlet only;
    return only;
}

} // namespace

void NotificationOutlet::set(const QObject& owner, Function function)
{
    outlet() = {&owner, std::move(function)};
}

bool NotificationOutlet::send(const QString& title, const QString& text, const QIcon& icon)
{
    return outlet().owner != nullptr && outlet().function(title, text, icon);
}
