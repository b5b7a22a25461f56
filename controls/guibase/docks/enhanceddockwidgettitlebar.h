// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QWidget>

#include <memory>

class QDockWidget;

/// A title bar for dock widgets that also holds actions as buttons.
///
/// It shows icon, title, the actions, and a float and a close button as far as the dock's features
/// allow, and follows the dock in all of them. The mouse on its free parts works as on the
/// toolkit's own bar: dragging moves the dock, a double click floats or docks it. A title that does
/// not fit is elided and shown in full as tool tip; actions that do not fit move into a menu. With
/// QDockWidget::DockWidgetVerticalTitleBar the bar stands on the left side of the dock and reads
/// from bottom to top. One button of the bar is in the tab order, arrow keys lead to the others.
///
/// The actions are the widget's own (QWidget::actions()): an action that is hidden, removed or
/// deleted takes its button with it. Of the actions that tabify or tile the docks of an area, it
/// shows those of the area where its dock lies. Buttons are made while the bar is visible.
class GUIBASE_EXPORT EnhancedDockWidgetTitleBar : public QWidget
{
    Q_OBJECT
    /// Whether the bar is marked as that of the dock which the user works in. Default false.
    Q_PROPERTY(bool active READ isActive WRITE setActive)
public:
    /// The bar is a child of the dock; it must still be handed to QDockWidget::setTitleBarWidget().
    explicit EnhancedDockWidgetTitleBar(QDockWidget& dockWidget);
    ~EnhancedDockWidgetTitleBar() override;

    QDockWidget* dockWidget() const;

    /// Shows the action as a button in front of the index-th action, hidden ones counted; the first
    /// is the farthest from float and close button. A negative or too large index appends. An
    /// action that is there already moves. The action is not owned.
    void addTitleBarAction(QAction& action, int index);

    bool isActive() const;
    void setActive(bool active);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
