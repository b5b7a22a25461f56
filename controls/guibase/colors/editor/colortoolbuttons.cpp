// SPDX-License-Identifier: MIT
#include "colortoolbuttons_p.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygon>
#include <QToolButton>

namespace {

constexpr int buttonSize = 24;

QToolButton* makeButton(const QString& text, const QPixmap& icon, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(text);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFixedSize(buttonSize, buttonSize);
    button->setIconSize(icon.size());
    button->setIcon(icon);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QPixmap emptyPixmap(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

QToolButton* ColorToolButtons::makeOpen(const QString& text, QWidget* parent)
{
    QPixmap icon = emptyPixmap(16, 13);
    QPainter painter(&icon);
    painter.setPen(parent->palette().color(QPalette::WindowText));
    painter.setBrush(QColor(0xff, 0xcc, 0x66));
    painter.drawPolygon(QPolygon({{0, 2}, {5, 2}, {6, 4}, {12, 4}, {12, 12}, {0, 12}}));
    painter.drawPolygon(QPolygon({{3, 6}, {15, 6}, {12, 12}, {0, 12}}));
    painter.end();
    return makeButton(text, icon, parent);
}

QToolButton* ColorToolButtons::makeSave(const QString& text, QWidget* parent)
{
    QPixmap icon = emptyPixmap(14, 14);
    QPainter painter(&icon);
    painter.setPen(parent->palette().color(QPalette::WindowText));
    painter.setBrush(QColor(0x66, 0x99, 0xcc));
    painter.drawRect(0, 0, 13, 13);
    painter.setBrush(Qt::white);
    painter.drawRect(3, 0, 7, 4);
    painter.drawRect(2, 7, 9, 6);
    painter.end();
    return makeButton(text, icon, parent);
}
