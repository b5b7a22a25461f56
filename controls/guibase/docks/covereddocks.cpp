// SPDX-License-Identifier: MIT
#include "covereddocks.h"

#include "dockfocus.h"
#include "mainwindowhelpers.h"

#include <jtbase/qtimerhelpers.h>

#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>

#include <algorithm>
#include <utility>

namespace {

bool isTab(const QEvent& event)
{
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

/// A widget passes its policy on to its focus proxy.
int proxyCount(const QWidget& widget)
{
    int count = 0;
    for (const QWidget* proxy = widget.focusProxy(); proxy != nullptr; proxy = proxy->focusProxy())
        ++count;
    return count;
}

} // namespace

void CoveredDocks::install(QMainWindow& mainWindow)
{
    if (mainWindow.findChild<CoveredDocks*>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        new CoveredDocks(mainWindow);
}

CoveredDocks::CoveredDocks(QMainWindow& mainWindow)
    : QObject(&mainWindow)
    , m_mainWindow(mainWindow)
{
    watch(QApplication::focusWidget());
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { watch(now); });
    connect(&mainWindow, &QMainWindow::tabifiedDockWidgetActivated, this,
            [this](QDockWidget* front) { moveFocusTo(*front); });
}

CoveredDocks::~CoveredDocks() = default;

void CoveredDocks::watch(QWidget* focus)
{
    if (m_watched)
        m_watched->removeEventFilter(this);
    m_watched = DockFocus::isInside(focus, m_mainWindow) ? focus : nullptr;
    if (m_watched)
        m_watched->installEventFilter(this);
}

bool CoveredDocks::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && isTab(*event))
        passOver();
    return false;
}

void CoveredDocks::passOver()
{
    restorePolicies();
    const QList<QDockWidget*> docks = QMainWindowHelpers::dockWidgets(m_mainWindow);
    for (QDockWidget* dock : docks) {
        if (!DockFocus::isCovered(*dock))
            continue;
        const auto inside = dock->findChildren<QWidget*>();
        for (QWidget* widget : inside)
            if (widget->focusPolicy() != Qt::NoFocus && widget->window() == dock->window())
                m_policies.push_back({widget, widget->focusPolicy()});
    }
    if (m_policies.empty())
        return;
    // The toolkit asks each widget for its policy; it knows no other way to leave one out. Only
    // this key sees the change.
    std::stable_sort(m_policies.begin(), m_policies.end(), [](const Policy& a, const Policy& b) {
        return proxyCount(*a.widget) > proxyCount(*b.widget);
    });
    for (const Policy& each : m_policies)
        each.widget->setFocusPolicy(Qt::NoFocus);
    QTimerHelpers::singleShot(0, this, [this] { restorePolicies(); });
}

void CoveredDocks::restorePolicies()
{
    const std::vector<Policy> policies = std::exchange(m_policies, {});
    for (const Policy& each : policies)
        if (each.widget && each.widget->focusPolicy() == Qt::NoFocus)
            each.widget->setFocusPolicy(each.policy);
}

void CoveredDocks::moveFocusTo(QDockWidget& front)
{
    restorePolicies(); // the tab may have come to the front by the key
    const QWidget* focus = QApplication::focusWidget();
    const QList<QDockWidget*> docks = QMainWindowHelpers::dockWidgets(m_mainWindow);
    const bool isInCovered =
        std::any_of(docks.cbegin(), docks.cend(), [focus](const QDockWidget* dock) {
            return DockFocus::isCovered(*dock) && DockFocus::isInside(focus, *dock);
        });
    if (isInCovered)
        DockFocus::target(front)->setFocus(Qt::OtherFocusReason);
}
