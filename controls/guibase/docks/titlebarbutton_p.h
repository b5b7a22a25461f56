// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

/// A flat button of a dock's title bar; it leaves the arrow keys to the bar.
class TitleBarButton : public QToolButton
{
    Q_OBJECT
public:
    explicit TitleBarButton(QWidget& bar);
    ~TitleBarButton() override;

    /// The side of the square that a button takes on this bar.
    static int extent(const QWidget& bar);
    /// Left, right, up, down, Home and End.
    static bool isNavigationKey(int key);

    /// Tool tip and name.
    void setTexts(const QString& name);
    /// Tells assistive programs, which takes its time, only of a new name.
    void setName(const QString& name);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
