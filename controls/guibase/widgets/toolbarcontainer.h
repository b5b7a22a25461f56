// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QList>
#include <QWidget>

#include <memory>

/// Holds widgets in a tool bar, and moves those that do not fit, the last ones first, into a popup
/// behind a button, where they can be used as in the bar. It follows the orientation of the tool
/// bar that it is added to.
class GUIBASE_EXPORT ToolBarContainer : public QWidget
{
    Q_OBJECT
    /// See setOrientation().
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
public:
    /// Horizontal and empty.
    explicit ToolBarContainer(QWidget* parent = nullptr);
    ~ToolBarContainer() override;

    /// Adds the widget as the last one, and owns it. Null and widgets that it has are ignored. A
    /// widget that the application hides takes no room, and one that gets another parent is let go.
    void addWidget(QWidget* widget);
    /// Takes the widget out, without a parent; it belongs to the caller then. Nothing for others.
    void removeWidget(QWidget* widget);
    /// In the order in which they were added.
    QList<QWidget*> widgets() const;
    /// Those that are in the popup, in their order.
    QList<QWidget*> hiddenWidgets() const;

    /// Horizontal at first. A tool bar sets its own when the container is added, and when it is
    /// moved.
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    /// Room for all widgets.
    QSize sizeHint() const override;
    /// Room for the button alone.
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Opens the popup; nothing when all widgets fit.
    void showPopup();

Q_SIGNALS:
    /// Other widgets than before are in the popup.
    void hiddenWidgetsChanged();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void forget(QWidget* widget);
    void arrange();

    struct Private;
    std::unique_ptr<Private> d;
};
