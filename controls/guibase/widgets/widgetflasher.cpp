// SPDX-License-Identifier: MIT
#include "widgetflasher.h"

#include <guibase/services/desktopmotion.h>

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QSplitter>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int stepsPerBlink = 2;
constexpr int frameWidth = 3; // pixels
constexpr int tintAlpha = 56;

/// Lies over the widget and lets the mouse through.
class FlashOverlay : public QWidget
{
public:
    /// In the color of selections when this one is invalid.
    FlashOverlay(QWidget& host, const QWidget& widget, const QColor& color)
        : QWidget(&host)
        , m_widget(widget)
        , m_color(color)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QPalette& colors = m_widget.palette();
        const QColor frame =
            m_color.isValid() ? m_color : colors.color(QPalette::Active, QPalette::Highlight);
        QColor tint(frame);
        tint.setAlpha(tintAlpha);
        painter.fillRect(rect(), tint);
        // Two colors: one of them stands out on any ground.
        const auto drawFrame = [&](const QColor& pen, int width, int inset) {
            painter.setPen(QPen(pen, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            const qreal edge = inset + width / 2.0;
            painter.drawRect(QRectF(rect()).adjusted(edge, edge, -edge, -edge));
        };
        drawFrame(frame, frameWidth, 0);
        drawFrame(colors.color(QPalette::Active, QPalette::HighlightedText), 1, frameWidth);
    }

private:
    const QWidget& m_widget; ///< Its flasher deletes the overlay before.
    QColor m_color;
};

/// A splitter would take the overlay for one of its panes. Null when there is nothing around it.
QWidget* hostFor(QWidget& widget)
{
    QWidget* host = &widget;
    while (qobject_cast<QSplitter*>(host) != nullptr)
        host = host->isWindow() ? nullptr : host->parentWidget();
    return host;
}

bool isWithin(const QWidget& widget, const QWidget* other)
{
    return other != nullptr && (other == &widget || widget.isAncestorOf(other));
}

WidgetFlasher* flasherOf(const QWidget& widget)
{
    return widget.findChild<WidgetFlasher*>({}, Qt::FindDirectChildrenOnly);
}

} // namespace

struct WidgetFlasher::Private
{
    explicit Private(QWidget& flashing)
        : widget(flashing)
        , host(hostFor(flashing))
        , moves(DesktopMotion::isWanted(flashing))
    {}
    void place();

    QWidget& widget;
    QPointer<QWidget> host;
    QPointer<FlashOverlay> overlay;
    int stepsLeft = 0;
    bool moves;
    QTimer timer;
};

void WidgetFlasher::Private::place()
{
    if (overlay == nullptr)
        return;
    if (!isWithin(*host, &widget)) {
        delete overlay; // A splitter that was moved elsewhere.
        return;
    }
    overlay->setGeometry(QRect(widget.mapTo(host, QPoint()), widget.size()));
    overlay->raise();
}

WidgetFlasher* WidgetFlasher::flash(QWidget* widget, int blinks, const QColor& color)
{
    if (widget == nullptr)
        return nullptr;
    delete flasherOf(*widget);
    return new WidgetFlasher(*widget, std::clamp(blinks, 1, maximumBlinks), color);
}

void WidgetFlasher::stop(QWidget* widget)
{
    if (isFlashing(widget))
        flasherOf(*widget)->end();
}

bool WidgetFlasher::isFlashing(const QWidget* widget)
{
    return widget != nullptr && flasherOf(*widget) != nullptr;
}

WidgetFlasher::WidgetFlasher(QWidget& widget, int blinks, const QColor& color)
    : QObject(&widget)
    , d(std::make_unique<Private>(widget))
{
    d->stepsLeft = blinks * stepsPerBlink;
    if (d->host != nullptr)
        d->overlay = new FlashOverlay(*d->host, widget, color);
    for (QWidget* each = &widget; each != nullptr && (each == &widget || each != d->host);
         each = each->isWindow() ? nullptr : each->parentWidget())
        each->installEventFilter(this);
    d->timer.setInterval(blinkTime / stepsPerBlink);
    d->timer.callOnTimeout(this, [this] { step(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
        if (isWithin(d->widget, now) && !isWithin(d->widget, old))
            end();
    });
    QApplication::alert(widget.window(), blinks * blinkTime);
    if (widget.isVisible())
        step();
}

WidgetFlasher::~WidgetFlasher()
{
    delete d->overlay;
}

bool WidgetFlasher::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        d->place();
        break;
    case QEvent::Show:
        if (parent() != nullptr && watched == &d->widget && !d->timer.isActive()) {
            d->stepsLeft += d->stepsLeft % stepsPerBlink; // It begins with light.
            step();
        }
        break;
    case QEvent::Hide:
        d->timer.stop();
        break;
    default:
        break;
    }
    return false;
}

void WidgetFlasher::step()
{
    if (d->stepsLeft == 0) {
        end();
        return;
    }
    const bool isLit = d->stepsLeft % stepsPerBlink == 0 || !d->moves;
    --d->stepsLeft;
    d->place();
    if (d->overlay != nullptr)
        d->overlay->setVisible(isLit);
    d->timer.start();
}

void WidgetFlasher::end()
{
    d->timer.stop();
    delete d->overlay;
    disconnect(qApp, nullptr, this, nullptr);
    setParent(nullptr); // The widget flashes no more, and may go first.
    deleteLater();
    Q_EMIT finished();
}
