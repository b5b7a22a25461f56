// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QColor>
#include <QWidget>

#include <memory>

/// Chooses a colour: its hue on a circle, its saturation and brightness in the square inside.
///
/// Keys: Left and Right change the saturation, Up and Down the brightness, Page Up and Page Down
/// the hue, as the wheel does when the circle has the focus; with Ctrl in fine steps. Escape ends a
/// drag and brings the colour back from before it. Black and grey keep the hue that was chosen
/// last.
class GUIBASE_EXPORT ColorCircle : public QWidget
{
    Q_OBJECT
    /// See setColor().
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)
public:
    explicit ColorCircle(QWidget* parent = nullptr);
    ~ColorCircle() override;

    /// Red at first.
    QColor color() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The colour has become another one, by the user or by the program; during a drag, too.
    void colorChanged(const QColor& color);

public Q_SLOTS:
    /// Keeps the alpha channel. An invalid colour is ignored.
    void setColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Private;

    const std::unique_ptr<Private> d;
};
