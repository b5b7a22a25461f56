// SPDX-License-Identifier: MIT
#include "traypicture_p.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace {

constexpr int sides[] = {16, 22, 24, 32, 48, 64, 128}; // pixels

// The badge is laid out in a square of this side.
constexpr qreal extent = 16;
constexpr QRectF badgeFrame(0, 0, extent, extent);

constexpr QColor grey(0x5f, 0x63, 0x68);
constexpr QColor green(0x1e, 0x8e, 0x3e);
constexpr QColor amber(0xf9, 0xab, 0x00);
constexpr QColor red(0xc5, 0x22, 0x1f);
constexpr QColor ink(0x20, 0x21, 0x24);

void drawIdle(QPainter& painter)
{
    painter.setPen(QPen(grey, 3.5));
    painter.setBrush(Qt::white);
    painter.drawEllipse(badgeFrame.adjusted(3, 3, -3, -3));
}

void drawRunning(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(green);
    painter.drawEllipse(badgeFrame);
    painter.setBrush(Qt::white);
    painter.drawPolygon(QPolygonF({{5.5, 3.5}, {13, 8}, {5.5, 12.5}}));
}

void drawWarning(QPainter& painter)
{
    painter.setPen(QPen(amber, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(amber);
    painter.drawPolygon(QPolygonF({{8, 1.5}, {15, 14.5}, {1, 14.5}}));
    painter.setPen(QPen(ink, 2.2, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(8, 4.5), QPointF(8, 10));
    painter.drawLine(QPointF(8, 11.5), QPointF(8, 13.7));
}

void drawFault(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(red);
    painter.drawRoundedRect(badgeFrame, 3, 3);
    painter.setPen(QPen(Qt::white, 2.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(4.5, 4.5), QPointF(11.5, 11.5));
    painter.drawLine(QPointF(4.5, 11.5), QPointF(11.5, 4.5));
}

void drawBadge(QPainter& painter, TrayState state)
{
    switch (state) {
    case TrayState::Idle:
        return drawIdle(painter);
    case TrayState::Running:
        return drawRunning(painter);
    case TrayState::Warning:
        return drawWarning(painter);
    case TrayState::Fault:
        return drawFault(painter);
    }
}

/// Waves that leave an aerial, for applications without an icon.
void drawPlainIcon(QPainter& painter, int side)
{
    painter.save();
    painter.scale(side / 32.0, side / 32.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x2a, 0x7f, 0xb8));
    painter.drawRoundedRect(QRectF(1, 1, 30, 30), 6, 6);
    painter.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    for (const qreal radius : {4.5, 9.0}) {
        const QRectF circle(16 - radius, 12 - radius, 2 * radius, 2 * radius);
        for (const int startAngle : {-45 * 16, 135 * 16})
            painter.drawArc(circle, startAngle, 90 * 16);
    }
    painter.drawLine(QPointF(16, 12), QPointF(16, 26));
    painter.restore();
}

QPixmap makePixmap(const QIcon& icon, TrayState state, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPixmap base = icon.pixmap(QSize(side, side), 1.0);
    if (base.isNull()) {
        drawPlainIcon(painter, side);
    } else {
        QRect place(QPoint(), base.size().scaled(side, side, Qt::KeepAspectRatio));
        place.moveCenter(pixmap.rect().center());
        painter.drawPixmap(place, base);
    }

    const qreal badgeSide = side * (side < 32 ? 0.58 : 0.5);
    const qreal gap = qMax(1.0, side / 24.0);
    painter.translate(side - badgeSide, side - badgeSide);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.drawRoundedRect(QRectF(-gap, -gap, side, side), badgeSide / 4, badgeSide / 4);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.scale(badgeSide / extent, badgeSide / extent);
    drawBadge(painter, state);
    return pixmap;
}

} // namespace

QIcon TrayPicture::make(const QIcon& icon, TrayState state)
{
    QIcon result;
    for (const int side : sides)
        result.addPixmap(makePixmap(icon, state, side));
    return result;
}
