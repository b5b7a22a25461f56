// SPDX-License-Identifier: MIT
#pragma once

#include "dockrestore_p.h"

#include <guibase/records/docklayout.h>

#include <QObject>
#include <QPointer>
#include <QSize>

#include <functional>

class QMainWindow;
class QTimer;

/// A dock layout for a main window that is still on its way to its stored size, as maximized ones
/// are: too small, it would squeeze its docks. They are put in place again with each resizing until
/// the size is there, somebody else arranges them, or the time is over.
class SizeWait : public QObject
{
    Q_OBJECT
public:
    /// Nothing for an empty layout, and for a window that has the size.
    void start(QMainWindow* window, const DockLayout& layout, QSize size);
    bool isOn() const { return !m_layout.state.isEmpty(); }
    /// The size that was waited for last.
    QSize size() const { return m_size; }
    void end();
    void endIfRearranged();
    /// The window was resized: calls `restore` with the layout. The caller keeps this object alive.
    void retry(const std::function<void(const DockLayout&)>& restore);

    /// How long window managers take to give a window its stored size.
    static constexpr int milliseconds = 2000;

Q_SIGNALS:
    /// What has changed meanwhile is there to be captured now.
    void ended();

private:
    bool isSizeThere() const;

    QPointer<QMainWindow> m_window;
    DockLayout m_layout;
    QSize m_size;
    DockRestore::Places m_places; ///< Of the docks as the layout has put them.
    QPointer<QTimer> m_timer;
};
