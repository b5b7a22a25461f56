// SPDX-License-Identifier: MIT
#include "drawnicon_p.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr qreal disabledOpacity = 0.4;

class DrawnIconEngine : public QIconEngine
{
public:
    DrawnIconEngine(const QSize& size, const std::function<void(QPainter&)>& draw)
        : m_size(size)
        , m_draw(draw)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        painter->save();
        draw(*painter, rect, 1, mode);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }
    /// The size is that in pixels of the screen, of which `scale` make one of the icon.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        QPixmap pixmap(scale > 1 ? size : actualSize(size, mode, QIcon::Off));
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        draw(painter, pixmap.rect(), scale, mode);
        return pixmap;
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        return m_size.boundedTo(size);
    }
    QIconEngine* clone() const override { return new DrawnIconEngine(m_size, m_draw); }
    bool isNull() override { return false; }

private:
    /// In the middle, as large as the scale asks for and the rectangle has room.
    void draw(QPainter& painter, const QRect& rect, qreal scale, QIcon::Mode mode) const
    {
        const QSizeF wanted = QSizeF(m_size) * scale;
        const QSizeF shown = wanted.scaled(wanted.boundedTo(rect.size()), Qt::KeepAspectRatio);
        const QSizeF margin = (QSizeF(rect.size()) - shown) / 2;
        const qreal factor = shown.width() / m_size.width();
        painter.translate(rect.topLeft() + QPoint(static_cast<int>(margin.width()),
                                                  static_cast<int>(margin.height())));
        painter.scale(factor, factor);
        painter.translate(0.5, 0.5);
        painter.setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled)
            painter.setOpacity(disabledOpacity);
        m_draw(painter);
    }

    QSize m_size;
    std::function<void(QPainter&)> m_draw;
};

} // namespace

QIcon drawnIcon(const QSize& size, const std::function<void(QPainter&)>& draw)
{
    return QIcon(new DrawnIconEngine(size, draw));
}
