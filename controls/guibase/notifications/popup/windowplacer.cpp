// SPDX-License-Identifier: MIT
#include "windowplacer_p.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QWindow>

namespace {

bool isHost(const QWidget* widget)
{
    return widget != nullptr && widget->isVisible() && !widget->isMinimized() &&
           widget->windowType() == Qt::Window;
}

/// The active window, else any, a main window rather than another.
QWidget* findHost(QWidget* former)
{
    if (isHost(QApplication::activeWindow()))
        return QApplication::activeWindow();
    if (isHost(former))
        return former;
    QWidget* best = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (isHost(window) && (best == nullptr || qobject_cast<QMainWindow*>(window) != nullptr))
            best = window;
    }
    return best;
}

} // namespace

WindowPlacer::WindowPlacer()
{
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &PopupPlacer::areaChanged);
}

WindowPlacer::~WindowPlacer()
{
    release();
}

QRect WindowPlacer::area()
{
    setHost(findHost(m_host));
    return m_host != nullptr ? m_host->rect() : QRect();
}

void WindowPlacer::adopt(QWidget& popup)
{
    if (m_host == nullptr || popup.parentWidget() == m_host)
        return;
    popup.setParent(m_host); // Hides it, and makes it a child without a window of its own.
    m_popups << &popup;
}

bool WindowPlacer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_host)
        return false;
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        release();
        Q_EMIT areaChanged();
    } else if (event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange ||
               event->type() == QEvent::Hide) {
        Q_EMIT areaChanged();
    }
    return false;
}

void WindowPlacer::setHost(QWidget* host)
{
    if (m_host == host)
        return;
    release();
    m_host = host;
    if (host != nullptr)
        host->installEventFilter(this);
}

void WindowPlacer::release()
{
    if (m_host != nullptr)
        m_host->removeEventFilter(this);
    for (const QPointer<QWidget>& popup : std::as_const(m_popups)) {
        if (popup != nullptr && popup->parentWidget() == m_host)
            popup->setParent(nullptr);
    }
    m_popups.clear();
    m_host = nullptr;
}
