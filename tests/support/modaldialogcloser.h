// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>

/// Waits for the next modal dialog, lets the test look at it, and closes it if it is still there.
class ModalDialogCloser : public QObject
{
public:
    explicit ModalDialogCloser(std::function<void(QDialog&)> look)
        : m_look(std::move(look))
    {
        m_timer.callOnTimeout(this, [this] {
            const QPointer dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            m_timer.stop();
            m_look(*dialog);
            if (dialog != nullptr && dialog->isVisible())
                dialog->reject();
        });
        m_timer.start(1);
    }

    bool hasSeenDialog() const { return !m_timer.isActive(); }

private:
    std::function<void(QDialog&)> m_look;
    QTimer m_timer;
};
