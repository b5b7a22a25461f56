// SPDX-License-Identifier: MIT
#include "sizewait_p.h"

#include <jtbase/qtimerhelpers.h>

#include <QMainWindow>
#include <QTimer>

void SizeWait::start(QMainWindow* window, const DockLayout& layout, QSize size)
{
    m_window = window;
    m_size = size;
    if (layout.state.isEmpty() || !size.isValid() || isSizeThere())
        return;
    m_layout = layout;
    m_places = DockRestore::places(*m_window);
    m_timer = QTimerHelpers::singleShot(milliseconds, this, [this] {
        m_timer.clear(); // It deletes itself.
        end();
    });
}

/// True also without a window.
bool SizeWait::isSizeThere() const
{
    return !m_window ||
           m_window->size() ==
               m_size.expandedTo(m_window->minimumSize()).boundedTo(m_window->maximumSize());
}

void SizeWait::end()
{
    if (!isOn())
        return;
    m_layout = {};
    m_places.clear();
    delete m_timer;
    Q_EMIT ended();
}

void SizeWait::endIfRearranged()
{
    if (DockRestore::isRearranged(m_places))
        end();
}

void SizeWait::retry(const std::function<void(const DockLayout&)>& restore)
{
    endIfRearranged();
    if (!isOn())
        return;
    restore(DockLayout(m_layout));
    if (isSizeThere())
        end();
    else if (isOn())
        m_places = DockRestore::places(*m_window);
}
