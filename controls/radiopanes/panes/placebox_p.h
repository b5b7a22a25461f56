// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

class QPainter;
class QWidget;

namespace RadioPanes {

/// A line of text in a lower corner of a pane, on the side where the mouse pointer is not.
class PlaceBox
{
public:
    explicit PlaceBox(QWidget* pane)
        : m_pane(pane)
    {}

    /// No box for an empty text. Repaints what changes.
    void show(const QString& text, const QPoint& pointer);
    void hide() { show({}, {}); }
    void paint(QPainter& painter) const;

    static constexpr int margin = 4;
    /// The size of a box with the text.
    static QSize sizeOf(const QWidget& pane, const QString& text);
    static void paint(QPainter& painter, const QWidget& pane, const QRect& place,
                      const QString& text);

private:
    QWidget* m_pane;
    QString m_text;
    QRect m_place;
};

} // namespace RadioPanes
