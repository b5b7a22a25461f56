// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QPointer>

/// Points to a dock as long as it is one. A QPointer still points to it while the destructors of
/// its base classes run, when events of it can still be on their way.
class DockPointer
{
public:
    DockPointer(QDockWidget* dock = nullptr)
        : m_object(dock)
    {}

    QDockWidget* get() const { return qobject_cast<QDockWidget*>(m_object.data()); }
    QDockWidget& operator*() const { return *get(); }
    QDockWidget* operator->() const { return get(); }
    explicit operator bool() const { return get() != nullptr; }
    bool operator==(const QObject* other) const { return m_object.data() == other; }

private:
    QPointer<QObject> m_object;
};
