// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

/// The button that stands for a dock on an auto-hide tool bar: icon, title and an arrow into the
/// window, along the bar.
class AutoHideButton : public QToolButton
{
    Q_OBJECT
public:
    AutoHideButton(QAction& action, Qt::ToolBarArea area, QWidget* parent);
    ~AutoHideButton() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// Enter or Space, after the action was triggered.
    void chosenByKey();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isVertical() const;
    int padding() const;
    int iconExtent() const;
    QSize turned(int along, int across) const;

    Qt::ToolBarArea m_area;
    mutable QSize m_sizeHint; ///< Invalid when it must be computed again.
};
