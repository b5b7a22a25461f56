// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/menuvisitor.h"

#include <guibase/lists/iupdatemenu.h>
#include <guibase/lists/resortpopupmenu.h>

#include <memory>

namespace {

/// The ids of the entries, "-" for a separator and "?" for an entry without id.
QString layout(const QMenu& menu)
{
    QStringList ids;
    for (const QAction* entry : menu.actions()) {
        bool isNumber = false;
        const int id = entry->data().toInt(&isNumber);
        ids << (entry->isSeparator() ? QStringLiteral("-")
                : isNumber           ? QString::number(id)
                                     : QStringLiteral("?"));
    }
    return ids.join(u' ');
}

class Receiver : public QObject
{
    Q_OBJECT
public:
    QStringList calls;

public Q_SLOTS:
    void byId(int id) { calls << QString::number(id); }
    void byAction(QAction* action) { calls << action->text(); }
    void plain() { calls << QStringLiteral("plain"); }
};

class Updater : public IUpdateMenu
{
public:
    void UpdateMenu(ResortPopupMenu* menu) override
    {
        menu->RemoveAllEntries();
        menu->insertItem(QStringLiteral("new"), ++shows, -1);
        if (partner != nullptr)
            menu->StopNotify(partner);
    }

    int shows = 0;
    IUpdateMenu* partner = nullptr;
};

} // namespace

class tst_ResortPopupMenu : public GuardedTest
{
    Q_OBJECT
    using Orders = TestRows<QList<int>, bool, QString>;

private Q_SLOTS:
    void resorting_data()
    {
        // The order, whether it is complete, and what is left.
        Orders row;
        row("left out", {2, -1, 0}, true, "30 - 10");
        row("beyond", {1, 3, 0}, false, "20");
        row("negative", {-1, -2, 0}, false, "-");
        row("twice", {0, 1, 0}, true, "20 10");
        row("nothing", {}, true, "");
    }
    void resorting()
    {
        const auto& [order, isComplete, expected] = Orders::fetch();
        fill({10, 20, 30});
        const QPointer<QAction> last(m_menu->findItem(30));
        QCOMPARE(m_menu->resort({order.begin(), order.end()}), isComplete);
        QCOMPARE(layout(*m_menu), expected);
        QVERIFY(last);
        // Separators of former orders do not pile up.
        const auto children = m_menu->children().size();
        for (int i = 0; i < 10; ++i)
            m_menu->resort({-1, 0, -1});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(m_menu->children().size() <= children + 3);
    }
    void resortingOnIndex()
    {
        fill({30, 10, 20, 10});
        m_menu->actions().at(3)->setText(QStringLiteral("second 10"));
        m_menu->addAction(QStringLiteral("without id"));
        m_menu->resortOnIndex();
        QCOMPARE(layout(*m_menu), QStringLiteral("0 10 10 20 30"));
        QCOMPARE(m_menu->actions().at(2)->text(), QStringLiteral("second 10"));
        m_menu->addAction(QStringLiteral("without id"));
        QVERIFY(m_menu->resort({5, 1}));
        QCOMPARE(layout(*m_menu), QStringLiteral("5 10"));
    }
    void ids()
    {
        fill({5000, 5002, 7});
        m_menu->addAction(QStringLiteral("without id"));
        QCOMPARE(m_menu->createUniqueId(), 5001);
        QVERIFY(m_menu->idAt(7) == 2 && m_menu->indexOf(8) == -1 && m_menu->text(-1).isNull());
        m_menu->setItemEnabled(8, false);
        m_menu->EnableEntry(QStringLiteral("entry 5000"), false);
        QVERIFY(m_menu->isItemEnabled(7) && !m_menu->isItemEnabled(5000) &&
                !m_menu->isItemEnabled(8));
        m_menu->removeItem(5000);
        m_menu->removeItem(5000);
        m_menu->insertSeparatorBeforeIndex(99);
        m_menu->insertSeparatorAfterIndex(-5);
        QCOMPARE(layout(*m_menu), QStringLiteral("- 5002 7 ? -"));
    }
    void receivers()
    {
        Receiver receiver;
        QSignalSpy activated(m_menu.get(), &ResortPopupMenu::signalActivated);
        m_menu->insertItem(QStringLiteral("a"), &receiver, SLOT(byId(int)), {}, 1);
        m_menu->insertItem(QStringLiteral("b"), &receiver, SLOT(byId(int)), {}, 2);
        m_menu->insertItem(QStringLiteral("c"), &receiver, SLOT(plain()), {}, 3);
        m_menu->insertItem(QStringLiteral("d"), nullptr, SLOT(plain()), {}, 4);
        QAction* const without = m_menu->addAction(QStringLiteral("e"));
        for (QAction* entry : m_menu->actions())
            entry->trigger();
        QCOMPARE(receiver.calls.join(u' '), QStringLiteral("1 2 3 plain 4"));
        QCOMPARE(activated.size(), 4);
        receiver.calls.clear();
        m_menu->insertItem(QStringLiteral("f"), &receiver, SLOT(byAction(QAction*)), {}, -1);
        without->trigger();
        QCOMPARE(receiver.calls.join(u' '), QStringLiteral("e"));
        m_menu->slotSignalRouter(nullptr);
    }
    void updaters()
    {
        Updater first;
        Updater second;
        first.partner = &second;
        m_menu->NotifyBeforeShow(&first);
        m_menu->NotifyBeforeShow(&second);
        m_menu->NotifyBeforeShow(nullptr);
        QCursor::setPos(40, 50);
        MenuVisitor::announceKeyboardGrab();
        m_menu->popup(QPoint(10, 10));
        QCOMPARE(layout(*m_menu), QStringLiteral("1"));
        QCOMPARE(second.shows, 0);
        QCOMPARE(m_menu->GetCursorPosOnShow(), QPoint(40, 50));
        m_menu->close();
        m_menu->clear();
        MenuVisitor::announceKeyboardGrab();
        const QRect screen = m_menu->screen()->availableGeometry();
        m_menu->popup(screen.bottomRight());
        QVERIFY(screen.contains(m_menu->geometry()));
        m_menu->close();
    }
    void entriesGoWhileTheyAreTriggered()
    {
        fill({1, 2});
        connect(m_menu.get(), &ResortPopupMenu::signalActivated, m_menu.get(),
                &ResortPopupMenu::RemoveAllEntries);
        MenuVisitor::announceKeyboardGrab();
        m_menu->popup(QPoint(10, 10));
        m_menu->setActiveAction(m_menu->findItem(1));
        QTest::keyClick(m_menu.get(), Qt::Key_Return);
        QCOMPARE(m_menu->actions().size(), 0);
    }

private:
    void prepare() override { m_menu = std::make_unique<ResortPopupMenu>(nullptr, "Menu"); }
    void tidy() override { m_menu.reset(); }
    void fill(std::initializer_list<int> ids)
    {
        for (const int id : ids)
            m_menu->insertItem(QStringLiteral("entry %1").arg(id), id, 0);
    }

    std::unique_ptr<ResortPopupMenu> m_menu;
};

QTEST_MAIN(tst_ResortPopupMenu)
#include "tst_resortpopupmenu.moc"
