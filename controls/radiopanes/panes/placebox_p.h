// SPDX-License-Identifier: MIT
#pragma once

#include "historyplace.h"

#include <QRect>

#include <functional>
#include <optional>
#include <utility>

class QPainter;
class QWidget;

namespace RadioPanes {

/// Tells what is below the mouse pointer: a line of text in a lower corner of a pane, on the side
/// where the pointer is not.
class PlaceBox
{
public:
    /// What is shown there in the pane; nothing where there is no box.
    using PlaceAt = std::function<std::optional<HistoryPlace>(const QPoint& position)>;

    PlaceBox(QWidget* pane, PlaceAt placeAt);

    /// No box without it.
    void setText(PlaceText text) { m_placeText = std::move(text); }
    void follow(const QPoint& pointer);
    void hide();
    /// To be called when the pane shows something else at the same place.
    void refresh();
    void paint(QPainter& painter) const;

    static constexpr int margin = 4;
    /// The size of a box with the text.
    static QSize sizeOf(const QWidget& pane, const QString& text);
    static void paint(QPainter& painter, const QWidget& pane, const QRect& place,
                      const QString& text);

private:
    QWidget* m_pane;
    PlaceAt m_placeAt;
    PlaceText m_placeText;
    std::optional<QPoint> m_pointer; ///< Nothing as long as it is not in the pane.
    QString m_text;
    QRect m_place;
};

} // namespace RadioPanes
