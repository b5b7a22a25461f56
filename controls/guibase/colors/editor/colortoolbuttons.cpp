// SPDX-License-Identifier: MIT
#include "colortoolbuttons_p.h"

#include "drawnicon_p.h"

#include <QEvent>
#include <QPainter>
#include <QPolygon>
#include <QToolButton>

namespace {

constexpr int buttonSize = 24;

/// Draws its icon anew when the palette changes.
class DrawnButton : public QToolButton
{
public:
    using Draw = void (*)(QPainter& painter);
    DrawnButton(const QSize& size, Draw draw, QWidget* parent)
        : QToolButton(parent)
        , m_draw(draw)
    {
        setIconSize(size);
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
        const QColor line = palette().color(QPalette::WindowText);
        setIcon(drawnIcon(iconSize(), [line, draw = m_draw](QPainter& painter) {
            painter.setPen(line);
            draw(painter);
        }));
    }

    Draw m_draw;
};

QToolButton* makeButton(const QString& text, const QSize& size, DrawnButton::Draw draw,
                        QWidget* parent)
{
    auto* button = new DrawnButton(size, draw, parent);
    button->setObjectName(text);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFixedSize(buttonSize, buttonSize);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void drawOpen(QPainter& painter)
{
    painter.setBrush(QColor(0xff, 0xcc, 0x66));
    painter.drawPolygon(QPolygon({{0, 2}, {5, 2}, {6, 4}, {12, 4}, {12, 12}, {0, 12}}));
    painter.drawPolygon(QPolygon({{3, 6}, {15, 6}, {12, 12}, {0, 12}}));
}

void drawSave(QPainter& painter)
{
    painter.setBrush(QColor(0x66, 0x99, 0xcc));
    painter.drawRect(0, 0, 13, 13);
    painter.setBrush(Qt::white);
    painter.drawRect(3, 0, 7, 4);
    painter.drawRect(2, 7, 9, 6);
}

} // namespace

QToolButton* ColorToolButtons::makeOpen(const QString& text, QWidget* parent)
{
    return makeButton(text, {16, 13}, &drawOpen, parent);
}

QToolButton* ColorToolButtons::makeSave(const QString& text, QWidget* parent)
{
    return makeButton(text, {14, 14}, &drawSave, parent);
}
