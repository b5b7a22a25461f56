// SPDX-License-Identifier: MIT
#include "dockicons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPixmapCache>
#include <QPolygonF>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {

/// A square of 16 x 16 units on which pictures are drawn with edges on whole pixels, so that they
/// are crisp in every size.
class IconCanvas
{
public:
    static constexpr int units = 16;

    IconCanvas(QPainter& painter, const QSize& size, const QColor& color)
        : m_painter(painter)
        , m_unit(std::min(size.width(), size.height()) / qreal(units))
        , m_origin((size.width() - m_unit * units) / 2, (size.height() - m_unit * units) / 2)
        , m_color(color)
    {}

    void fill(qreal x, qreal y, qreal width, qreal height)
    {
        m_painter.fillRect(pixels(x, y, width, height), m_color);
    }

    /// The outline of the rectangle, one unit wide, within it.
    void frame(qreal x, qreal y, qreal width, qreal height)
    {
        const QRect outer = pixels(x, y, width, height);
        const int line = std::max(1, qRound(m_unit));
        const QRect inner = outer.adjusted(line, line, -line, -line);
        m_painter.save();
        m_painter.setClipRegion(QRegion(outer) - inner);
        m_painter.fillRect(outer, m_color);
        m_painter.restore();
    }

    /// A polygon with smooth edges.
    void fill(const QList<QPointF>& corners)
    {
        QPolygonF polygon;
        for (const QPointF& corner : corners)
            polygon << m_origin + corner * m_unit;
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_color);
        m_painter.drawPolygon(polygon);
        m_painter.restore();
    }

private:
    QRect pixels(qreal x, qreal y, qreal width, qreal height) const
    {
        const auto snap = [this](qreal origin, qreal at) { return qRound(origin + at * m_unit); };
        const QPoint topLeft(snap(m_origin.x(), x), snap(m_origin.y(), y));
        const QPoint end(snap(m_origin.x(), x + width), snap(m_origin.y(), y + height));
        return QRect(topLeft,
                     QSize(std::max(1, end.x() - topLeft.x()), std::max(1, end.y() - topLeft.y())));
    }

    QPainter& m_painter;
    qreal m_unit;
    QPointF m_origin;
    QColor m_color;
};

/// Where the docks of an area lie in the picture of a window.
constexpr QRect leftSide(3, 3, 6, 10);
constexpr QRect rightSide(7, 3, 6, 10);
constexpr QRect topSide(3, 3, 10, 6);
constexpr QRect bottomSide(3, 7, 10, 6);

/// A window with a stack of tabs on one side.
void drawTabs(IconCanvas& canvas, const QRect& side)
{
    canvas.frame(1, 1, 14, 14);
    const int tab = side.width() / 2 - 1;
    canvas.fill(side.x(), side.y(), tab, 2);
    canvas.fill(side.x() + tab + 1, side.y(), tab, 1);
    canvas.fill(side.x(), side.y() + 2, side.width(), side.height() - 2);
}

/// A window with four tiles on one side.
void drawTiles(IconCanvas& canvas, const QRect& side)
{
    canvas.frame(1, 1, 14, 14);
    const qreal width = (side.width() - 1) / 2.0;
    const qreal height = (side.height() - 1) / 2.0;
    for (const int row : {0, 1}) {
        for (const int column : {0, 1})
            canvas.fill(side.x() + column * (width + 1), side.y() + row * (height + 1), width,
                        height);
    }
}

/// A pin that sticks in the window, or lies: the dock stays, or it does not.
void drawPin(IconCanvas& canvas, bool upright)
{
    const auto part = [&](qreal x, qreal y, qreal width, qreal height) {
        if (upright)
            canvas.fill(x, y, width, height);
        else
            canvas.fill(y, x, height, width);
    };
    part(5, 2, 6, 1);
    part(5, 3, 1, 5);
    part(9, 3, 2, 5);
    part(3, 8, 10, 1);
    part(7.5, 9, 1, 5);
}

/// A mouse pointer that opens a dock at the edge.
void drawPointerAtEdge(IconCanvas& canvas)
{
    canvas.fill(1, 1, 2, 14);
    canvas.fill({{5, 3}, {5, 13}, {7.5, 10.8}, {9, 14}, {10.8, 13.2}, {9.3, 10}, {12.5, 10}});
}

/// A window above another one.
void drawFloat(IconCanvas& canvas)
{
    canvas.frame(6, 2, 8, 8);
    canvas.fill(6, 2, 8, 2);
    canvas.fill(2, 6, 3, 1);
    canvas.fill(2, 6, 1, 8);
    canvas.fill(2, 13, 8, 1);
    canvas.fill(9, 11, 1, 3);
}

/// A part of a window.
void drawDock(IconCanvas& canvas)
{
    canvas.frame(2, 2, 12, 12);
    canvas.fill(2, 2, 5, 12);
}

void drawCross(IconCanvas& canvas)
{
    canvas.fill({{3, 4.4}, {4.4, 3}, {13, 11.6}, {11.6, 13}});
    canvas.fill({{13, 4.4}, {11.6, 3}, {3, 11.6}, {4.4, 13}});
}

void drawMore(IconCanvas& canvas)
{
    for (const qreal x : {2.0, 8.0})
        canvas.fill({{x, 4}, {x + 1.4, 3}, {x + 6, 8}, {x + 1.4, 13}, {x, 12}, {x + 3.6, 8}});
}

struct IconDrawing
{
    DockIcon kind;
    void (*draw)(IconCanvas& canvas);
};

/// One row for each kind, in the order of the enumerators.
constexpr std::array drawings{
    IconDrawing{DockIcon::TabifyLeft, [](IconCanvas& canvas) { drawTabs(canvas, leftSide); }},
    IconDrawing{DockIcon::TabifyRight, [](IconCanvas& canvas) { drawTabs(canvas, rightSide); }},
    IconDrawing{DockIcon::TabifyTop, [](IconCanvas& canvas) { drawTabs(canvas, topSide); }},
    IconDrawing{DockIcon::TabifyBottom, [](IconCanvas& canvas) { drawTabs(canvas, bottomSide); }},
    IconDrawing{DockIcon::TileLeft, [](IconCanvas& canvas) { drawTiles(canvas, leftSide); }},
    IconDrawing{DockIcon::TileRight, [](IconCanvas& canvas) { drawTiles(canvas, rightSide); }},
    IconDrawing{DockIcon::TileTop, [](IconCanvas& canvas) { drawTiles(canvas, topSide); }},
    IconDrawing{DockIcon::TileBottom, [](IconCanvas& canvas) { drawTiles(canvas, bottomSide); }},
    IconDrawing{DockIcon::AutoHideDisabled, [](IconCanvas& canvas) { drawPin(canvas, true); }},
    IconDrawing{DockIcon::AutoHideEnabled, [](IconCanvas& canvas) { drawPin(canvas, false); }},
    IconDrawing{DockIcon::PopupOnHover, drawPointerAtEdge},
    IconDrawing{DockIcon::Float, drawFloat},
    IconDrawing{DockIcon::Dock, drawDock},
    IconDrawing{DockIcon::Close, drawCross},
    IconDrawing{DockIcon::More, drawMore},
};

constexpr bool inEnumeratorOrder()
{
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        if (drawings[i].kind != static_cast<DockIcon>(i))
            return false;
    }
    return true;
}
static_assert(inEnumeratorOrder());

QColor inkOf(QIcon::Mode mode, const QPalette& palette)
{
    if (mode == QIcon::Selected)
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                         QPalette::ButtonText);
}

/// Draws in the text colour of the widget that is painted on, or of the application where that is
/// not known.
class InkIconEngine : public QIconEngine
{
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QPaintDevice* device = painter->device();
        const bool isWidget = device->devType() == QInternal::Widget;
        const QColor ink = inkOf(mode, isWidget ? static_cast<const QWidget*>(device)->palette()
                                                : QGuiApplication::palette());
        const qreal ratio = device->devicePixelRatioF();
        QPixmap picture = drawn((QSizeF(rect.size()) * ratio).toSize(), state, ink);
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), picture);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return drawn(size, state, inkOf(mode, QGuiApplication::palette()));
    }
    bool isNull() override { return false; }

protected:
    virtual QPixmap drawn(const QSize& size, QIcon::State state, const QColor& ink) = 0;
};

class DockIconEngine : public InkIconEngine
{
public:
    DockIconEngine(DockIcon off, DockIcon on)
        : m_off(off)
        , m_on(on)
    {}
    QIconEngine* clone() const override { return new DockIconEngine(m_off, m_on); }
    QString key() const override { return QStringLiteral("DockIcon"); }

protected:
    QPixmap drawn(const QSize& size, QIcon::State state, const QColor& ink) override
    {
        if (size.isEmpty())
            return {};
        const DockIcon kind = state == QIcon::On ? m_on : m_off;
        const auto character = [](auto value) { return QChar(static_cast<char16_t>(value)); };
        const QString cacheKey = QStringLiteral("GuiBase_DockIcon_") + character(kind) +
                                 character(size.width()) + character(size.height()) +
                                 character(ink.rgba() >> 16) + character(ink.rgba());
        QPixmap picture;
        if (QPixmapCache::find(cacheKey, &picture))
            return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        IconCanvas canvas(painter, size, ink);
        drawings[static_cast<std::size_t>(kind)].draw(canvas);
        painter.end();
        QPixmapCache::insert(cacheKey, picture);
        return picture;
    }

private:
    DockIcon m_off;
    DockIcon m_on;
};

class TintedIconEngine : public InkIconEngine
{
public:
    explicit TintedIconEngine(const QIcon& shape)
        : m_shape(shape)
    {}
    QIconEngine* clone() const override { return new TintedIconEngine(m_shape); }
    QString key() const override { return QStringLiteral("TintedIcon"); }

protected:
    QPixmap drawn(const QSize& size, QIcon::State state, const QColor& ink) override
    {
        const QPixmap shape = m_shape.pixmap(size, 1.0, QIcon::Normal, state);
        if (shape.isNull() || size.isEmpty())
            return {};
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.drawPixmap((size.width() - shape.width()) / 2, (size.height() - shape.height()) / 2,
                           shape);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), ink);
        painter.end();
        return picture;
    }

private:
    QIcon m_shape;
};

} // namespace

QIcon makeDockIcon(DockIcon kind)
{
    return makeDockIcon(kind, kind);
}

QIcon makeDockIcon(DockIcon off, DockIcon on)
{
    return QIcon(new DockIconEngine(off, on));
}

QIcon makeTintedIcon(const QIcon& shape)
{
    return QIcon(new TintedIconEngine(shape));
}
