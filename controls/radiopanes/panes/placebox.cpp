// SPDX-License-Identifier: MIT
#include "placebox_p.h"

#include <QPainter>
#include <QWidget>

#include <utility>

namespace RadioPanes {

PlaceBox::PlaceBox(QWidget* pane, PlaceAt placeAt)
    : m_pane(pane)
    , m_placeAt(std::move(placeAt))
{}

QSize PlaceBox::sizeOf(const QWidget& pane, const QString& text)
{
    const QFontMetrics metrics = pane.fontMetrics();
    return {metrics.horizontalAdvance(text) + 2 * margin, metrics.height() + 2 * margin};
}

void PlaceBox::follow(const QPoint& pointer)
{
    m_pointer = pointer;
    refresh();
}

void PlaceBox::hide()
{
    m_pointer.reset();
    refresh();
}

void PlaceBox::refresh()
{
    const auto there = m_pointer && m_placeText ? m_placeAt(*m_pointer) : std::nullopt;
    const QString text = there ? m_placeText(*there) : QString();
    QRect place;
    if (!text.isEmpty()) {
        const QSize size = sizeOf(*m_pane, text);
        const bool isAtLeft = m_pointer->x() > m_pane->width() / 2;
        place = {{isAtLeft ? margin : m_pane->width() - size.width() - margin,
                  m_pane->height() - size.height() - margin},
                 size};
    }
    if (place == m_place && text == m_text)
        return;
    m_pane->update(m_place.united(place));
    m_text = text;
    m_place = place;
}

void PlaceBox::paint(QPainter& painter) const
{
    if (!m_text.isEmpty())
        paint(painter, *m_pane, m_place, m_text);
}

void PlaceBox::paint(QPainter& painter, const QWidget& pane, const QRect& place,
                     const QString& text)
{
    painter.fillRect(place, pane.palette().color(QPalette::Window));
    painter.setPen(pane.palette().color(QPalette::WindowText));
    painter.drawText(place, Qt::AlignCenter, text);
}

} // namespace RadioPanes
