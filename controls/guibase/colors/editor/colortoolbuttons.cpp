// SPDX-License-Identifier: MIT
#include "colortoolbuttons_p.h"

#include <QEvent>
#include <QPainter>
#include <QPixmap>
#include <QPolygon>
#include <QToolButton>

namespace {

constexpr int buttonSize = 24;

/// Draws its icon anew when the palette changes.
class DrawnButton : public QToolButton
{
public:
    using Draw = QPixmap (*)(const QColor& line);
    DrawnButton(Draw draw, QWidget* parent)
        : QToolButton(parent)
        , m_draw(draw)
    {
        drawIcon();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QToolButton::changeEvent(event);
        if (event->type() == QEvent::PaletteChange)
            drawIcon();
    }

private:
    void drawIcon()
    {
        const QPixmap icon = m_draw(palette().color(QPalette::WindowText));
        setIconSize(icon.size());
        setIcon(icon);
    }

    Draw m_draw;
};

QToolButton* makeButton(const QString& text, DrawnButton::Draw draw, QWidget* parent)
{
    auto* button = new DrawnButton(draw, parent);
    button->setObjectName(text);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFixedSize(buttonSize, buttonSize);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QPixmap emptyPixmap(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QPixmap drawOpen(const QColor& line)
{
    QPixmap icon = emptyPixmap(16, 13);
    QPainter painter(&icon);
    painter.setPen(line);
    painter.setBrush(QColor(0xff, 0xcc, 0x66));
    painter.drawPolygon(QPolygon({{0, 2}, {5, 2}, {6, 4}, {12, 4}, {12, 12}, {0, 12}}));
    painter.drawPolygon(QPolygon({{3, 6}, {15, 6}, {12, 12}, {0, 12}}));
    return icon;
}

QPixmap drawSave(const QColor& line)
{
    QPixmap icon = emptyPixmap(14, 14);
    QPainter painter(&icon);
    painter.setPen(line);
    painter.setBrush(QColor(0x66, 0x99, 0xcc));
    painter.drawRect(0, 0, 13, 13);
    painter.setBrush(Qt::white);
    painter.drawRect(3, 0, 7, 4);
    painter.drawRect(2, 7, 9, 6);
    return icon;
}

} // namespace

QToolButton* ColorToolButtons::makeOpen(const QString& text, QWidget* parent)
{
    return makeButton(text, &drawOpen, parent);
}

QToolButton* ColorToolButtons::makeSave(const QString& text, QWidget* parent)
{
    return makeButton(text, &drawSave, parent);
}
