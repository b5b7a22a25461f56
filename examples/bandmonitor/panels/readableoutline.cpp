// SPDX-License-Identifier: MIT
#include "panels/readableoutline.h"

#include "model/panenames.h"

#include <radiopanes/colors/contrast.h>

#include <guibase/colors/colorcontrast.h>

#include <QEvent>
#include <QWidget>

namespace bandmonitor {

namespace {

/// The outline that styles make of a window colour.
QColor outlineOf(const QColor& window)
{
    constexpr int styleFactor = 140;
    return window.darker(styleFactor);
}

QColor mixed(const QColor& from, const QColor& to, float share)
{
    const auto mix = [share](float a, float b) { return a + share * (b - a); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

} // namespace

ReadableOutline::ReadableOutline(QWidget* control, QPalette::ColorRole ground)
    : QObject(control)
    , m_control(control)
    , m_ground(ground)
{
    control->installEventFilter(this);
    adapt();
}

ReadableOutline::~ReadableOutline() = default;

bool ReadableOutline::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        adapt();
    return QObject::eventFilter(watched, event);
}

void ReadableOutline::adapt()
{
    const QPalette given = m_control->parentWidget()->palette();
    const QColor ground = given.color(m_ground);
    QColor window = given.color(QPalette::Window);
    // From the window's colour towards that of texts, as far as it takes.
    constexpr float step = 0.1F;
    for (float share = step;
         share <= 1 && ColorContrast::ratio(outlineOf(window), ground) < lineContrast;
         share += step)
        window = mixed(given.color(QPalette::Window), given.color(QPalette::WindowText), share);
    if (m_control->palette().color(QPalette::Window) == window)
        return;
    QPalette adapted;
    adapted.setColor(QPalette::Window, window);
    m_control->setPalette(adapted);
}

} // namespace bandmonitor
