// SPDX-License-Identifier: MIT
#include "centre/bandview.h"
#include "mainwindowtest.h"
#include "panels/signalspanel.h"
#include "receiver/receiverbar.h"
#include "receiver/receiverpanel.h"
#include "recordings.h"
#include "settings/settings.h"
#include "support/checked.h"

#include <radiopanes/core/bandplan.h>
#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/usercolors.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/typedinput.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>
#include <valueframework/undorecording.h>

#include <QApplication>
#include <QLineEdit>
#include <QStatusBar>
#include <QTemporaryFile>

#include <array>
#include <cmath>

using namespace bandmonitor;

namespace {

QString text(const Sweep& sweep)
{
    QString result;
    for (const float level : sweep.segments.front().levels)
        result += QString::number(static_cast<double>(level), 'f', 1) + QLatin1Char(' ');
    return result.trimmed();
}

} // namespace

class tst_Receiver : public MainWindowTest
{
    Q_OBJECT
    using Traces = TestRows<double, double, quint64, QString>;

    void openForm()
    {
        openWindow({1100, 800});
        m_window->activateWindow();
        QTRY_VERIFY(m_window->isActiveWindow());
    }

    QWidget* field(const char* name) const
    {
        return m_window->panel<ReceiverPanel>().findChild<QWidget*>(QLatin1String(name));
    }

    QString shown(const char* name) const
    {
        return dynamic_cast<TypedInput&>(*field(name)).inputLineEdit()->text();
    }

    void enter(const char* name, const QString& typed) const
    {
        field(name)->setFocus();
        dynamic_cast<TypedInput&>(*field(name)).inputLineEdit()->selectAll();
        QTest::keyClicks(field(name), typed);
        QTest::keyClick(field(name), Qt::Key_Return);
    }

    /// From field to field, with Tab.
    void typeIntoForm() const
    {
        struct Step
        {
            const char* name;
            const char* typed;
            const char* shown;
        };
        const Step steps[] = {
            {"centreFrequency", "98,500123", "98,500123 MHz"},
            {"span", "7500 k", "7,5 MHz"},
            {"resolutionBandwidth", "0,1", "0,1 MHz"},
            {"gain", "12,5", "12,5 dB"},
            {"attenuation", "-3", "-3 dB"},
            {"sampleCount", "18446744073709551615", "18446744073709551615"},
            {"deviceAddress", "0xc0ffee", "0xC0FFEE"},
            {"hexadecimal", " ", nullptr},
            {"startTime", "2026-01-01 00:00:30.500", nullptr},
            {"threshold", "-62,5", "-62,5 dB"},
            {"position", "jn58", "N 48°30'00.0\" E 011°00'00.0\""},
        };
        field("centreFrequency")->setFocus(Qt::TabFocusReason);
        for (const Step& step : steps) {
            QWidget* focus = QApplication::focusWidget();
            QCOMPARE(focus->objectName(), QLatin1String(step.name));
            // Replaces what Tab has selected.
            QTest::keyClicks(focus, QLatin1String(step.typed));
            QTest::keyClick(focus, Qt::Key_Return);
            if (step.shown != nullptr)
                QCOMPARE(shown(step.name), QString::fromUtf8(step.shown));
            QTest::keyClick(focus, Qt::Key_Tab);
        }
    }

private Q_SLOTS:
    void traces_data()
    {
        // Sweeps of 100 samples: -30 everywhere, then -20 in the first bin, then as below.
        Traces row; // resolution, offset, samples, expected
        row("neutral", 0, 0, 0, "-10.0 -30.0 nan -30.0 -30.0 -30.0");
        row("offset", 0, -2.5, 0, "-12.5 -32.5 nan -32.5 -32.5 -32.5");
        row("finer than recorded", 9, 0, 0, "-10.0 -30.0 nan -30.0 -30.0 -30.0");
        row("pairs: noise rises, carrier stays", 20, 0, 0, "-10.0 -27.0 -27.0");
        row("split bins", 15, 0, 0, "-10.0 -28.2 -28.2 -28.2");
        row("wider than the hop", 1e6, 0, 0, "-9.0");
        row("fewer samples than a sweep", 0, 0, 99, "-10.0 -30.0 nan -30.0 -30.0 -30.0");
        row("two sweeps", 0, 0, 101, "-12.6 -30.0 -30.0 -30.0 -30.0 -30.0");
        row("more than there are", 0, 10, 100000, "-4.3 -20.0 -20.0 -20.0 -20.0 -20.0");
    }

    void traces()
    {
        const auto& [resolution, offset, samples, expected] = Traces::fetch();
        Recording recording;
        for (const auto& levels : {std::array<float, 6>{-30, -30, -30, -30, -30, -30},
                                   {-20, -30, -30, -30, -30, -30},
                                   {-10, -30, NAN, -30, -30, -30}})
            recording.append(1, std::array{Segment{1000, 10, 100, levels}});
        TraceProcessor processor;
        processor.setSettings({resolution, offset, samples});
        processor.process(recording, 0); // must leave no traces
        const Sweep trace = processor.process(recording, 2);
        QCOMPARE(text(trace), expected);
        QCOMPARE(trace.highHz, recording.sweep(2).highHz);
        const bool isRecorded = trace.segments.data() == recording.sweep(2).segments.data();
        QCOMPARE(isRecorded, expected == text(recording.sweep(2)));
    }

    void settingsComeBackWithinTheirLimits()
    {
        const auto above =
            CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("Bandmonitor"));
        const auto cfg = above->OpenSubCfg(QStringLiteral("Receiver"));
        for (const char* key : {"Centre", "Span", "Resolution", "Gain", "Attenuation", "Threshold"})
            cfg->SetString(QLatin1String(key), QStringLiteral("-20000000"));
        cfg->SetString(QStringLiteral("Centre"), QStringLiteral("-20000000000000"));
        cfg->SetString(QStringLiteral("Address"), QStringLiteral("tomorrow"));
        above->SetString(QStringLiteral("ChangedColors"), QStringLiteral("0x12"));
        {
            const SessionValues values;
            const ReceiverSettings clamped = values.receiver();
            QCOMPARE(values.centre.GetValue(), -ReceiverSettings::highestHz);
            QCOMPARE(values.span.GetValue() + clamped.resolutionHz, 0);
            QCOMPARE(clamped.gainDb, -100.0);
            QCOMPARE(clamped.attenuationDb, -100);
            QVERIFY(!clamped.thresholdDb);
            QCOMPARE(clamped.address, 0U);
        }
        QCOMPARE(cfg->GetString(QStringLiteral("Address_damaged")), QStringLiteral("tomorrow"));
        QCOMPARE(above->GetString(QStringLiteral("ChangedColors_damaged")), QStringLiteral("0x12"));
        cfg->SetString(QStringLiteral("Gain"), QStringLiteral("nan"));
        QCOMPARE(SessionValues().receiver().gainDb, 0.0);
    }

    void panelAndSpectrumFollowEachOther()
    {
        CHECKED(openForm());
        BandView& band = m_window->bandView();
        VisibleBand& view = band.visibleBand();
        const double bandLow = view.bandLow();
        QCOMPARE(shown("span"), QStringLiteral("30 MHz"));
        enter("centreFrequency", QStringLiteral("85.5")); // the span gives way
        QCOMPARE(view.low(), bandLow);
        enter("span", QStringLiteral("2000k"));
        QCOMPARE(view.low(), 84.5e6);
        QCOMPARE(view.high(), 86.5e6);
        view.pan(1e6);
        view.zoom(2, view.low());
        QCOMPARE(shown("centreFrequency"), QStringLiteral("86 MHz"));
        QCOMPARE(shown("span"), QStringLiteral("1 MHz"));
        enter("centreFrequency", QStringLiteral("5 GHz")); // out of the band
        QCOMPARE(view.high(), view.bandHigh());
        QVERIFY(m_window->statusBar()->currentMessage().contains(QLatin1String("outside")));
        QTest::keyClicks(field("centreFrequency"), QStringLiteral("95.")); // typing goes on
        view.showAll();
        QVERIFY(shown("centreFrequency").endsWith(QLatin1String("95.")));
        enter("centreFrequency", QStringLiteral("nowhere")); // nothing to go to
        field("gain")->setFocus();
        QCOMPARE(shown("centreFrequency"), QStringLiteral("95 MHz"));

        Replay& replay = m_window->session().replay();
        GuiBase::Instance().GetTimeZone()->SetValue(0);
        replay.jump(20);
        const QString later = shown("startTime");
        replay.jump(3);
        QVERIFY(shown("startTime") < later);
        enter("startTime", later);
        QCOMPARE(replay.position(), 20);
        enter("startTime", QStringLiteral("2100-01-01 00:00:00.000"));
        QCOMPARE(replay.position(), replay.count() - 1);

        const SpectrumPane& spectrum = band.spectrum();
        const auto level = [&] { return static_cast<double>(*spectrum.levelAt(90.01e6)); };
        const double recorded = level();
        enter("gain", QStringLiteral("40.5"));
        enter("attenuation", QStringLiteral("-3"));
        QVERIFY(std::abs(level() - recorded - 43.5) < 0.01);
        QVERIFY(spectrum.highLevel() > 0); // the trace is still in the pane
        enter("deviceAddress", QStringLiteral("1F"));
        QCOMPARE(spectrum.readOut().first(), QStringLiteral("Receiver 0x1F"));
    }

    void basebandIsSteered()
    {
        OwnedSegments segments;
        segments.add(-1e6, 1e4, std::vector<float>(200, -90));
        QByteArray text;
        appendSweepText(text, segments.sweep(1'000'000));
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(text) > 0 && file.flush());
        CHECKED(openForm());
        CHECKED(open(file.fileName()));
        const VisibleBand* view = &m_window->bandView().visibleBand();
        QCOMPARE(shown("centreFrequency"), QStringLiteral("0 MHz"));
        enter("span", QStringLiteral("0.5"));
        enter("centreFrequency", QStringLiteral("-0.25"));
        QCOMPARE(view->low(), -0.5e6);
        m_window.reset();
        m_window = std::make_unique<MainWindow>();
        CHECKED(open(file.fileName()));
        QCOMPARE(shown("centreFrequency"), QStringLiteral("-0.25 MHz"));
        QCOMPARE(m_window->bandView().visibleBand().low(), -0.5e6);
        QCOMPARE(shown("resolutionBandwidth"), QStringLiteral("as recorded"));
    }

    void thresholdDetectsWhatTheSpectrumShowsAboveIt()
    {
        CHECKED(openForm());
        m_window->panel<SignalsPanel>().setUpdateInterval(std::chrono::milliseconds(0));
        const auto peaks = [this] {
            QCoreApplication::processEvents();
            const SortListView& list = m_window->panel<SignalsPanel>().list();
            QList<double> result;
            for (int row = 0; row < list.topLevelItemCount(); ++row)
                result << list.topLevelItem(row)->text(SignalsPanel::Level).chopped(3).toDouble();
            return result;
        };
        m_window->session().replay().stepForward();
        m_window->session().replay().stepBackward(); // the signals of this sweep alone
        const QList<double> automatic = peaks();
        const auto count = [&](double limit) {
            return std::ranges::count_if(automatic, [=](double peak) { return peak >= limit; });
        };
        QVERIFY(count(-45) > 0 && count(-45) < count(-48));
        enter("threshold", QStringLiteral("-45"));
        QCOMPARE(peaks().size(), count(-45));
        enter("attenuation", QStringLiteral("3"));
        enter("threshold", QStringLiteral("-51"));
        QCOMPARE(peaks().size(), count(-48));
        enter("threshold", QStringLiteral("off"));
        QCOMPARE(peaks(), automatic);
    }

    void keyboardFillsTheForm()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        CHECKED(openForm());
        GuiBase::Instance().GetTimeZone()->SetValue(0);
        CHECKED(typeIntoForm());
        QCOMPARE(shown("deviceAddress"), QStringLiteral("12648430"));
        QVERIFY(
            !m_window->session().replay().isPlaying()); // nothing of it was taken for a short cut
        const QDateTime start(QDate(2026, 1, 1), QTime(0, 0, 30, 500), Qt::UTC);
        const qsizetype position = m_window->session().replay().position();
        const auto timeAt = [&](qsizetype at) {
            return static_cast<qint64>(m_window->session().replay().recording()->sweep(at).timeUs /
                                       1000);
        };
        QVERIFY(timeAt(position) >= start.toMSecsSinceEpoch());
        QVERIFY(timeAt(position - 1) < start.toMSecsSinceEpoch());

        const auto check = [&] {
            const SessionValues& values = m_window->values();
            QCOMPARE(values.centre.GetValue(), 98'500'123);
            QCOMPARE(values.span.GetValue(), 7'500'000);
            QCOMPARE(values.enteredStart.GetValue(), start);
            QCOMPARE(values.position.GetValue().text(), QStringLiteral("48.5 11"));
            const ReceiverSettings settings = values.receiver();
            QCOMPARE(settings.resolutionHz, 100'000);
            QCOMPARE(settings.gainDb, 12.5);
            QCOMPARE(settings.attenuationDb, -3);
            QCOMPARE(settings.samples, std::numeric_limits<quint64>::max());
            QCOMPARE(settings.address, 0xC0FFEEU);
            QVERIFY(!settings.isAddressHexadecimal);
            QCOMPARE(settings.thresholdDb, std::optional(-62.5));
        };
        CHECKED(check());
        CHECKED(openForm());
        QCOMPARE(m_window->session().replay().position(), position);
        QCOMPARE(shown("centreFrequency"), QStringLiteral("98,500123 MHz"));
        CHECKED(check());
    }

    void onlyAnEnteredPositionIsWritten()
    {
        const QString key = QStringLiteral("ReceiverLatitude");
        const auto settings = CfgCenter::GetAppCfg(SettingsView);
        CHECKED(openForm());
        QVERIFY(!settings->Contains(key));
        settings->SetString(key, QStringLiteral("north")); // by hand
        CHECKED(openForm());
        QCOMPARE(settings->GetString(key), QStringLiteral("north"));
        enter("position", QStringLiteral("jn58"));
        QCOMPARE(settings->GetString(key), QStringLiteral("48.5"));
        QVERIFY(UndoRecording::Instance().undo());
        QVERIFY(!bandmonitor::Settings::receiverPosition().isValid());
    }

    void inputsCanBeUndone()
    {
        CHECKED(openForm());
        UndoRecording& steps = UndoRecording::Instance();
        SessionValues& values = m_window->values();
        VisibleBand& view = m_window->bandView().visibleBand();
        QVERIFY(!steps.canUndo()); // opening is no step
        auto* second = m_window->findChild<ReceiverBar*>()->findChild<SpinBoxes::FrequencySpinBox*>(
            QStringLiteral("centreFrequency"));
        enter("span", QStringLiteral("2"));
        enter("centreFrequency", QStringLiteral("98.5"));
        QCOMPARE(second->value(), 98'500'000);
        second->setFocus();
        for (int i = 0; i < 5; ++i) // a burst in the other view
            QTest::keyClick(second, Qt::Key_Up);
        QVERIFY(values.centre.GetValue() > 98'500'000);
        QCOMPARE(steps.undoText(), QStringLiteral("Change centre frequency"));
        const double moved = view.low();
        view.pan(1e6); // as a drag does
        view.pan(1e6);
        QCOMPARE(steps.undoText(), QStringLiteral("Move the view"));
        const auto press = [&](Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, modifiers);
        };
        press(Qt::ControlModifier);
        QCOMPARE(view.low(), moved);
        press(Qt::ControlModifier);
        QCOMPARE(shown("centreFrequency"), QStringLiteral("98.5 MHz"));
        QCOMPARE(second->value(), 98'500'000);
        press(Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(view.low(), moved);

        const qsizetype position = m_window->session().replay().position();
        enter("startTime", QStringLiteral("2100-01-01 00:00:00.000"));
        QVERIFY(m_window->session().replay().position() > position);
        QTest::keyClicks(field("startTime"), QStringLiteral("7"));
        press(Qt::ControlModifier); // what is typed first
        QCOMPARE(steps.undoText(), QStringLiteral("Change start time"));
        press(Qt::ControlModifier);
        QCOMPARE(m_window->session().replay().position(), position);
    }

    void marksComeBack()
    {
        CHECKED(openForm());
        UndoRecording& steps = UndoRecording::Instance();
        QTemporaryFile file;
        QVERIFY(file.open() && file.write("99 MHz, 100 MHz, FM\nnonsense") > 0 && file.flush());
        const auto view = [this]() -> BandView& { return m_window->bandView(); };
        view().visibleBand().addPin(99e6, QStringLiteral("a b=c"));
        view().addBookmark(98e6);
        m_window->values().bandPlan.SetValue(file.fileName());
        QCOMPARE(view().bandPlan().entries().size(), 1u);
        view().spectrum().setTraceVisible(Trace::Average, true);
        for (const char* text : {"Hold maximum", "Hold minimum", "Zoom out in time"})
            entry(text)->trigger();
        view().spectrum().setSnapping(true);
        view().waterfall().setColorMap(ColorMap::Fire);
        view().waterfall().zoomTime(-1);
        CHECKED(openForm());
        QVERIFY(view().spectrum().isTraceVisible(Trace::Average));
        QVERIFY(view().spectrum().isTraceVisible(Trace::Minimum));
        QVERIFY(!view().spectrum().isTraceVisible(Trace::Maximum));
        QVERIFY(view().spectrum().isSnapping());
        QVERIFY(view().waterfall().colorMap() == ColorMap::Fire);
        QCOMPARE(view().waterfall().timeZoom(), -2);
        QVERIFY(!steps.canUndo());
        view().waterfall().zoomTime(1);
        view().waterfall().zoomTime(1); // the wheel turns on
        QVERIFY(steps.undo());
        QCOMPARE(view().waterfall().timeZoom(), -2);
        QCOMPARE(view().visibleBand().pins(), (std::vector<Pin>{{99e6, QStringLiteral("a b=c")}}));
        QCOMPARE(view().bandPlan().entries().front().name, QStringLiteral("FM"));
        QCOMPARE(view().bookmarks().entries().front().startHz, 98e6);
        view().visibleBand().namePin(0, QStringLiteral("new"));
        view().setBookmarks(BandPlan());
        QVERIFY(steps.undo());
        QCOMPARE(view().bookmarks().entries().size(), 1u);
        QVERIFY(steps.undo());
        QCOMPARE(view().visibleBand().pins().front().name, QStringLiteral("a b=c"));
    }

    void stepsStayUntilTheWindowIsNew()
    {
        CHECKED(openForm());
        UndoRecording& steps = UndoRecording::Instance();
        VisibleBand& view = m_window->bandView().visibleBand();
        enter("span", QStringLiteral("2"));
        m_window->values().pins.SetValue(QStringLiteral("9q"));
        view.addPin(99e6);
        view.clearPins();
        QCOMPARE(m_window->values().pins.GetValue(), QStringLiteral("9q")); // nobody's to drop
        QVERIFY(steps.undo());
        QCOMPARE(view.pins(), (std::vector<Pin>{{99e6, {}}}));
        const QColor grid = ColorSet::Instance().GetColor(IColorBase::DrawPaneGrid);
        ColorSet::Instance().SetColor(IColorBase::DrawPaneGrid, Qt::red, true);
        QVERIFY(steps.undo());
        QCOMPARE(ColorSet::Instance().GetColor(IColorBase::DrawPaneGrid), grid);
        const ColorDefinition& own = *Colors::Instance().GetUserColors().At(0);
        const QColor before = own.GetColor();
        QVERIFY(UserColors::redefine(own.GetId(), QColor(1, 2, 3)));
        GuiBase::Instance().emit_signalColorsChanged();
        QVERIFY(steps.undo());
        QCOMPARE(own.GetColor(), before);
        open(samplePath());
        QCOMPARE(view.pins(), (std::vector<Pin>{{99e6, {}}})); // it stays, and so do the steps
        QVERIFY(steps.undo() && view.pins().empty());
        while (steps.undo()) {
        }
        QVERIFY(view.showsAll());
        QVERIFY(steps.canRedo());
        CHECKED(openForm());
        QVERIFY(!steps.canRedo());
    }
};

QTEST_MAIN(tst_Receiver)
#include "tst_receiver.moc"
