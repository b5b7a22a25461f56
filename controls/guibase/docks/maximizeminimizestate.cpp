// SPDX-License-Identifier: MIT
#include "maximizeminimizesupport.h"

#include <QCoreApplication>

#include <array>

namespace QDockWidgetHelpers {

using State = MaximizeMinimizeSupport_DockWidgetState;

namespace {

constexpr const char* translationContext = "QDockWidgetHelpers::DockWidgetState";
constexpr std::array stateNames{
    QT_TRANSLATE_NOOP("QDockWidgetHelpers::DockWidgetState", "Normal"),
    QT_TRANSLATE_NOOP("QDockWidgetHelpers::DockWidgetState", "Maximized"),
    QT_TRANSLATE_NOOP("QDockWidgetHelpers::DockWidgetState", "Minimized"),
};

bool hasName(State::Type state)
{
    return static_cast<unsigned>(state) < stateNames.size();
}

} // namespace

const QList<State::Type>& State::values()
{
    static const QList<Type> all{Normal, Maximized, Minimized};
    return all;
}

QString State::toString(Type state)
{
    return hasName(state) ? QString::fromLatin1(stateNames[state]) : QString();
}

QString State::toDisplayString(Type state)
{
    return hasName(state) ? QCoreApplication::translate(translationContext, stateNames[state])
                          : QString();
}

State::Type State::fromString(const QString& text, bool* ok)
{
    const QString beginning = text.trimmed();
    for (const Type state : values()) {
        if (!beginning.isEmpty() && toString(state).startsWith(beginning, Qt::CaseInsensitive)) {
            if (ok != nullptr)
                *ok = true;
            return state;
        }
    }
    if (ok != nullptr)
        *ok = false;
    return values().first();
}

} // namespace QDockWidgetHelpers
