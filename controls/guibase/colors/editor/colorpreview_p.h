// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/icolorbase.h>

#include <QWidget>

#include <functional>

/// A small picture of a pane with its axes, drawn in colours that are not accepted yet.
class ColorPreview : public QWidget
{
    Q_OBJECT
public:
    using ColorOf = std::function<QColor(IColorBase::ECOLOR)>;
    ColorPreview(ColorOf colorOf, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintAxes(QPainter& painter, const QRect& pane) const;
    void paintPane(QPainter& painter, const QRect& pane) const;
    void paintCurve(QPainter& painter, const QRect& pane, IColorBase::ECOLOR slot, double level,
                    double peak) const;

    ColorOf m_colorOf;
};
