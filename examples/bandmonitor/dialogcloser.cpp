// SPDX-License-Identifier: MIT
#include "dialogcloser.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include <utility>

namespace bandmonitor {

DialogCloser::DialogCloser(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

DialogCloser::~DialogCloser() = default;

bool DialogCloser::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        // Once its event loop runs: before, closing it would have no effect.
        if (auto* dialog = qobject_cast<QDialog*>(watched))
            QTimer::singleShot(0, dialog, [this, dialog] { finish(*dialog); });
    }
    return QObject::eventFilter(watched, event);
}

void DialogCloser::finish(QDialog& dialog)
{
    if (const std::function<void()> use = std::exchange(m_use, nullptr)) {
        use();
    } else {
        const auto* box = qobject_cast<const QMessageBox*>(&dialog);
        const QString text = box != nullptr ? box->text() : QString();
        Q_EMIT closedUnexpectedly(
            tr("Closed unanswered: %1 %2").arg(dialog.windowTitle(), text).simplified());
    }
    dialog.close();
}

} // namespace bandmonitor
