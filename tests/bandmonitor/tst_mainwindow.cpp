// SPDX-License-Identifier: MIT
#include "jobs.h"
#include "mainwindow.h"
#include "manual.h"
#include "model/samplegenerator.h"
#include "panes/bandview.h"
#include "panes/signalspane.h"
#include "support/testguard.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <jtbase/trovos.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <optional>

using namespace bandmonitor;

namespace {

QAction* entry(const MainWindow& window, const QString& text)
{
    const QList<QAction*> actions = window.findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->text().remove(QLatin1Char('&')) == text)
            return action;
    }
    return nullptr;
}

/// Remembers what would have been opened.
class RecordingOS : public TrovOS
{
public:
    explicit RecordingOS(QString& opened)
        : m_opened(opened)
    {}
    int OpenFile(const QString& fileName) override
    {
        m_opened = fileName;
        return firstSuccessCode;
    }

private:
    QString& m_opened;
};

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT
    std::optional<TestGuard> m_guard;
    QTemporaryDir m_folder;
    std::unique_ptr<MainWindow> m_window;

    QString write(const QString& name, const QByteArray& content)
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
                   ? file.fileName()
                   : QString();
    }

    /// Closes the next dialog and adds its text to `texts`.
    void closeNextDialog(QString& text)
    {
        QTimer::singleShot(5, this, [this, &text] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                closeNextDialog(text);
                return;
            }
            const QList<QLabel*> labels = dialog->findChildren<QLabel*>();
            for (const QLabel* label : labels)
                text += label->text() + QLatin1Char('\n');
            dialog->close();
        });
    }

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        QSignalSpy opened(m_window.get(), &MainWindow::recordingOpened);
        m_window->open(samplePath());
        QVERIFY(opened.wait());
    }

    void cleanup()
    {
        m_window.reset();
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }

    void eventLogTellsWhatHappens()
    {
        // After a few sweeps the signals of one band go, and those of another one come.
        SampleSettings second;
        second.seed = 2;
        second.sweeps = 80;
        SampleSettings first;
        first.sweeps = 5;
        second.startTimeUs = first.startTimeUs + 5 * first.sweepIntervalUs;
        QSignalSpy opened(m_window.get(), &MainWindow::recordingOpened);
        m_window->open(
            write(QStringLiteral("two bands.csv"),
                  SampleGenerator(first).remaining() + SampleGenerator(second).remaining()));
        QVERIFY(opened.wait());
        const EventLog& log = m_window->eventLog();
        const auto count = [&log](EventKind kind, const QString& part) {
            int found = 0;
            for (quint64 number = log.begin(); number < log.end(); ++number) {
                const Event& event = log.event(number);
                found += event.kind == kind && event.text.contains(part) ? 1 : 0;
            }
            return found;
        };
        QCOMPARE(count(EventKind::Recording, QStringLiteral("two bands.csv opened: 85 sweeps")), 1);
        QCOMPARE(count(EventKind::Recording, QStringLiteral("sample.csv opened: 120 sweeps")), 1);
        const QString beginning = QStringLiteral("followed anew");
        QCOMPARE(count(EventKind::Signal, beginning), 2); // one for each recording
        // All that came and did not go is in the list.
        const SortListView& list = m_window->signalsPane().list();
        int followed = list.topLevelItemCount();
        QVERIFY(followed > 0);
        for (int sweep = 1; sweep < 85; ++sweep)
            m_window->replay().stepForward();
        const int gone = count(EventKind::Signal, QStringLiteral("Disappeared: "));
        QVERIFY(gone > 0);
        followed += count(EventKind::Signal, QStringLiteral("Appeared: ")) - gone;
        QTRY_COMPARE(list.topLevelItemCount(), followed);
        for (int step = 0; step < 3; ++step) // it begins anew, and nothing came or went
            m_window->replay().stepBackward();
        QCOMPARE(count(EventKind::Signal, beginning), 3);
        QCOMPARE(count(EventKind::Signal, QStringLiteral("Disappeared: ")), gone);

        for (const Job& job : m_window->jobs().list().jobs()) {
            if (!job.name.contains(QStringLiteral("above the reference")))
                continue;
            m_window->jobs().run(job.id);
            m_window->jobs().run(job.id);
        }
        QCOMPARE(count(EventKind::Job, QStringLiteral(": started")), 1);
        QCOMPARE(count(EventKind::Job, QStringLiteral(": called off")), 1);
        m_window->modes().setMode(Mode::Measure);
        QCOMPARE(count(EventKind::Mode, QStringLiteral("Measure")), 1);
        QSignalSpy failed(m_window.get(), &MainWindow::openFailed);
        m_window->open(m_folder.filePath(QStringLiteral("none.csv")), MainWindow::OnFailure::Tell);
        QVERIFY(failed.wait());
        QCOMPARE(count(EventKind::Recording, QStringLiteral("Not opened: ")), 1);
    }

    void titleTellsFileAndSweep()
    {
        QCOMPARE(m_window->windowTitle(),
                 QStringLiteral("sample.csv – sweep 1 of 120 – bandmonitor"));
        m_window->replay().stepForward();
        QVERIFY(m_window->windowTitle().contains(QLatin1String("sweep 2 of 120")));
        QCOMPARE(m_window->bandView().position(), 1);
    }

    void cancelledLoadLeavesTheFormerRecording()
    {
        SampleSettings settings;
        settings.binsPerHop = 4000;
        settings.sweeps = 100;
        const QString file =
            write(QStringLiteral("long.csv"), SampleGenerator(settings).remaining());
        m_window->open(file);
        QVERIFY(m_window->isLoading());
        auto* cancel = m_window->findChild<QPushButton*>();
        QVERIFY(cancel->isVisible());
        QTest::mouseClick(cancel, Qt::LeftButton);
        QTRY_VERIFY(!cancel->isVisible());
        QVERIFY(m_window->windowTitle().startsWith(QLatin1String("sample.csv")));
        m_window->replay().stepForward();
        QCOMPARE(m_window->bandView().position(), 1);
        // Closing in the middle of loading is safe as well.
        m_window->open(file);
        QCoreApplication::processEvents();
        m_window.reset();
    }

    void badFilesAreReported()
    {
        QString text;
        closeNextDialog(text);
        QSignalSpy failed(m_window.get(), &MainWindow::openFailed);
        m_window->open(write(QStringLiteral("bad.csv"), "no recording at all\n"));
        QTRY_COMPARE(failed.size(), 1);
        QTRY_VERIFY(!text.isEmpty());
        QVERIFY(m_window->windowTitle().startsWith(QLatin1String("sample.csv")));

        text.clear();
        closeNextDialog(text);
        m_window->open(write(QStringLiteral("gaps.csv"),
                             SampleGenerator().nextSweep() + "rubbish\nmore rubbish\n"));
        QTRY_VERIFY(m_window->windowTitle().startsWith(QLatin1String("gaps.csv")));
        QTRY_VERIFY2(text.contains(QLatin1String("2 lines")), qPrintable(text));
    }

    void menusAndSelectionsAgree()
    {
        GuiBase& services = GuiBase::Instance();
        for (const char* name : {"3  MHz", "2  kHz", "1  Hz", "4  GHz"}) {
            QAction* action = entry(*m_window, QString::fromLatin1(name));
            QVERIFY(action != nullptr);
            action->trigger();
            QCOMPARE(services.GetFrequencyUnit()->GetCurrentIndex() + 1, name[0] - '0');
        }
        services.SetFrequencyUnit(UnitPrefix::Kilo);
        QVERIFY(entry(*m_window, QStringLiteral("2  kHz"))->isChecked());
        QVERIFY(!entry(*m_window, QStringLiteral("4  GHz"))->isChecked());
        entry(*m_window, QStringLiteral("2  1 kHz"))->trigger();
        QCOMPARE(services.GetFrequencyResolution(), UnitPrefix::Kilo);
        entry(*m_window, QStringLiteral("1  1 Hz"))->trigger();
        services.SetFrequencyUnit(UnitPrefix::Mega);
    }

    void manualIsARealFile()
    {
        QString opened;
        TrovOS::Set(std::make_unique<RecordingOS>(opened));
        entry(*m_window, QStringLiteral("Manual..."))->trigger();
        TrovOS::Set(nullptr);
        QFile manual(opened);
        QVERIFY2(manual.open(QIODevice::ReadOnly), qPrintable(opened));
        QVERIFY(manual.readAll().contains("<h1>bandmonitor</h1>"));
    }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
