// SPDX-License-Identifier: MIT
#include "widgetplacement.h"

#include "normalsize.h"

#include <guibase/records/geometryrecord.h>
#include <guibase/records/hexadecimal.h>
#include <guibase/records/screenplacement.h>

#include <jtbase/windowsystem.h>

#include <QGuiApplication>
#include <QLayout>
#include <QMargins>
#include <QPointer>
#include <QScreen>
#include <QSplitter>
#include <QString>
#include <QWidget>

#include <algorithm>

namespace {

/// No window manager draws broader frames; more comes from a window that was not shown yet.
constexpr int broadestFrame = 256;

QMargins frameMargins(const QRect& outer, const QRect& inner)
{
    const auto margin = [](int pixels) { return std::clamp(pixels, 0, broadestFrame); };
    return {margin(inner.left() - outer.left()), margin(inner.top() - outer.top()),
            margin(outer.right() - inner.right()), margin(outer.bottom() - inner.bottom())};
}

QList<QRect> screenAreas()
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    QList<QRect> areas;
    for (const QScreen* screen : screens)
        areas.append(screen->availableGeometry());
    return areas;
}

/// The record for the screens of today. The toolkit refuses records from screens of another width,
/// so the width is brought up to date too.
GeometryRecord adapted(GeometryRecord record, const QWidget& window)
{
    const QList<QRect> areas = screenAreas();
    if (record.normal.isEmpty())
        return record;

    QMargins margins = frameMargins(record.frame, record.geometry);
    if (window.isVisible() && record.isNormal())
        margins = margins | frameMargins(window.frameGeometry(), window.geometry());
    const QRect frame = record.normal + margins;
    const QRect reachable = ScreenPlacement::reachable(frame, areas);
    const int home = ScreenPlacement::homeOf(reachable, areas);
    if (home >= 0) {
        record.screen = home;
        if (record.version >= 2)
            record.screenWidth = QGuiApplication::screens().at(home)->geometry().width();
    }
    if (reachable != frame) {
        record.normal = reachable - margins;
        record.frame = reachable;
        record.geometry = record.normal;
    }
    return record;
}

constexpr Qt::WindowStates allLarge = Qt::WindowMaximized | Qt::WindowFullScreen;
constexpr Qt::WindowStates notNormal = allLarge | Qt::WindowMinimized;

/// The size with which the window fits on one of the screens.
QSize fittingSize(const QSize& size)
{
    const QList<QRect> areas = screenAreas();
    const int home = ScreenPlacement::homeOf(QRect(QPoint(0, 0), size), areas);
    return home < 0 ? size : size.boundedTo(areas.at(home).size());
}

/// For window systems where the compositor places windows: only sizes and states come back.
void applySizeAndState(QWidget& window, const QSize& normalSize, Qt::WindowStates large)
{
    const bool wasNormal = !(window.windowState() & notNormal);
    const Qt::WindowStates wanted = (window.windowState() & ~allLarge) | large;
    const QPointer<QWidget> guard(&window);
    if (wasNormal || !window.isVisible())
        NormalSize::resize(window, normalSize);
    if (guard)
        window.setWindowState(wanted);
    if (guard && !wasNormal && !(wanted & notNormal))
        NormalSize::give(window, normalSize);
}

bool isPlacedByParent(QWidget& widget)
{
    QWidget* parent = widget.parentWidget();
    if (widget.isWindow() || parent == nullptr)
        return false;
    const auto* splitter = qobject_cast<QSplitter*>(parent);
    return (splitter != nullptr && splitter->indexOf(&widget) >= 0) ||
           (parent->layout() != nullptr && parent->layout()->indexOf(&widget) >= 0);
}

} // namespace

std::optional<QByteArray> WidgetPlacement::fromText(const QString& text, bool isWindow)
{
    auto bytes = Hexadecimal::decode(text);
    const auto record = bytes ? GeometryRecord::fromBytes(*bytes) : std::nullopt;
    if (!record ||
        (isWindow && std::min(record->normal.width(), record->normal.height()) < smallestWindow))
        return std::nullopt;
    return bytes;
}

QSize WidgetPlacement::apply(QWidget& widget, const QByteArray& bytes)
{
    std::optional<GeometryRecord> record = GeometryRecord::fromBytes(bytes);
    if (!record || isPlacedByParent(widget))
        return {};
    // Child widgets do not always know a normal place.
    if (record->normal.isEmpty())
        record->normal = record->geometry;
    const bool isPlacedHere = !widget.isWindow() || WindowSystem::placesWindows();
    if (widget.isWindow() && isPlacedHere)
        record = adapted(*record, widget);
    const QSize size = record->isNormal() ? record->normal.size() : record->geometry.size();
    const Qt::WindowStates large = (record->maximized ? Qt::WindowMaximized : Qt::WindowNoState) |
                                   (record->fullScreen ? Qt::WindowFullScreen : Qt::WindowNoState);
    // The toolkit would shrink a window that is maximized already, and leave it so.
    if (widget.isVisible() && large && (widget.windowState() & allLarge) == large)
        return size;
    if (!isPlacedHere) {
        applySizeAndState(widget, fittingSize(record->normal.size()), large);
        return large ? size : fittingSize(size);
    }
    const QPointer<QWidget> guard(&widget);
    widget.restoreGeometry(record->toBytes());
    // The toolkit shifts and shrinks windows at the edges of the screen by a title bar's height.
    if (guard && !(widget.windowState() & notNormal) && widget.geometry() != record->normal)
        widget.setGeometry(record->normal);
    return size;
}

QRect WidgetPlacement::reachableGeometry(const QRect& geometry, const QWidget& window)
{
    if (!WindowSystem::placesWindows())
        return {geometry.topLeft(), fittingSize(geometry.size())};
    const QMargins margins = frameMargins(window.frameGeometry(), window.geometry());
    return ScreenPlacement::reachable(geometry + margins, screenAreas()) - margins;
}

void WidgetPlacement::makeReachable(QWidget& window)
{
    if (!WindowSystem::placesWindows() || !window.isWindow() || !window.isVisible() ||
        (window.windowState() & notNormal) ||
        ScreenPlacement::isReachable(window.frameGeometry(), screenAreas()))
        return;
    window.setGeometry(reachableGeometry(window.geometry(), window));
}
