// SPDX-License-Identifier: MIT
#include "panels/panel.h"

namespace bandmonitor {

Panel::Panel(QWidget* parent)
    : QWidget(parent)
{}

Panel::~Panel() = default;

QList<QAction*> Panel::keyActions() const
{
    return {};
}

void Panel::refreshTexts() {}

} // namespace bandmonitor
