// SPDX-License-Identifier: MIT
#include "recordings.h"
#include "support/checked.h"
#include "support/guardedtest.h"

#include "panels/levelspanel.h"
#include "panels/listtext.h"
#include "panels/referencelevels.h"
#include "panels/signalspanel.h"

#include <model/samplegenerator.h>
#include <radiopanes/colors/panecolors.h>
#include <radiopanes/panes/frequencytext.h>

#include <guibase/lists/checksortlistviewitem.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortrowtable.h>
#include <guibase/services/guibase.h>
#include <valueframework/undorecording.h>
#include <valueframework/valueselection.h>

#include <QCheckBox>

#include <algorithm>
#include <cmath>

using namespace bandmonitor;

class tst_Lists : public GuardedTest
{
    Q_OBJECT
    using Value = double (*)(const SignalTrack& track);
    using Columns = TestRows<int, Value>;
    using Texts = TestRows<QString, QString, double, double>;
    ReadRecording m_sample;
    SignalWatch m_watch;
    std::unique_ptr<SignalsPanel> m_signals;

    void show(qsizetype first, qsizetype last)
    {
        for (qsizetype sweep = first; sweep <= last; ++sweep) {
            m_watch.showSweep(sweep, sweep - 1);
            m_signals->refresh();
        }
        QTRY_COMPARE(static_cast<std::size_t>(m_signals->list().topLevelItemCount()),
                     m_watch.tracks().size());
        QCoreApplication::processEvents(); // new rows go to their places
    }

    /// The items in the order that is shown.
    QList<CheckSortListViewItem*> items() const
    {
        QList<CheckSortListViewItem*> result;
        for (int row = 0; row < m_signals->list().topLevelItemCount(); ++row)
            result << static_cast<CheckSortListViewItem*>(m_signals->list().topLevelItem(row));
        return result;
    }
    CheckSortListViewItem* itemOf(std::uint32_t id) const
    {
        const auto all = items();
        return *std::ranges::find(all, static_cast<int>(id), &CheckSortListViewItem::GetId);
    }

    void prepare() override
    {
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega);
        GuiBase::Instance().GetTimeZone()->SetValue(0);
        m_watch.setRecording(m_sample.recording);
        m_signals = std::make_unique<SignalsPanel>(&m_watch);
        m_signals->setUpdateInterval(std::chrono::milliseconds(0));
        m_signals->resize(900, 400);
        m_signals->show();
    }

    void tidy() override { m_signals.reset(); }

private Q_SLOTS:
    void initTestCase() { m_sample.read(SampleGenerator().remaining().toStdString()); }

    void columnsSortByTheirValues_data()
    {
        Columns row;
        using Track = const SignalTrack&;
        row("frequency", SignalsPanel::Frequency,
            [](Track track) { return track.signal.centreHz; });
        row("level", SignalsPanel::Level,
            [](Track track) { return std::round(track.signal.peakDb * 10); });
        row("bandwidth", SignalsPanel::Bandwidth,
            [](Track track) { return track.signal.bandwidthHz(); });
        row("first seen", SignalsPanel::FirstSeen,
            [](Track track) { return static_cast<double>(track.firstSeenUs); });
        row("last seen", SignalsPanel::LastSeen,
            [](Track track) { return static_cast<double>(track.lastSeenUs); });
    }

    void columnsSortByTheirValues()
    {
        const auto& [column, value] = Columns::fetch();
        CHECKED(show(0, 60));
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            m_signals->list().setSorting(column, order);
            CHECKED(show(61 + order, 61 + order)); // and they stay sorted
            std::vector<double> values;
            for (const CheckSortListViewItem* item : items())
                values.push_back(value(*m_watch.track(std::uint32_t(item->GetId()))));
            if (order == Qt::DescendingOrder)
                std::reverse(values.begin(), values.end());
            QVERIFY(std::is_sorted(values.begin(), values.end()));
        }
    }

    void timesOfOtherDaysHaveTheirDates()
    {
        constexpr quint64 noonUs = 1'778'500'800'000'000; // 2026-05-11 12:00:00 UTC
        constexpr quint64 dayUs = 86'400'000'000;
        GuiBase::Instance().GetTimeZone()->SetValue(0); // UTC
        QCOMPARE(recordedTime(noonUs, noonUs + 1), QStringLiteral("12:00:00"));
        QCOMPARE(recordedTime(noonUs - dayUs, noonUs), QStringLiteral("05-10 12:00:00"));
        const auto firstSeen = [this] {
            return itemOf(m_watch.tracks().front().id)->text(SignalsPanel::FirstSeen).size();
        };
        auto recording = std::make_shared<Recording>();
        for (const quint64 timeUs : {noonUs, noonUs + 1, noonUs + dayUs}) {
            std::vector<float> levels(500, -90);
            levels[100] = -50;
            const Segment segment{0, 10, 1, levels};
            recording->append(timeUs, {&segment, 1});
        }
        m_watch.setRecording(recording);
        show(0, 1);
        const qsizetype length = firstSeen();
        show(2, 2);
        QTRY_VERIFY(firstSeen() > length);
    }

    void rowsChangeInPlace()
    {
        CHECKED(show(0, 30));
        const std::uint32_t id = m_watch.tracks().front().id;
        CheckSortListViewItem* item = itemOf(id);
        QCOMPARE(item->text(SignalsPanel::LastSeen), QStringLiteral("00:00:30"));
        QCOMPARE(item->text(SignalsPanel::Type), GuiBase::Instance().GetSignalType('h'));
        QCOMPARE(item->icon(SignalsPanel::Type).pixmap(12).toImage().pixelColor(5, 5),
                 paneColor(IColorBase::SignalTypeH));
        m_watch.showSweep(31, 30);
        m_signals->refresh();
        QTRY_COMPARE(item->text(SignalsPanel::LastSeen), QStringLiteral("00:00:31"));
        QCOMPARE(itemOf(id), item);

        QCOMPARE(FrequencyText::width(24'219), QStringLiteral("24.2 kHz"));
        QCOMPARE(FrequencyText::width(999'900), QStringLiteral("1 MHz"));
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Kilo);
        m_signals->refreshTexts();
        QVERIFY(item->text(SignalsPanel::Frequency).endsWith(QLatin1String(" kHz")));

        m_signals->hide(); // what is not seen costs nothing, and comes with the next look
        m_watch.showSweep(32, 31);
        m_signals->refresh();
        QCoreApplication::processEvents();
        QCOMPARE(item->text(SignalsPanel::LastSeen), QStringLiteral("00:00:31"));
        m_signals->show();
        QCOMPARE(item->text(SignalsPanel::LastSeen), QStringLiteral("00:00:32"));
    }

    void cursorFollowsWhatTheUserChose()
    {
        CHECKED(show(0, 30));
        QSignalSpy wanted(m_signals.get(), &Panel::frequencyWanted);
        m_signals->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_signals.get()));
        m_signals->list().setFocus(Qt::TabFocusReason); // which alone chooses nothing
        QVERIFY(m_signals->list().currentItem() != nullptr);
        QVERIFY(m_signals->list().selectedItems().isEmpty());
        QCOMPARE(wanted.size(), 0);
        const SignalTrack drifter = *std::ranges::find(m_watch.tracks(), 'i', &SignalTrack::type);
        const SignalTrack station = m_watch.tracks().front();
        m_signals->list().setCurrentItem(itemOf(drifter.id));
        QCOMPARE(wanted.last().first().toDouble(), drifter.signal.centreHz);

        const auto boxOf = [this](std::uint32_t id) {
            return qobject_cast<QCheckBox*>(m_signals->list().itemWidget(itemOf(id), 0));
        };
        boxOf(station.id)->click();
        boxOf(drifter.id)->click(); // one at a time
        QVERIFY(!itemOf(station.id)->isOn());
        QCOMPARE(m_signals->followed(), drifter.id);
        wanted.clear();
        m_watch.showSweep(31, 30);
        m_signals->refresh();
        QCOMPARE(wanted.size(), 1);
        QVERIFY(wanted.last().first().toDouble() != drifter.signal.centreHz);
        m_watch.showSweep(30, -1); // back: another track, but the same signal
        m_signals->refresh();
        QTRY_VERIFY(m_signals->followed() > drifter.id);
        const SignalTrack* successor = m_watch.track(m_signals->followed());
        QVERIFY(itemOf(successor->id)->isOn());
        QVERIFY(std::abs(successor->signal.centreHz - drifter.signal.centreHz) < 100e3);
        boxOf(successor->id)->click();
        QCOMPARE(m_signals->followed(), 0U);

        wanted.clear();
        m_watch.setRecording(nullptr); // all rows go, and nobody chose another one
        m_signals->refresh();
        QTRY_COMPARE(m_signals->list().topLevelItemCount(), 0);
        QVERIFY(wanted.isEmpty());
    }

    void readsLeniently_data()
    {
        const double none = qQNaN(); // the text is refused
        Texts row;
        row.add(" 98,1 ", "-40,5 dB", 98.1e6, -40.5);
        row.add("98100 kHz", "-40dBm", 98.1e6, -40);
        row.add("0.0981g", "3 dB\u00b5V/m", 98.1e6, 3);
        row.add("98100000 Hz", "\u221240", 98.1e6, -40);
        row.add("", "", none, none);
        row.add("0", "1001", none, none);
        row.add("-5", "loud", none, none);
        row.add("tomorrow", "dB", none, none);
        row.add("1e9 GHz", "-40 - 3", none, none);
    }

    void readsLeniently()
    {
        const auto& [frequency, level, hertz, levelDb] = Texts::fetch();
        QCOMPARE(ReferenceLevels::readFrequency(frequency).value_or(qQNaN()), hertz);
        QCOMPARE(ReferenceLevels::readLevel(level).value_or(qQNaN()), levelDb);
        if (!qIsNaN(hertz)) {
            GuiBase::Instance().SetFrequencyResolution(UnitPrefix::Kilo);
            const QString written = ReferenceLevels::writeFrequency(hertz + 0.25);
            QCOMPARE(ReferenceLevels::readFrequency(written), hertz + 0.25);
            GuiBase::Instance().SetFrequencyResolution(UnitPrefix::BaseUnit);
        }
    }

    void levelsAreReadMarkedAndKept()
    {
        const std::vector<LevelPoint> expected{{95e6, -30}, {98.1e6, -40}};
        for (const bool first : {true, false}) {
            LevelsPanel pane(std::make_shared<SessionValues>());
            pane.show();
            SortRowTable& table = pane.table();
            if (first) {
                QSignalSpy changed(&pane, &LevelsPanel::pointsChanged);
                table.addRows({{QStringLiteral("98100 k"), QStringLiteral("-40")},
                               {QStringLiteral("soon"), QStringLiteral("-50")},
                               {QStringLiteral("95"), QStringLiteral("-30 dB")},
                               {QStringLiteral("96"), QStringLiteral("quiet")}});
                QTRY_COMPARE(changed.size(), 1);
            }
            QCOMPARE(pane.points(), expected);
            int marks = 0;
            for (int cell = 0; cell < 8; ++cell)
                marks += table.item(cell / 2, cell % 2)->icon().isNull() ? 0 : 1;
            QCOMPARE(marks, 2);
            QCOMPARE(table.item(0, 0)->text(), QStringLiteral("95.000000 MHz"));
        }
        auto values = std::make_shared<SessionValues>();
        LevelsPanel pane(values);
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Kilo);
        pane.refreshTexts();
        QCOMPARE(pane.table().item(0, 0)->text(), QStringLiteral("95000.000 kHz"));
        QCOMPARE(pane.points(), expected);
        pane.table().item(2, 0)->setText(QStringLiteral("nothing"));
        pane.table().item(0, 1)->setText(QStringLiteral("-31"));
        QTRY_COMPARE(pane.points(), (std::vector<LevelPoint>{{95e6, -31}}));
        pane.table().slotClearAll();
        QTRY_VERIFY(pane.points().empty());
        UndoRecording& steps = UndoRecording::Instance();
        QCOMPARE(steps.undoText(), QStringLiteral("Delete reference level"));
        QVERIFY(steps.undo());
        QCOMPARE(pane.points(), (std::vector<LevelPoint>{{95e6, -31}}));
        QCOMPARE(pane.table().rowCount(), 4); // with those that cannot be read
        QVERIFY(steps.undo());
        QCOMPARE(pane.points(), expected);
        QVERIFY(steps.redo() && steps.redo() && pane.points().empty());
    }
};

QTEST_MAIN(tst_Lists)
#include "tst_lists.moc"
