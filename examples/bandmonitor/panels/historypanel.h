// SPDX-License-Identifier: MIT
#pragma once

#include "panels/panel.h"

namespace bandmonitor {

/// The undo steps as a list: choosing one goes back or forth to it.
class HistoryPanel : public Panel
{
    Q_OBJECT
public:
    explicit HistoryPanel(QWidget* parent = nullptr);
    ~HistoryPanel() override;
};

} // namespace bandmonitor
