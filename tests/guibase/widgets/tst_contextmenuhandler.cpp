// SPDX-License-Identifier: MIT
#include "menutexts.h"
#include "support/guardedtest.h"

#include <guibase/services/guibase.h>
#include <guibase/widgets/contextmenuhandler.h>

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

class tst_ContextMenuHandler : public GuardedTest
{
    Q_OBJECT
public Q_SLOTS:
    void slotHotKey(int id) { m_firedHotKey = id; }

private Q_SLOTS:
    void opensWhereItIsWanted()
    {
        QWidget panel;
        auto* layout = new QVBoxLayout(&panel);
        ContextMenuRequest seen;
        new ContextMenuHandler(&panel, [&seen](QMenu& menu, const ContextMenuRequest& request) {
            seen = request;
            menu.addAction(u"own"_s);
        });
        // Widgets that come later belong to it, too.
        auto* list = new QListWidget;
        list->addItems({u"a"_s, u"b"_s, u"c"_s});
        auto* text = new QPlainTextEdit(u"one\ntwo"_s);
        auto* label = new QLabel(u"label"_s);
        for (QWidget* widget : QList<QWidget*>{list, text, label})
            layout->addWidget(widget);
        panel.show();

        const QPoint inSecond = list->visualItemRect(list->item(1)).center();
        QCOMPARE(menuTexts(*list->viewport(), inSecond), QStringList(u"own"_s));
        QVERIFY(seen.widget == list && seen.position == inSecond && !seen.isByKeyboard);
        QCOMPARE(seen.index.row(), 1);
        list->setCurrentRow(2);
        QCOMPARE(menuTexts(*list, list->rect().center(), true), QStringList(u"own"_s));
        QCOMPARE(seen.index.row(), 2);
        QVERIFY(list->visualItemRect(list->item(2)).contains(seen.position));
        text->moveCursor(QTextCursor::End);
        const QStringList entries = menuTexts(*text, {}, true);
        QCOMPARE(entries.first(), u"own"_s);
        QVERIFY(entries.size() > 5); // with Undo, Copy, Paste
        QVERIFY(text->cursorRect().adjusted(-1, -1, 1, 1).contains(seen.position));
        menuTexts(*label, QPoint(3, 4));
        QVERIFY(seen.widget == label && seen.position == QPoint(3, 4));
        // A keyboard without a Menu key.
        panel.activateWindow();
        list->setFocus();
        QTRY_VERIFY(list->hasFocus());
        MenuVisitor visitor([&](const QMenu& menu) { QVERIFY(menu.activeAction() != nullptr); });
        QTest::keyClick(list, Qt::Key_F10, Qt::ShiftModifier);
        QTRY_VERIFY(visitor.hasSeenMenu());
        QVERIFY(seen.widget == list && seen.isByKeyboard);
    }
    void leavesRoomForOthers()
    {
        QWidget outer;
        auto* inner = new QWidget(&outer);
        auto* child = new QLabel(inner);
        auto* custom = new QLabel(&outer);
        custom->setContextMenuPolicy(Qt::CustomContextMenu);
        const QSignalSpy asked(custom, &QWidget::customContextMenuRequested);
        bool hasInnerEntries = true;
        new ContextMenuHandler(inner, [&](QMenu& menu, const ContextMenuRequest&) {
            if (hasInnerEntries)
                menu.addAction(u"inner"_s);
        });
        new ContextMenuHandler(
            &outer, [](QMenu& menu, const ContextMenuRequest&) { menu.addAction(u"outer"_s); });
        outer.show();
        QCOMPARE(menuTexts(*child, {}), QStringList(u"inner"_s));
        hasInnerEntries = false;
        QCOMPARE(menuTexts(*child, {}), QStringList(u"outer"_s));
        QContextMenuEvent event(QContextMenuEvent::Mouse, {}, {});
        QCoreApplication::sendEvent(custom, &event);
        QCOMPARE(asked.size(), 1);
        // Filling the menu may take the widget away.
        auto* gone = new QWidget;
        new ContextMenuHandler(gone, [gone](QMenu&, const ContextMenuRequest&) { delete gone; });
        QContextMenuEvent last(QContextMenuEvent::Mouse, {}, {});
        QCoreApplication::sendEvent(gone, &last);
    }
    void runsHotKeys()
    {
        GuiBase& services = GuiBase::Instance();
        const int id = services.AddHotKey(Qt::Key_F7, Qt::ControlModifier, this, u"Scan & go"_s,
                                          u"Test"_s, true, true);
        QMenu menu;
        QAction* entry = ContextMenuHandler::addHotKey(menu, id);
        QCOMPARE(entry->text(), u"Scan && go\tCtrl+F7"_s);
        entry->trigger();
        QTRY_COMPARE(m_firedHotKey, id);
        QVERIFY(ContextMenuHandler::addHotKey(menu, id + 1) == nullptr);
        services.RemoveHotKey(id, true);
    }

private:
    int m_firedHotKey = 0;
};

QTEST_MAIN(tst_ContextMenuHandler)
#include "tst_contextmenuhandler.moc"
