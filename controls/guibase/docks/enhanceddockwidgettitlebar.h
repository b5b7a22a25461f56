// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QWidget>

#include <memory>

class QDockWidget;

/// A title bar for dock widgets with icon, title, the widget's own actions (QWidget::actions()) as
/// buttons, and a float and a close button as far as the dock's features allow. It follows the dock
/// in all of them, and can be dragged and double-clicked like the toolkit's own bar. More:
/// docs/decisions/0041-title-bars-and-docks-at-the-edge.md.
class GUIBASE_EXPORT EnhancedDockWidgetTitleBar : public QWidget
{
    Q_OBJECT
    /// Whether the bar is marked as that of the dock which the user works in. Default false.
    Q_PROPERTY(bool active READ isActive WRITE setActive)
public:
    /// The bar is a child of the dock; it must still be handed to QDockWidget::setTitleBarWidget().
    explicit EnhancedDockWidgetTitleBar(QDockWidget& dockWidget);
    ~EnhancedDockWidgetTitleBar() override;

    /// Null while the dock is being destroyed.
    QDockWidget* dockWidget() const;

    /// Shows the action as a button in front of the index-th action, hidden ones counted; the first
    /// is the farthest from float and close button. A negative or too large index appends. An
    /// action that is there already moves. The action is not owned.
    void addTitleBarAction(QAction& action, int index);

    /// Whether the bar is marked as that of the dock which the user works in.
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
