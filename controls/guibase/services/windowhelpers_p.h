// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>

class QComboBox;
class QDockWidget;
class QMainWindow;
class QWidget;

/// Widgets that the services build or look at, without state of their own.
namespace WindowHelpers {

bool isDialogVisible();
/// Null, and nothing done, without a widget or a window.
QDockWidget* addAsDockWidget(QWidget* widget, const QString& title, QMainWindow* mainWindow,
                             Qt::DockWidgetArea area);
/// A box with the names of the classic styles; the caller connects it.
QComboBox* createStyleComboBox(QWidget* parent);

} // namespace WindowHelpers
