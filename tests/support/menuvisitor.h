// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>

/// Waits for the next pop-up menu, lets the test look at it, and closes it.
class MenuVisitor : public QObject
{
public:
    explicit MenuVisitor(std::function<void(QMenu&)> visit)
        : m_visit(std::move(visit))
    {
        m_timer.callOnTimeout(this, [this] {
            const QPointer<QMenu> menu(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
            if (!menu)
                return;
            m_timer.stop();
            m_visit(*menu);
            if (menu)
                menu->close();
        });
        m_timer.start(1);
        announceKeyboardGrab();
    }
    /// The offscreen platform warns of that whenever a menu pops up.
    static void announceKeyboardGrab()
    {
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
    }

    bool hasSeenMenu() const { return !m_timer.isActive(); }
    static void choose(QMenu& menu, qsizetype entry)
    {
        menu.setActiveAction(menu.actions().at(entry));
        QTest::keyClick(&menu, Qt::Key_Return);
    }

private:
    std::function<void(QMenu&)> m_visit;
    QTimer m_timer;
};
