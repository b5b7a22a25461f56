// SPDX-License-Identifier: MIT
#include "panels/panel.h"

#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenu>

namespace bandmonitor {

Panel::Panel(QWidget* parent)
    : QWidget(parent)
{}

Panel::~Panel() = default;

QList<QAction*> Panel::keyActions() const
{
    return {};
}

QSize Panel::sizeHint() const
{
    return m_preferredSize.isValid() ? m_preferredSize : QWidget::sizeHint();
}

void Panel::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    for (QWidget* window = parentWidget(); window != nullptr; window = window->parentWidget()) {
        auto* const main = qobject_cast<QMainWindow*>(window);
        QMenu* const panels = main != nullptr ? main->createPopupMenu() : nullptr;
        if (panels == nullptr)
            continue;
        panels->setParent(menu, panels->windowFlags());
        panels->setTitle(tr("&Panels"));
        menu->addSeparator();
        menu->addMenu(panels);
    }
    menu->popup(event->globalPos());
}

void Panel::refreshTexts() {}

} // namespace bandmonitor
