// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QColor>
#include <QObject>

#include <memory>

class QWidget;

/// Draws attention to a widget: a frame and a tint over it blink a few times, on any style and
/// style sheet, and its window asks for attention when another one is active. Ends when the focus
/// comes into the widget. A hidden widget blinks once it is shown.
///
/// Where the user wants nothing to move, the frame stands still for the same time.
class GUIBASE_EXPORT WidgetFlasher : public QObject
{
    Q_OBJECT
public:
    /// How often it blinks.
    static constexpr int defaultBlinks = 3;
    static constexpr int maximumBlinks = 20;
    /// Light and dark together, in milliseconds: slow enough for people whom flashes harm.
    static constexpr int blinkTime = 600;

    /// Blinks 1 to 20 times, numbers beyond that are clamped, in the color of selections when
    /// `color` is invalid. A widget that blinks begins anew. The result is a child of the widget
    /// and deletes itself at the end; null for a null widget.
    static WidgetFlasher* flash(QWidget* widget, int blinks = defaultBlinks,
                                const QColor& color = {});
    /// Ends it at once; nothing for null, and for a widget that does not blink.
    static void stop(QWidget* widget);
    static bool isFlashing(const QWidget* widget);

    ~WidgetFlasher() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// It has ended, by itself or early, but not because its widget was deleted.
    void finished();

private:
    WidgetFlasher(QWidget& widget, int blinks, const QColor& color);
    void step();
    void end();

    struct Private;
    std::unique_ptr<Private> d;
};
