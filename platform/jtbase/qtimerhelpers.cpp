// SPDX-License-Identifier: MIT
#include "qtimerhelpers.h"

#include <QTimer>

#include <utility>

QTimer* QTimerHelpers::singleShot(int milliseconds, QObject* context, std::function<void()> step)
{
    if (context == nullptr || !step)
        return nullptr;
    auto* timer = new QTimer(context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, call = std::move(step)]() {
        // First, because the step may delete the context and the timer with it.
        timer->deleteLater();
        call();
    });
    timer->start(qMax(0, milliseconds));
    return timer;
}
