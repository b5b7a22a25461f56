// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/guardedtest.h"

#include "panels/eventlogpanel.h"
#include <model/eventlog.h>

#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <valueframework/undorecording.h>
#include <valueframework/valueselection.h>

#include <QAction>
#include <QLabel>
#include <QScrollBar>

using namespace bandmonitor;

class tst_EventLog : public GuardedTest
{
    Q_OBJECT
    std::unique_ptr<EventLog> m_log;
    std::unique_ptr<EventLogPanel> m_pane;

    /// Events named by their numbers, a second apart.
    void add(int count)
    {
        for (int i = 0; i < count; ++i)
            m_log->add(i % 2 == 0 ? EventKind::Signal : EventKind::Job,
                       QStringLiteral("event %1.").arg(m_log->end()), m_log->end() * 1'000'000);
    }
    SortListView& list() const { return m_pane->list(); }
    QString textOf(int row) const
    {
        const QTreeWidgetItem* item = list().topLevelItem(row);
        return item != nullptr ? item->text(EventLogPanel::Text) : QString();
    }
    QString lastText() const { return textOf(list().topLevelItemCount() - 1); }
    QString nameOfLast() const { return m_log->event(m_log->end() - 1).text; }
    QScrollBar& bar() const { return *list().verticalScrollBar(); }

    void prepare() override
    {
        GuiBase::Instance().GetTimeZone()->SetValue(0);
        m_log = std::make_unique<EventLog>(100);
        m_pane = std::make_unique<EventLogPanel>(m_log.get());
        m_pane->setUpdateInterval(std::chrono::milliseconds(0));
        m_pane->resize(500, 250);
        m_pane->show();
    }

    void tidy() override { m_pane.reset(); }

private Q_SLOTS:
    void ringKeepsTheLatest()
    {
        for (const auto& [capacity, added] :
             {std::pair(0U, 3), std::pair(5U, 5), std::pair(7U, 99)}) {
            EventLog log(capacity);
            for (const int cleared : {0, 2}) { // and again from a place in the middle
                for (int i = 0; i < added + cleared; ++i)
                    log.add(EventKind::Job, QString::number(log.end()), log.end());
                QCOMPARE(log.size(), std::min(log.capacity(), std::size_t(added + cleared)));
                for (quint64 number = log.begin(); number < log.end(); ++number)
                    QCOMPARE(log.event(number).text, QString::number(number));
                log.clear();
            }
        }
    }

    void listFollowsTheRing()
    {
        for (const int count : {30, 90, 250}) { // also more than fit at once
            add(count);
            QTRY_COMPARE(lastText(), nameOfLast());
            QCOMPARE(static_cast<std::size_t>(list().topLevelItemCount()), m_log->size());
            QCOMPARE(textOf(0), m_log->event(m_log->begin()).text);
        }
        m_pane->hide();
        add(5);
        QCoreApplication::processEvents();
        QVERIFY(lastText() != nameOfLast());
        m_pane->show();
        QTRY_COMPARE(lastText(), nameOfLast());
        m_pane->keyActions().at(2)->trigger();
        QTRY_COMPARE(list().topLevelItemCount(), 0);
        QVERIFY(list().findChild<QLabel*>(QStringLiteral("emptyHint"))->isVisible());
        add(60);
        QVERIFY(UndoRecording::Instance().undo());
        QTRY_COMPARE(list().topLevelItemCount(), 100); // newer ones stand where 60 stood
        QCOMPARE(textOf(0), m_log->event(m_log->begin()).text);
        QCOMPARE(textOf(39), QStringLiteral("event 374."));
    }

    void followsTheEndUnlessScrolledAway()
    {
        add(60);
        QTRY_COMPARE(lastText(), nameOfLast());
        QTRY_COMPARE(bar().value(), bar().maximum());
        bar().setValue(10);
        add(10);
        QTRY_COMPARE(lastText(), nameOfLast());
        QCOMPARE(bar().value(), 10);
        bar().setValue(bar().maximum());
        add(10);
        QTRY_COMPARE(lastText(), nameOfLast());
        QTRY_COMPARE(bar().value(), bar().maximum());
        bar().setValue(30);
        add(40); // rows go above
        QTRY_COMPARE(lastText(), nameOfLast());
        QCOMPARE(list().itemAt(0, 0)->text(EventLogPanel::Text), QStringLiteral("event 30."));
    }

    void oldRowsGoWhateverTheOrder()
    {
        add(100);
        QTRY_COMPARE(list().topLevelItemCount(), 100);
        list().setSorting(EventLogPanel::Time, Qt::DescendingOrder);
        add(30);
        QTRY_COMPARE(textOf(0), nameOfLast());
        QCOMPARE(list().topLevelItemCount(), 100);
        QCOMPARE(lastText(), m_log->event(m_log->begin()).text);
    }

    void filterCopyAndSave()
    {
        add(40);
        m_pane->setFilter(QStringLiteral("EVENT 3"));
        QTRY_COMPARE(list().topLevelItemCount(), 11); // 3 and 30 to 39
        add(10);
        m_log->add(EventKind::Mode, QStringLiteral("an event 3\nin two lines"), 0);
        QTRY_COMPARE(lastText(), QStringLiteral("an event 3 in two lines"));
        QCOMPARE(list().topLevelItemCount(), 12);
        const QString first = QStringLiteral("1970-01-01 00:00:03\t\tJob\tevent 3.\n");
        QVERIFY(m_pane->text().startsWith(first));
        QCOMPARE(m_pane->text().count(QLatin1Char('\n')), 12);
        list().topLevelItem(0)->setSelected(true);
        QCOMPARE(m_pane->text(), first);
        const QString file = filePath(QStringLiteral("events.txt"));
        QCOMPARE(m_pane->saveTo(file), std::nullopt);
        QCOMPARE(readFile(file).count('\n'), 12); // the shown ones, selected or not
        QVERIFY(m_pane->saveTo(filePath(QStringLiteral("none/events.txt"))).has_value());
    }

    void logMayGoBeforeItsPane()
    {
        add(10);
        QTRY_COMPARE(list().topLevelItemCount(), 10);
        add(10); // an update is under way
        m_log.reset();
        QCOMPARE(list().topLevelItemCount(), 0);
        m_pane->setFilter(QStringLiteral("event"));
        QTest::keyClick(&list(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        QCoreApplication::processEvents();
        QCOMPARE(m_pane->text(), QString());
    }
};

QTEST_MAIN(tst_EventLog)
#include "tst_eventlog.moc"
