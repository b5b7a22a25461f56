// SPDX-License-Identifier: MIT
#include "firstframe.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace bandmonitor {

namespace {
constexpr int longestWait = 300; // in milliseconds
}

FirstFrame::FirstFrame(QWidget& window, std::function<void()> perform)
    : QObject(&window)
    , m_perform(std::move(perform))
{
    window.installEventFilter(this);
    QTimer::singleShot(longestWait, this, [this] { finish(); });
}

FirstFrame::~FirstFrame() = default;

bool FirstFrame::eventFilter(QObject* watched, QEvent* event)
{
    // The frame is on the screen when the event loop comes round again.
    if (event->type() == QEvent::Paint)
        QTimer::singleShot(0, this, [this] { finish(); });
    return QObject::eventFilter(watched, event);
}

void FirstFrame::finish()
{
    deleteLater();
    if (const std::function<void()> perform = std::exchange(m_perform, nullptr))
        perform();
}

} // namespace bandmonitor
