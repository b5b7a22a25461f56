// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QDockWidget>

class QAction;

/// A dock with the enhanced title bar, whose buttons are properties: for forms, which call no
/// DockWidgetConfigurator. To hide at the edge, its window needs an AutoHideSupport.
class GUIBASE_EXPORT EnhancedDockWidget : public QDockWidget
{
    Q_OBJECT
    /// Whether the title bar has the pin that lets the dock hide at the edge. Default false.
    Q_PROPERTY(bool autoHideButton READ hasAutoHideButton WRITE setAutoHideButton)
    /// Whether the title bar can maximize the dock while it floats. Default false.
    Q_PROPERTY(bool maximizeButton READ hasMaximizeButton WRITE setMaximizeButton)
    /// Whether the title bar can minimize the dock while it floats. Default false.
    Q_PROPERTY(bool minimizeButton READ hasMinimizeButton WRITE setMinimizeButton)
public:
    explicit EnhancedDockWidget(QWidget* parent = nullptr);
    ~EnhancedDockWidget() override;

    /// See the properties.
    bool hasAutoHideButton() const;
    void setAutoHideButton(bool on);
    bool hasMaximizeButton() const;
    void setMaximizeButton(bool on);
    bool hasMinimizeButton() const;
    void setMinimizeButton(bool on);

private:
    bool hasButton(const QAction* action) const;
    void setButton(QAction& action, bool on);
    void updateRestoreButton();
};
