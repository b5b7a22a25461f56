// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"
#include "support/testguard.h"

#include <guibase/services/guibase.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

#include <memory>

class HotKeyReceiver : public QObject
{
    Q_OBJECT
public:
    QList<int> ids;

public Q_SLOTS:
    void slotHotKey(int id) { ids << id; }
};

class tst_HotKeys : public GuardedTest
{
    Q_OBJECT
    using Matches = TestRows<Qt::Key, int, bool, int, QEvent::Type, bool, bool, bool>;

private Q_SLOTS:
    void initTestCase()
    {
        const TestGuard guard;
        m_services = &GuiBase::Instance();
        m_services->SetApplication(qApp);
    }
    // The first function: hot keys stay registered until the process ends.
    void emptyOverview()
    {
        const ModalDialogCloser closer([](const QDialog& dialog) {
            QCOMPARE(dynamic_cast<const QMessageBox&>(dialog).text(),
                     QStringLiteral("No Hotkeys applied"));
        });
        m_services->slotShowHotKeysInMenu();
        QVERIFY(closer.hasSeenDialog());
    }
    void matching_data()
    {
        // The hot key, the event, whether it fires and whether it is consumed.
        Matches row;
        const auto press = QEvent::KeyPress, release = QEvent::KeyRelease;
        const int ctrl = Qt::ControlModifier, pad = Qt::KeypadModifier, shift = Qt::ShiftModifier;
        row("press", Qt::Key_A, ctrl, true, ctrl, press, false, true, false);
        row("held", Qt::Key_B, ctrl, true, ctrl, press, true, true, false);
        row("press, on release", Qt::Key_C, ctrl, false, ctrl, press, false, false, false);
        row("release", Qt::Key_D, ctrl, false, ctrl, release, false, true, false);
        row("repeated release", Qt::Key_E, ctrl, false, ctrl, release, true, false, false);
        row("release, on press", Qt::Key_F, ctrl, true, ctrl, release, false, false, false);
        row("more modifiers", Qt::Key_G, ctrl, true, ctrl | shift, press, false, false, false);
        row("fewer modifiers", Qt::Key_H, ctrl | shift, true, ctrl, press, false, false, false);
        row("on the keypad", Qt::Key_5, ctrl, true, ctrl | pad, press, false, true, false);
        row("not on the keypad", Qt::Key_6, ctrl | pad, true, ctrl, press, false, false, false);
        row("F10", Qt::Key_F10, 0, true, 0, press, false, true, true);
        row("F12", Qt::Key_F12, 0, false, 0, release, false, true, true);
        row("F10, no match", Qt::Key_F10, shift, true, ctrl, press, false, false, false);
        row("F9", Qt::Key_F9, 0, true, 0, press, false, true, false);
    }
    void matching()
    {
        const auto& [key, modifiers, onPress, with, type, repeat, fires, consumed] =
            Matches::fetch();
        const int id = add(key, modifiers, nullptr, onPress);
        QSignalSpy fired(m_services, &GuiBase::signalHotKey);
        QKeyEvent event(type, key, Qt::KeyboardModifiers(with), QString(), repeat);
        QCOMPARE(m_services->handleHotKeyEvent(qApp, &event), consumed);
        QCOMPARE(fired.contains(QList<QVariant>{id}), fires);
    }
    void receivers()
    {
        QObject withoutSlot;
        HotKeyReceiver receiver;
        auto dying = std::make_unique<HotKeyReceiver>();
        add(Qt::Key_F3, 0, &withoutSlot);
        const int first = add(Qt::Key_F3, 0, &receiver);
        const int second = add(Qt::Key_F3, 0, &receiver);
        const int last = add(Qt::Key_F3, 0, dying.get());
        QSignalSpy fired(m_services, &GuiBase::signalHotKey);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_F3, Qt::NoModifier);
        m_services->handleHotKeyEvent(qApp, &press);
        dying.reset();
        QVERIFY(receiver.ids.isEmpty());
        QTRY_COMPARE(receiver.ids, QList<int>({first - 1, first, second, last}));
        QCOMPARE(fired.count(), 4);
        QCOMPARE(fired.last().first().toInt(), last);
    }
    /// The toolkit delivers an ignored key to the label, then to the boxes around it.
    void oneKeyFiresOnce()
    {
        QWidget window;
        auto* box = new QWidget(&window);
        auto* label = new QLabel(box);
        label->setFocusPolicy(Qt::StrongFocus);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        label->setFocus();
        const QVariantList id{add(Qt::Key_F6, 0)};
        QSignalSpy fired(m_services, &GuiBase::signalHotKey);
        for (int time = 1; time <= 3; ++time) {
            QTest::keyClick(window.windowHandle(), Qt::Key_F6);
            QTest::keyClick(label, Qt::Key_F6);
            QCOMPARE(fired.count(id), 2 * time);
        }
        int questions = 0;
        connect(m_services, &GuiBase::hotkey_ESC_pressed, &window, [&questions] {
            ++questions;
            QMessageBox question;
            QTimer::singleShot(0, &question, [&] { QTest::keyClick(&question, Qt::Key_Escape); });
            question.exec();
        });
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        QCOMPARE(questions, 1);
    }
    void keysDuringHandlingAreNotExamined()
    {
        add(Qt::Key_F7, 0);
        QWidget widget;
        int calls = 0;
        QObject context;
        connect(m_services, &GuiBase::signalHotKey, &context, [&] {
            ++calls;
            QTest::keyClick(&widget, Qt::Key_F7);
            add(Qt::Key_F8, 0);
        });
        QTest::keyClick(&widget, Qt::Key_F7);
        QCOMPARE(calls, 1);
    }
    void escape()
    {
        QSignalSpy escapes(m_services, &GuiBase::hotkey_ESC_pressed);
        QWidget widget;
        QTest::keyPress(&widget, Qt::Key_Escape, Qt::ShiftModifier);
        QCOMPARE(escapes.count(), 0);
        QTest::keyPress(&widget, Qt::Key_Escape);
        QTest::keyRelease(&widget, Qt::Key_Escape);
        QCOMPARE(escapes.count(), 1);
    }
    /// Removing by key only hides; by id it disables too; ids stay.
    void lookupAndRemoval()
    {
        const int ctrl = Qt::ControlModifier;
        HotKeyReceiver receiver;
        const int first = add(Qt::Key_L, ctrl, &receiver, true, QStringLiteral("one"));
        const int second = add(Qt::Key_L, ctrl, nullptr, true, QStringLiteral("two"));
        QCOMPARE(m_services->GetIndex4HotKey(Qt::Key_L, ctrl), first);
        QCOMPARE(m_services->RemoveHotKey(Qt::Key_L, ctrl), 2);
        QCOMPARE(m_services->GetIndex4HotKey(Qt::Key_L, ctrl), first);
        QVERIFY(overviewRows(QStringLiteral("L")).isEmpty());
        m_services->RemoveHotKey(first, false);
        QCOMPARE(overviewRows(QStringLiteral("L")), QStringList(QStringLiteral("one")));
        m_services->EnableHotKey(first, false);
        QCOMPARE(m_services->GetIndex4HotKey(Qt::Key_L, ctrl), second);
        QVERIFY(overviewRows(QStringLiteral("L")).isEmpty());
        QCOMPARE(m_services->GetHotKeyComment(first), QStringLiteral("one"));
        QCOMPARE(m_services->GetHotKeyScope(first), QStringLiteral("Test"));
        m_services->RemoveHotKey(second, true);
        QCOMPARE(m_services->GetIndex4HotKey(Qt::Key_L, ctrl), -1);
        for (const int nobody : {-1, 0, 1 << 30}) {
            m_services->RemoveHotKey(nobody, true);
            m_services->EnableHotKey(nobody, true);
            QVERIFY(m_services->GetHotKeyComment(nobody).isNull());
        }

        // A receiver that was removed is called no more, and once again after it comes back.
        m_services->EnableHotKey(first, true);
        m_services->RemoveHotKeyReceiver(&receiver);
        QWidget widget;
        QTest::keyClick(&widget, Qt::Key_L, Qt::ControlModifier);
        const int third = add(Qt::Key_M, ctrl, &receiver);
        QTest::keyClick(&widget, Qt::Key_M, Qt::ControlModifier);
        QTRY_COMPARE(receiver.ids, QList<int>{third});
    }
    /// A key without a code is no hot key, although events with it exist.
    void unknownKeys()
    {
        QSignalSpy fired(m_services, &GuiBase::signalHotKey);
        for (const Qt::Key key : {Qt::Key(0), Qt::Key_unknown}) {
            add(key, 0);
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            m_services->handleHotKeyEvent(qApp, &press);
        }
        QVERIFY(fired.isEmpty());
    }
    void overview()
    {
        const QString comment(150, QLatin1Char('c'));
        QAction action(QStringLiteral("&Search && ") + comment);
        action.setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Insert);
        QAction withoutShortcut(QStringLiteral("Nothing"));
        for (QAction* each : {&action, &action, &withoutShortcut, static_cast<QAction*>(nullptr)})
            m_services->ShowHotKeyFrom(each, QStringLiteral("Lists"));
        add(Qt::Key_Insert, Qt::AltModifier, nullptr, true, QStringLiteral("hidden"), false);

        QSignalSpy fired(m_services, &GuiBase::signalHotKey);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Insert, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!m_services->handleHotKeyEvent(qApp, &press));
        QCOMPARE(fired.count(), 0);

        QWidget parent;
        const ModalDialogCloser closer([&](const QDialog& dialog) {
            QCOMPARE(dialog.findChild<QTabWidget*>()->tabText(0), QStringLiteral("&Hotkeys"));
            const auto* list = dialog.findChild<QTreeWidget*>(QStringLiteral("HotKeysCtrl"));
            const auto rows = list->findItems(QStringLiteral("Insert"), Qt::MatchExactly);
            QCOMPARE(rows.size(), 1);
            QStringList texts;
            for (int column = 0; column < list->columnCount(); ++column)
                texts << rows.first()->text(column);
            QCOMPARE(texts.join(QLatin1Char('|')),
                     QStringLiteral("Insert|X| |X|Lists|Search & ") + comment);
            // The comment is not cut off where the screen has room for it.
            const int width = dialog.fontMetrics().horizontalAdvance(comment);
            QVERIFY(dialog.width() >= std::min(width, dialog.screen()->size().width() - 100));
            QVERIFY(dialog.screen()->availableGeometry().width() >= dialog.width());
        });
        m_services->ExecHotKeysDialog(&parent);
        QVERIFY(closer.hasSeenDialog());
    }

private:
    /// The comments of the rows for this key.
    QStringList overviewRows(const QString& key)
    {
        const std::unique_ptr<QWidget> widget(m_services->GetHotkeysCtrl(nullptr));
        QStringList comments;
        for (const QTreeWidgetItem* row :
             qobject_cast<QTreeWidget*>(widget.get())->findItems(key, Qt::MatchExactly))
            comments << row->text(5);
        return comments;
    }
    int add(Qt::Key key, int modifiers, QObject* receiver = nullptr, bool onPress = true,
            const QString& comment = {}, bool listed = true)
    {
        return m_services->AddHotKey(key, modifiers, receiver, comment, QStringLiteral("Test"),
                                     onPress, listed);
    }

    GuiBase* m_services = nullptr;
};

QTEST_MAIN(tst_HotKeys)
#include "tst_hotkeys.moc"
