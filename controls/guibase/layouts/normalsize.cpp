// SPDX-License-Identifier: MIT
#include "normalsize.h"

#include <jtbase/qtimerhelpers.h>

#include <QEvent>
#include <QPointer>
#include <QWidget>

NormalSize::NormalSize(QWidget& window, const QSize& size)
    : QObject(&window)
    , m_window(window)
    , m_size(size)
{
    window.installEventFilter(this);
    QTimerHelpers::singleShot(milliseconds, this, [this] { finish(); });
}

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

bool NormalSize::isNormal() const
{
    return !(m_window.windowState() &
             (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen));
}

bool NormalSize::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        deleteLater();
    // The window is in the middle of its resizing.
    if (event->type() == QEvent::Resize && event->spontaneous())
        QTimerHelpers::singleShot(0, this, [this] {
            if (isNormal())
                finish();
        });
    return false;
}

void NormalSize::finish()
{
    const QPointer<NormalSize> guard(this);
    if (isNormal())
        m_window.resize(m_size);
    delete guard;
}
