// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

class UndoActions;

namespace bandmonitor {

class SessionValues;

/// The tool bar: undo, redo, and the settings of the receiver that are needed most, in step with
/// those of the receiver panel.
class ReceiverBar : public QToolBar
{
    Q_OBJECT
public:
    ReceiverBar(const SessionValues& values, const UndoActions& undo, QWidget* parent);
    ~ReceiverBar() override;
};

} // namespace bandmonitor
