// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QEvent>
#include <QPointer>
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

/// While it lives, docks of the main window that hide at the edge may be docked, floated and shown
/// without an end of their hiding: whoever made it puts them back.
class Pause
{
public:
    explicit Pause(QWidget& mainWindow)
        : m_mainWindow(&mainWindow)
    {
        mainWindow.setProperty(pauseName, true);
    }
    ~Pause()
    {
        if (m_mainWindow)
            m_mainWindow->setProperty(pauseName, QVariant());
    }
    Q_DISABLE_COPY_MOVE(Pause)

    static bool isOn(const QWidget& mainWindow) { return mainWindow.property(pauseName).toBool(); }

private:
    static constexpr const char* pauseName = "GuiBase_pausesEdgeHiding";
    QPointer<QWidget> m_mainWindow;
};

} // namespace EdgeHiding
