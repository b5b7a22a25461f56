// SPDX-License-Identifier: MIT
#include "normalsize.h"

#include <jtbase/qtimerhelpers.h>

#include <QEvent>
#include <QPointer>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

constexpr Qt::WindowStates large = Qt::WindowMaximized | Qt::WindowFullScreen;

} // namespace

NormalSize::NormalSize(QWidget& window, const QSize& size)
    : QObject(&window)
    , m_window(window)
    , m_size(size)
{
    window.installEventFilter(this);
    // The widget hears only of states that it does not believe to have already.
    if (QWindow* handle = window.windowHandle())
        handle->installEventFilter(this);
    m_timer.callOnTimeout(this, [this] {
        if (++m_requests < maximumRequests)
            askAgain();
        else
            giveUp();
    });
    m_timer.start(milliseconds);
}

NormalSize::~NormalSize() = default;

NormalSize* NormalSize::waitingFor(const QWidget& window)
{
    return window.findChild<NormalSize*>(QString(), Qt::FindDirectChildrenOnly);
}

void NormalSize::give(QWidget& window, const QSize& size)
{
    delete waitingFor(window);
    if (window.isVisible())
        new NormalSize(window, size);
    else
        window.resize(size);
}

void NormalSize::resize(QWidget& window, const QSize& size)
{
    if (NormalSize* waiting = waitingFor(window))
        waiting->m_size = size;
    else
        window.resize(size);
}

bool NormalSize::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Hide) {
        delete this; // At once: the next size of the window is not for one that is about to go.
        return false;
    }
    // The toolkit is in the middle of it.
    if (watched != &m_window && event->type() == QEvent::WindowStateChange && event->spontaneous())
        QTimerHelpers::singleShot(0, this, [this] { takeAnswer(); });
    return false;
}

bool NormalSize::coversScreen() const
{
    constexpr double least = 0.85; // Panels and frames take the rest.
    const QSize screen = m_window.screen()->size();
    return m_window.width() > least * screen.width() && m_window.height() > least * screen.height();
}

/// No answer is on its way when the compositor has never changed the state.
void NormalSize::giveUp()
{
    m_timer.stop();
    deleteLater();
    if (!coversScreen())
        m_window.resize(m_size);
}

void NormalSize::askAgain()
{
    QWindow* handle = m_window.windowHandle();
    // The toolkit passes on what the compositor has not granted yet.
    if (!(m_window.windowState() & large) && handle != nullptr)
        handle->setWindowStates(handle->windowStates() & ~large);
}

void NormalSize::takeAnswer()
{
    if (m_window.windowState() & large) {
        m_window.setWindowState(m_window.windowState() & ~large);
        return;
    }
    const QPointer<NormalSize> guard(this);
    m_window.resize(m_size);
    delete guard;
}
