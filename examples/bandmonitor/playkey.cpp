// SPDX-License-Identifier: MIT
#include "playkey.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>

namespace bandmonitor {

namespace {

bool usesKeys(const QWidget& widget)
{
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        const QModelIndex index = view->currentIndex();
        return index.data(Qt::CheckStateRole).isValid() || (index.flags() & Qt::ItemIsEditable);
    }
    return widget.testAttribute(Qt::WA_InputMethodEnabled) ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QMenuBar*>(&widget) != nullptr;
}

} // namespace

PlayKey::PlayKey(QAction& action, QMainWindow& window)
    : QObject(&window)
    , m_action(action)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

PlayKey::~PlayKey() = default;

bool PlayKey::isOurs(const QWidget& widget) const
{
    const QWidget* const window = widget.window();
    return window == &m_window || (qobject_cast<const QDockWidget*>(window) != nullptr &&
                                   window->parentWidget() == &m_window);
}

bool PlayKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || !isOurs(*widget) || usesKeys(*widget))
        return false;
    const QKeySequence key(static_cast<const QKeyEvent*>(event)->keyCombination());
    if (key != m_action.shortcut() || !m_action.isEnabled())
        return false;
    m_action.trigger();
    return true;
}

} // namespace bandmonitor
