// SPDX-License-Identifier: MIT
#include "panels/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

#include <array>

namespace bandmonitor {

namespace {

/// Side of the square on which icons are drawn.
constexpr int units = 16;

void addTriangle(QPainterPath& path, qreal from, qreal to)
{
    path.moveTo(from, 3);
    path.lineTo(to, 8);
    path.lineTo(from, 13);
    path.closeSubpath();
}

void addLine(QPainterPath& path, const QPointF& from, const QPointF& to)
{
    path.moveTo(from);
    path.lineTo(to);
}

// Outlines are drawn with a pen, fillings with a brush.

void drawSignals(QPainterPath& outline, QPainterPath&)
{
    outline.moveTo(1.5, 13);
    for (const QPointF& point : {QPointF(4, 13), QPointF(5.5, 5), QPointF(7, 13), QPointF(9.5, 13),
                                 QPointF(11, 2.5), QPointF(12.5, 13), QPointF(14.5, 13)})
        outline.lineTo(point);
}

void drawEvents(QPainterPath& outline, QPainterPath& filling)
{
    for (const qreal y : {3.5, 8.0, 12.5}) {
        filling.addEllipse(QPointF(3, y), 1.3, 1.3);
        addLine(outline, {6.5, y}, {14, y});
    }
}

void drawLevels(QPainterPath& outline, QPainterPath& filling)
{
    outline.moveTo(2.5, 11);
    outline.lineTo(8, 4.5);
    outline.lineTo(13.5, 8);
    for (const QPointF& point : {QPointF(2.5, 11), QPointF(8, 4.5), QPointF(13.5, 8)})
        filling.addEllipse(point, 1.8, 1.8);
}

void drawJobs(QPainterPath&, QPainterPath& filling)
{
    filling.addRect(1.5, 2.5, 7, 2.6);
    filling.addRect(4.5, 6.7, 8, 2.6);
    filling.addRect(8.5, 10.9, 6, 2.6);
}

void drawBearings(QPainterPath& outline, QPainterPath& filling)
{
    outline.addEllipse(QPointF(8, 8), 6.3, 6.3);
    filling.moveTo(8, 8);
    filling.lineTo(10, 9.5);
    filling.lineTo(11.8, 3);
    filling.lineTo(6.6, 7);
    filling.closeSubpath();
}

void drawReceiver(QPainterPath& outline, QPainterPath& filling)
{
    outline.addRoundedRect(1.5, 5.5, 13, 8.5, 1.5, 1.5);
    addLine(outline, {5, 5.5}, {11.5, 1.5});
    filling.addEllipse(QPointF(10.8, 9.8), 2, 2);
    addLine(outline, {4, 8.3}, {7, 8.3});
    addLine(outline, {4, 11.2}, {7, 11.2});
}

void drawHistory(QPainterPath& outline, QPainterPath&)
{
    outline.addEllipse(QPointF(8, 8), 6.3, 6.3);
    addLine(outline, {8, 4}, {8, 8});
    addLine(outline, {8, 8}, {11, 10});
}

void drawUndo(QPainterPath& outline, QPainterPath& filling)
{
    outline.moveTo(4, 5.5);
    outline.cubicTo(16, 2.5, 16, 14, 6, 13.5);
    filling.addPolygon(QPolygonF{QPointF(6.5, 1.5), QPointF(6.5, 9.5), QPointF(1.5, 5.5)});
}

void drawRedo(QPainterPath& outline, QPainterPath& filling)
{
    const QTransform mirror(-1, 0, 0, 1, 16, 0);
    drawUndo(outline, filling);
    outline = mirror.map(outline);
    filling = mirror.map(filling);
}

void drawToStart(QPainterPath&, QPainterPath& filling)
{
    filling.addRect(2, 3, 2, 10);
    addTriangle(filling, 9, 4);
    addTriangle(filling, 14, 9);
}

void drawBackward(QPainterPath&, QPainterPath& filling)
{
    addTriangle(filling, 8, 2);
    addTriangle(filling, 14, 8);
}

void drawPlay(QPainterPath&, QPainterPath& filling)
{
    addTriangle(filling, 4, 13);
}

void drawPause(QPainterPath&, QPainterPath& filling)
{
    filling.addRect(4, 3, 3, 10);
    filling.addRect(9, 3, 3, 10);
}

void drawForward(QPainterPath&, QPainterPath& filling)
{
    addTriangle(filling, 2, 8);
    addTriangle(filling, 8, 14);
}

void drawToEnd(QPainterPath&, QPainterPath& filling)
{
    addTriangle(filling, 2, 7);
    addTriangle(filling, 7, 12);
    filling.addRect(12, 3, 2, 10);
}

/// In the order of the enumerators.
constexpr std::array drawings{drawSignals,  drawEvents,  drawLevels, drawJobs,    drawBearings,
                              drawReceiver, drawHistory, drawUndo,   drawRedo,    drawToStart,
                              drawBackward, drawPlay,    drawPause,  drawForward, drawToEnd};

class DrawnIconEngine : public QIconEngine
{
public:
    explicit DrawnIconEngine(Icon kind)
        : m_kind(kind)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        const QColor ink = palette.color(group, role);
        QPainterPath outline;
        QPainterPath filling;
        drawings[static_cast<std::size_t>(m_kind)](outline, filling);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / qreal(units), rect.height() / qreal(units));
        painter->fillPath(filling, ink);
        painter->strokePath(outline, QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new DrawnIconEngine(m_kind); }

private:
    Icon m_kind;
};

} // namespace

QIcon makeIcon(Icon kind)
{
    return QIcon(new DrawnIconEngine(kind));
}

} // namespace bandmonitor
