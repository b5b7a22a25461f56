// SPDX-License-Identifier: MIT
#include "designericons.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <array>

namespace {

constexpr int extent = 24; // the picture is laid out on so many units
constexpr QColor line(0x50, 0x58, 0x60);
constexpr QColor paper(0xfa, 0xfa, 0xf5);
constexpr QColor accent(0x2a, 0x7f, 0xb8);

void frame(QPainter& painter, const QRectF& rect)
{
    painter.setPen(QPen(line, 1));
    painter.setBrush(paper);
    painter.drawRoundedRect(rect, 2, 2);
}

void arrow(QPainter& painter, QPointF tip, qreal height)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(line);
    painter.drawPolygon(
        QPolygonF({tip, tip + QPointF(-2.5, -height), tip + QPointF(2.5, -height)}));
}

void drawField(QPainter& painter, bool isSpinBox)
{
    frame(painter, {1.5, 5.5, 21, 13});
    if (isSpinBox)
        arrow(painter, {19.5, 7.5}, -3);
    arrow(painter, {19.5, isSpinBox ? 16.5 : 14}, isSpinBox ? 3 : 4);
}

void drawColors(QPainter& painter)
{
    drawField(painter, false);
    const std::array<QColor, 3> colors{QColor(0xc8, 0x3c, 0x32), QColor(0x3c, 0x96, 0x46), accent};
    for (std::size_t i = 0; i < colors.size(); ++i)
        painter.fillRect(QRectF(4 + 4.0 * double(i), 8, 4, 8), colors[i]);
}

void drawSlider(QPainter& painter)
{
    painter.fillRect(QRectF(2, 11, 20, 2), line);
    frame(painter, {13.5, 6.5, 5, 11});
    painter.fillRect(QRectF(15.5, 8, 1, 8), accent);
}

void drawDial(QPainter& painter)
{
    painter.setPen(QPen(line, 1.5));
    painter.setBrush(paper);
    painter.drawEllipse(QRectF(4, 4, 16, 16));
    painter.setPen(QPen(accent, 2));
    painter.drawLine(QPointF(12, 12), QPointF(16, 7));
}

void drawColorCircle(QPainter& painter)
{
    QConicalGradient hues(12, 12, 0);
    for (int sixth = 0; sixth <= 6; ++sixth)
        hues.setColorAt(sixth / 6.0, QColor::fromHsv(sixth % 6 * 60, 255, 230));
    painter.setPen(QPen(hues, 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(4, 4, 16, 16));
    painter.fillRect(QRectF(9, 9, 6, 6), accent);
}

void drawRows(QPainter& painter, bool withColumns)
{
    frame(painter, {2.5, 2.5, 19, 19});
    painter.fillRect(QRectF(3, 3, 18, 4), accent);
    painter.setPen(QPen(line, 1));
    for (const qreal y : {11.5, 16.5})
        painter.drawLine(QPointF(withColumns ? 3 : 6, y), QPointF(withColumns ? 21 : 18, y));
    if (withColumns)
        painter.drawLine(QPointF(12, 7), QPointF(12, 21));
    else
        arrow(painter, {17.5, 6.5}, 3);
}

void drawSplitter(QPainter& painter)
{
    frame(painter, {2.5, 4.5, 8, 15});
    frame(painter, {13.5, 4.5, 8, 15});
    painter.setPen(QPen(accent, 2));
    painter.drawLine(QPointF(12, 3), QPointF(12, 21));
}

void drawDock(QPainter& painter)
{
    frame(painter, {2.5, 3.5, 19, 17});
    painter.fillRect(QRectF(3, 4, 18, 5), accent);
    painter.fillRect(QRectF(13, 5.5, 2, 2), paper);
    painter.fillRect(QRectF(17, 5.5, 2, 2), paper);
}

void drawTabs(QPainter& painter)
{
    frame(painter, {2.5, 8.5, 19, 12});
    frame(painter, {10.5, 4.5, 8, 4});
    painter.fillRect(QRectF(3, 4, 8, 5), accent);
}

void drawBusy(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.translate(12, 12);
    for (int dot = 0; dot < 8; ++dot) {
        QColor color(accent);
        color.setAlphaF(0.2F + 0.1F * float(dot));
        painter.setBrush(color);
        painter.drawEllipse(QPointF(0, -8), 2, 2);
        painter.rotate(45);
    }
    painter.translate(-12, -12);
}

void drawSpectrum(QPainter& painter)
{
    painter.fillRect(QRectF(2, 2, 20, 20), QColor(0x10, 0x1c, 0x28));
    QPainterPath curve({2, 11});
    for (const QPointF& point : {QPointF(6, 10), QPointF(9, 4), QPointF(11, 10), QPointF(15, 9),
                                 QPointF(17, 6), QPointF(19, 10), QPointF(22, 11)})
        curve.lineTo(point);
    painter.setPen(QPen(QColor(0x78, 0xdc, 0x78), 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(curve);
    for (int y = 13; y < 22; y += 2)
        painter.fillRect(QRectF(8, y, 2, 1), QColor(0xf0, 0xc8, 0x3c));
}

void drawRose(QPainter& painter)
{
    painter.setPen(QPen(line, 1));
    painter.setBrush(paper);
    painter.drawEllipse(QRectF(2.5, 2.5, 19, 19));
    painter.setPen(QPen(accent, 1.5));
    painter.drawLine(QPointF(12, 12), QPointF(17.5, 5.5));
    painter.setPen(QPen(line, 1));
    painter.drawLine(QPointF(12, 3), QPointF(12, 6));
}

void draw(QPainter& painter, DesignerPicture picture)
{
    switch (picture) {
    case DesignerPicture::SpinBox:
    case DesignerPicture::ComboBox:
        return drawField(painter, picture == DesignerPicture::SpinBox);
    case DesignerPicture::Field:
        return frame(painter, {1.5, 5.5, 21, 13});
    case DesignerPicture::Slider:
        return drawSlider(painter);
    case DesignerPicture::Dial:
        return drawDial(painter);
    case DesignerPicture::ColorCircle:
        return drawColorCircle(painter);
    case DesignerPicture::Colors:
        return drawColors(painter);
    case DesignerPicture::List:
    case DesignerPicture::Table:
        return drawRows(painter, picture == DesignerPicture::Table);
    case DesignerPicture::Splitter:
        return drawSplitter(painter);
    case DesignerPicture::Dock:
        return drawDock(painter);
    case DesignerPicture::Tabs:
        return drawTabs(painter);
    case DesignerPicture::Busy:
        return drawBusy(painter);
    case DesignerPicture::Spectrum:
        return drawSpectrum(painter);
    case DesignerPicture::Rose:
        return drawRose(painter);
    }
}

} // namespace

QIcon makeDesignerIcon(DesignerPicture picture, const QString& badge)
{
    QIcon icon;
    for (const int scale : {1, 2}) {
        QPixmap pixmap(extent * scale, extent * scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        draw(painter, picture);
        QFont font(painter.font());
        font.setPixelSize(badge.size() > 2 ? 7 : 9);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(accent);
        painter.drawText(QRectF(2, 6, 15, 12), Qt::AlignCenter, badge);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
