// SPDX-License-Identifier: MIT
#include "repeatedrows_p.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <cstring>

namespace RadioPanes {

namespace {

/// The image that the painter fills pixel by pixel, as it is told; null when there is none, or
/// when something would change the pixels on their way.
QImage* canvasOf(const QPainter& painter)
{
    const QPaintEngine* engine = painter.paintEngine();
    if (engine->type() != QPaintEngine::Raster || painter.hasClipping() || painter.opacity() < 1 ||
        painter.compositionMode() != QPainter::CompositionMode_SourceOver)
        return nullptr;
    const QTransform& transform = painter.deviceTransform();
    if (transform != QTransform::fromTranslate(qRound(transform.dx()), qRound(transform.dy())))
        return nullptr;
    auto* canvas = dynamic_cast<QImage*>(engine->paintDevice());
    const bool isPlain =
        canvas != nullptr && (canvas->format() == QImage::Format_RGB32 ||
                              canvas->format() == QImage::Format_ARGB32_Premultiplied);
    return isPlain ? canvas : nullptr;
}

/// Copies what is in the part of the canvas; the first row would come to the canvas at `place`.
void copyRows(QImage& canvas, const QRect& part, const QPoint& place, const ImageRows& rows,
              int times)
{
    constexpr auto pixel = qsizetype{sizeof(QRgb)};
    const auto size = static_cast<std::size_t>(part.width() * pixel);
    const qsizetype fromStride = rows.image.bytesPerLine();
    const qsizetype toStride = canvas.bytesPerLine();
    const int above = part.top() - place.y();
    const uchar* from = rows.image.constBits() + (rows.first + above / times) * fromStride +
                        (part.left() - place.x()) * pixel;
    uchar* to = canvas.bits() + part.top() * toStride + part.left() * pixel;
    int left = times - above % times; // of the row
    for (int y = part.top(); y <= part.bottom(); ++y, to += toStride) {
        std::memcpy(to, from, size);
        if (--left == 0) {
            from += fromStride;
            left = times;
        }
    }
}

} // namespace

void drawRepeatedRows(QPainter& painter, const QPoint& place, const ImageRows& rows, int times)
{
    if (rows.count <= 0)
        return;
    const QRect target(place, QSize(rows.image.width(), rows.count * times));
    QImage* canvas = canvasOf(painter);
    if (canvas == nullptr) {
        painter.drawImage(target, rows.image, QRect(0, rows.first, rows.image.width(), rows.count));
        return;
    }
    const QRect placed = painter.deviceTransform().mapRect(target);
    const QRegion clip = painter.paintEngine()->systemClip();
    const QRegion visible =
        (clip.isEmpty() ? QRegion(canvas->rect()) : clip & canvas->rect()) & placed;
    for (const QRect& part : visible)
        copyRows(*canvas, part, placed.topLeft(), rows, times);
}

} // namespace RadioPanes
