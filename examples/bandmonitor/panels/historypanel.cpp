// SPDX-License-Identifier: MIT
#include "panels/historypanel.h"

#include <valueframework/undorecording.h>

#include <QUndoView>
#include <QVBoxLayout>

namespace bandmonitor {

HistoryPanel::HistoryPanel(QWidget* parent)
    : Panel(parent)
{
    setAccessibleName(tr("History"));
    auto* steps = new QUndoView(UndoRecording::Instance().stack(), this);
    steps->setAccessibleName(tr("History"));
    steps->setEmptyLabel(tr("At the start"));
    setFocusProxy(steps);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(steps);
}

HistoryPanel::~HistoryPanel() = default;

} // namespace bandmonitor
