// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QEvent>
#include <QVariant>

/// The mark of a dock that hides at the edge of its main window. The dock tells of every change
/// with a QEvent::DynamicPropertyChange.
namespace EdgeHiding {

inline constexpr const char* propertyName = "GuiBase_hidesAtEdge";

inline void setOn(QDockWidget& dock, bool on)
{
    if (dock.property(propertyName).toBool() != on)
        dock.setProperty(propertyName, on ? QVariant(true) : QVariant());
}
inline bool isOn(const QDockWidget& dock)
{
    return dock.property(propertyName).toBool();
}
inline bool isChange(const QEvent& event)
{
    return event.type() == QEvent::DynamicPropertyChange &&
           static_cast<const QDynamicPropertyChangeEvent&>(event).propertyName() == propertyName;
}

} // namespace EdgeHiding
