// SPDX-License-Identifier: MIT
#include "centre/bandview.h"
#include "colorsdialog.h"
#include "live/followedfile.h"
#include "livedialog.h"
#include "mainwindowtest.h"
#include "model/jobs.h"
#include "panels/eventlogpanel.h"
#include "panels/signalspanel.h"
#include "support/files.h"
#include "support/menuvisitor.h"
#include "support/modaldialogcloser.h"

#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <guibase/colors/colorset.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <jtbase/qobjecthelpers.h>
#include <trovappstartup/translationcenter.h>

#include <QCheckBox>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>
#include <QUrl>

using namespace bandmonitor;

namespace {

/// Texts are German while it lives. It notes those that no catalogue has.
class GermanTexts : public QTranslator
{
public:
    GermanTexts()
    {
        // Asked last: those that come later are asked first.
        QCoreApplication::installTranslator(this);
        install(QStringLiteral("de"));
    }
    GermanTexts(const GermanTexts&) = delete;
    GermanTexts& operator=(const GermanTexts&) = delete;
    ~GermanTexts() override { install({}); }

    QStringList missing() const { return m_missing; }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* disambiguation,
                      int) const override
    {
        // The toolkit's own need not be installed.
        const QByteArray name(context);
        if (!name.startsWith('Q') || name.contains("Helpers::"))
            m_missing << QString::fromUtf8(name + ": " + text + disambiguation);
        return {};
    }

private:
    static void install(const QString& language)
    {
        TranslationCenter::Instance().SetLanguage(language);
        TranslationCenter::Instance().Init();
        QLocale::setDefault(QLocale::c());
    }

    mutable QStringList m_missing;
};

} // namespace

class tst_MainWindow : public MainWindowTest
{
    Q_OBJECT
    QUrl m_opened;

    QString write(const QString& name, const QByteArray& content)
    {
        return writeFile(filePath(name), content) ? filePath(name) : QString();
    }
    void prepare() override { openWindow(); }

    /// The entries of the menu and of its sub-menus, without what is only a list of files.
    static QList<QAction*> commands(const QList<QAction*>& entries)
    {
        QList<QAction*> found;
        for (QAction* entry : entries) {
            const QMenu* menu = entry->menu();
            if (menu == nullptr && !entry->isSeparator())
                found << entry;
            else if (menu != nullptr && menu->objectName() != QLatin1String("recentRecordings") &&
                     menu->objectName() != QLatin1String("colorSets"))
                found << commands(menu->actions());
        }
        return found;
    }
    /// Every command is in the overview, with a key that no other one has.
    void checkOverview() const
    {
        const std::unique_ptr<QWidget> overview(GuiBase::Instance().GetHotkeysCtrl(nullptr));
        const auto* list = qobject_cast<QTreeWidget*>(overview.get());
        QStringList shown;
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            const QTreeWidgetItem* item = list->topLevelItem(row);
            shown << item->text(5);
            QVERIFY2(item->icon(0).isNull(), qPrintable(item->toolTip(0))); // no conflict
        }
        const QList<QAction*> all = commands(m_window->menuBar()->actions());
        QVERIFY(all.size() > 60);
        QSet<QString> keys;
        for (const QAction* command : all) {
            const QString text = command->text().remove(u'&');
            QVERIFY2(!command->shortcut().isEmpty(), qPrintable(text));
            QVERIFY2(!keys.contains(command->shortcut().toString()), qPrintable(text));
            QVERIFY2(shown.contains(text), qPrintable(text));
            keys << command->shortcut().toString();
        }
    }
    /// No two entries of a menu have one letter; `taken` are the texts of others.
    static void checkLetters(const QList<QAction*>& entries, const QStringList& taken = {})
    {
        QStringList texts = taken;
        for (const QAction* entry : entries) {
            texts << entry->text();
            if (entry->menu() != nullptr)
                checkLetters(entry->menu()->actions());
        }
        QHash<QString, QString> letters;
        for (const QString& text : std::as_const(texts)) {
            const QString letter = QKeySequence::mnemonic(text).toString();
            const QString pair = letters.value(letter) + QStringLiteral(", ") + text;
            QVERIFY2(letter.isEmpty() || !letters.contains(letter), qPrintable(pair));
            letters.insert(letter, text);
        }
    }
    /// Neither in a menu nor in the window does a letter stand for two things.
    void checkLetters() const
    {
        QStringList fields;
        for (const QLabel* label : m_window->findChildren<QLabel*>()) {
            if (label->buddy() != nullptr)
                fields << label->text();
        }
        for (const QCheckBox* box : m_window->findChildren<QCheckBox*>())
            fields << box->text();
        checkLetters(m_window->menuBar()->actions(), fields);
    }
    /// Types a colour in the row of the editor, as the operator does.
    static void choose(QDialog* dialog, const QString& element, const QString& color)
    {
        auto* list = dialog->findChild<SortListView*>();
        list->setCurrentItem(list->findItems(element, Qt::MatchExactly | Qt::MatchRecursive).at(0));
        QTest::keyClick(list, Qt::Key_Return);
        for (QLineEdit* edit : list->viewport()->findChildren<QLineEdit*>()) {
            if (!edit->isVisible())
                continue;
            edit->setText(color);
            QTest::keyClick(edit, Qt::Key_Return);
        }
    }

public Q_SLOTS:
    void takeUrl(const QUrl& url) { m_opened = url; }

private Q_SLOTS:
    void eventLogTellsWhatHappens()
    {
        // After a few sweeps the signals of one band go, and those of another one come.
        SampleSettings second;
        second.seed = 2;
        second.sweeps = 80;
        SampleSettings first;
        first.sweeps = 5;
        second.startTimeUs = first.startTimeUs + 5 * first.sweepIntervalUs;
        open(write(QStringLiteral("two bands.csv"),
                   SampleGenerator(first).remaining() + SampleGenerator(second).remaining()));
        const EventLog& log = m_window->session().events();
        const auto count = [&log](const char* part) {
            int found = 0;
            for (quint64 number = log.begin(); number < log.end(); ++number)
                found += log.event(number).text.contains(QLatin1String(part)) ? 1 : 0;
            return found;
        };
        QCOMPARE(count("two bands.csv opened: 85 sweeps"), 1);
        QCOMPARE(count("has restarted"), 2); // one for each recording
        // All that came and did not go is in the list.
        const SortListView& list = m_window->panel<SignalsPanel>().list();
        int followed = list.topLevelItemCount();
        QVERIFY(followed > 0);
        for (int sweep = 1; sweep < 85; ++sweep)
            m_window->session().replay().stepForward();
        const int gone = count("Disappeared: ");
        QVERIFY(gone > 0);
        followed += count("Appeared: ") - gone;
        QTRY_COMPARE(list.topLevelItemCount(), followed);
        for (int step = 0; step < 3; ++step) // it begins anew, and nothing came or went
            m_window->session().replay().stepBackward();
        QCOMPARE(count("has restarted"), 3);
        QCOMPARE(count("Disappeared: "), gone);

        for (const Job& job : m_window->session().jobs().list().jobs()) {
            for (int i = 0; i < 2 && job.name.contains(QLatin1String("above the reference")); ++i)
                m_window->session().jobs().run(job.id);
        }
        QCOMPARE(count(": started"), 1);
        QCOMPARE(count(": called off"), 1);
        m_window->modes().setMode(Mode::Measure);
        QCOMPARE(count("Measure"), 1);
        const QSignalSpy told(m_window.get(), &MainWindow::notOpened);
        m_window->open(filePath(QStringLiteral("none.csv")), MainWindow::OnFailure::Tell);
        QTRY_COMPARE(count("Not opened: "), 1);
        QCOMPARE(told.count(), 1);
    }

    void eventsLeadToTheirSweeps()
    {
        Replay& replay = m_window->session().replay();
        replay.jump(5);
        m_window->modes().setMode(Mode::Plan);
        m_window->modes().setMode(Mode::Search);
        auto& panel = m_window->panel<EventLogPanel>();
        m_window->panelDocks().dock(QStringLiteral("events"))->raise();
        SortListView& list = panel.list();
        QTRY_VERIFY(panel.shownText().endsWith(QLatin1String("Mode: Search\n")));
        list.setFocus();
        list.setCurrentItem(list.topLevelItem(list.topLevelItemCount() - 1));
        QVERIFY(!list.currentItem()->text(EventLogPanel::Recorded).isEmpty());
        replay.jump(50);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(replay.position(), 5);
        QTest::keyClick(&list, Qt::Key_Space); // the list does not use it
        QVERIFY(replay.isPlaying());
        QTest::keyClicks(panel.findChild<QLineEdit*>(), QStringLiteral(" "));
        QVERIFY(replay.isPlaying());
        replay.pause();
        open(samplePath()); // the same, but not the recording of the event
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(replay.position(), 0);

        const QString grows = filePath(QStringLiteral("grows.csv"));
        QVERIFY(QFile::copy(samplePath(), grows));
        m_window->setHistory(100'000);
        m_window->openLive(std::make_unique<FollowedFile>(grows));
        QTRY_VERIFY(m_window->session().showsLive() &&
                    m_window->session().recording()->first() > 0);
        const qsizetype shown = replay.position();
        Q_EMIT panel.placeWanted({m_window->session().recordingNumber(), 0, 0}); // it is gone
        QCOMPARE(replay.position(), shown);
    }

    void lettersOfAnOpenMenuChooseItsEntries()
    {
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_window->bandView().spectrum().setFocus();
        const QAction* trace = entry("Current");
        QMenu* edit = m_window->menuBar()->actions().at(1)->menu();
        QVERIFY(trace->isChecked());
        MenuVisitor::announceKeyboardGrab();
        edit->popup(m_window->pos());
        MenuVisitor::announceKeyboardGrab();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_C);
        QVERIFY(trace->isChecked());
        QTRY_VERIFY(edit->actions().at(3)->menu()->isVisible());
        edit->close();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_C);
        QVERIFY(!trace->isChecked());
    }

    void picturesAndTextsAreCopied()
    {
        const QClipboard* clipboard = QApplication::clipboard();
        entry("Picture of the spectrum")->trigger();
        QCOMPARE(clipboard->image().size(), m_window->bandView().spectrum().size());
        m_window->session().replay().jump(30);
        entry("Signals as text")->trigger(); // before the list had the time to follow
        const auto signalCount = static_cast<int>(m_window->session().watch().tracks().size());
        QVERIFY(clipboard->text().startsWith(QLatin1String("Frequency\tLevel\t")));
        QCOMPARE(clipboard->text().count(u'\n'), signalCount + 1);
        entry("Events as text")->trigger();
        QVERIFY(clipboard->text().contains(QLatin1String("sample.csv opened")));
    }

    void returnRunsTheKeptCommand()
    {
        const auto answer = [this](const QString& typed) {
            LiveDialog dialog(m_window.get());
            QTimer::singleShot(0, &dialog, [&] {
                auto* field = dialog.findChild<QLineEdit*>();
                QTest::keyClicks(field, typed);
                QTRY_VERIFY(!field->text().isEmpty());
                QTest::keyClick(field, Qt::Key_Return);
                QTimer::singleShot(2000, &dialog, &QDialog::reject); // It had been ignored.
            });
            return dialog.ask();
        };
        QCOMPARE(answer(QStringLiteral("cat band")), QStringLiteral("cat band"));
        QCOMPARE(answer({}), QStringLiteral("cat band"));
    }

    void cancelledLoadLeavesTheFormerRecording()
    {
        QCOMPARE(m_window->windowTitle(),
                 QStringLiteral("sample.csv – sweep 1 of 120 – bandmonitor"));
        SampleSettings settings;
        settings.binsPerHop = 4000;
        settings.sweeps = 100;
        const QString file =
            write(QStringLiteral("long.csv"), SampleGenerator(settings).remaining());
        m_window->open(file);
        auto* cancel = m_window->findChild<QPushButton*>();
        QVERIFY(cancel->isVisible());
        QTest::mouseClick(cancel, Qt::LeftButton);
        QTRY_VERIFY(!cancel->isVisible());
        m_window->session().replay().stepForward();
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("sample.csv – sweep 2")));
        QCOMPARE(m_window->bandView().position(), 1);
        // Closing in the middle of loading is safe as well.
        m_window->open(file);
        QCoreApplication::processEvents();
        m_window.reset();
    }

    void skippedLinesAreTold()
    {
        QString text;
        const ModalDialogCloser closer([&text](QDialog& dialog) {
            for (const QLabel* label : dialog.findChildren<QLabel*>())
                text += label->text() + QLatin1Char('\n');
        });
        open(write(QStringLiteral("gaps.csv"),
                   SampleGenerator().nextSweep() + "rubbish\nmore rubbish\n"));
        QTRY_VERIFY2(text.contains(QLatin1String("2 lines")), qPrintable(text));
    }

    void menusAndSelectionsAgree()
    {
        GuiBase& services = GuiBase::Instance();
        for (const char* name : {"3  Frequencies in MHz", "2  Frequencies in kHz",
                                 "1  Frequencies in Hz", "4  Frequencies in GHz"}) {
            entry(name)->trigger();
            QCOMPARE(services.GetFrequencyUnit()->GetCurrentIndex() + 1, name[0] - '0');
        }
        services.SetFrequencyUnit(UnitPrefix::Kilo);
        QVERIFY(entry("2  Frequencies in kHz")->isChecked() &&
                !entry("4  Frequencies in GHz")->isChecked());
        entry("2  Frequencies to 1 kHz")->trigger();
        QCOMPARE(services.GetFrequencyResolution(), UnitPrefix::Kilo);
        entry("1  Frequencies to 1 Hz")->trigger();
        services.SetFrequencyUnit(UnitPrefix::Mega);
    }

    void overviewShowsEveryCommandOnce()
    {
        checkOverview();
        checkLetters();
    }

    /// Whatever the window asks for is in a catalogue, and its keys are those of English.
    void germanIsWhole()
    {
        if (TranslationCenter::GetLanguages(QStringLiteral("bandmonitor")).isEmpty())
            QSKIP("Built without lrelease");
        const GermanTexts german;
        openWindow();
        QVERIFY(entry("Vergrößern") != nullptr);
        checkOverview();
        checkLetters();
        m_window.reset();
        QCOMPARE(german.missing(), QStringList());
    }

    void chosenLanguageIsKept()
    {
        const auto choose = [this](const char* text) {
            const ModalDialogCloser closer([](QDialog&) {});
            entry(text)->trigger();
            return closer.hasSeenDialog();
        };
        QVERIFY(!choose("1  As the system"));
        QVERIFY(choose("2  English"));
        QCOMPARE(TranslationCenter::GetLanguageFromCfg(), QStringLiteral("en"));
        openWindow();
        QVERIFY(entry("2  English")->isChecked());
        QVERIFY(choose("1  As the system"));
        QCOMPARE(TranslationCenter::GetLanguageFromCfg(), QStringLiteral("system"));
    }

    void toolTipsFollowChangedKeys()
    {
        GuiBase& services = GuiBase::Instance();
        const auto tip = [this] { return entry("Step forward")->toolTip(); };
        QCOMPARE(tip(), QStringLiteral("Step forward (.)"));
        const int id = services.GetIndex4HotKey(Qt::Key_Period, 0);
        services.ChangeHotKey(id, Qt::Key_N, 0);
        QCOMPARE(tip(), QStringLiteral("Step forward (N)"));
        openWindow();
        QCOMPARE(tip(), QStringLiteral("Step forward (N)"));
        services.ChangeHotKey(services.GetIndex4HotKey(Qt::Key_N, 0), Qt::Key(0), 0);
        QCOMPARE(tip(), QStringLiteral("Step forward"));
    }

    void colorsAreEdited()
    {
        ColorSet& colors = ColorSet::Instance();
        colors.Save(nullptr, filePath(QStringLiteral("own.cst")));
        const auto openEditor = [this] {
            entry("Edit colours")->trigger();
            return m_window->findChild<ColorsDialog*>();
        };
        QPointer<ColorsDialog> dialog = openEditor();
        QVERIFY(dialog->isVisible());
        const auto isDrawnWith = [this](const char* color) {
            const QImage image = m_window->bandView().spectrum().grab().toImage();
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (image.pixelColor(x, y) == QColor(QLatin1String(color)))
                        return true;
                }
            }
            return false;
        };
        const auto press = [&dialog](QDialogButtonBox::StandardButton button) {
            dialog->findChild<QDialogButtonBox*>()->button(button)->click();
        };
        const char* const magenta = "#ff00ff";
        const char* const blue = "#0000ff";
        choose(dialog, QStringLiteral("Main Curve"), QStringLiteral("Light Magenta"));
        QVERIFY(!isDrawnWith(magenta));
        press(QDialogButtonBox::Apply);
        QVERIFY(isDrawnWith(magenta));
        choose(dialog, QStringLiteral("Main Curve"), QStringLiteral("Light Blue"));
        press(QDialogButtonBox::Cancel);
        QTRY_VERIFY(dialog == nullptr);
        QVERIFY(isDrawnWith(magenta) && !isDrawnWith(blue));

        dialog = openEditor();
        const QSize size(560, 520);
        dialog->resize(size);
        choose(dialog, QStringLiteral("Main Curve"), QStringLiteral("Light Blue"));
        press(QDialogButtonBox::Ok);
        QTRY_VERIFY(dialog == nullptr);
        QVERIFY(!isDrawnWith(magenta) && isDrawnWith(blue));
        dialog = openEditor();
        QCOMPARE(dialog->size(), size);
        dialog->close();
        QTRY_VERIFY(dialog == nullptr);
        entry("Factory colours")->trigger();
        QVERIFY(!isDrawnWith(blue));
    }

    void colorChangePaintsEachPaneOnce()
    {
        QHash<const QObject*, int> paints;
        QElapsedTimer sincePaint;
        sincePaint.start();
        const QObjectHelpers::EventFilter counter(qApp,
                                                  [&](const QObject* object, const QEvent* event) {
                                                      if (event->type() == QEvent::Paint) {
                                                          ++paints[object];
                                                          sincePaint.start();
                                                      }
                                                      return false;
                                                  });
        // Once all is loaded and drawn.
        QVERIFY(QTest::qWaitFor([&] { return sincePaint.hasExpired(200); }, 60'000));
        paints.clear();
        entry("Factory colours")->trigger();
        BandView& band = m_window->bandView();
        QTRY_VERIFY(paints.value(&band.spectrum()) > 0);
        QCoreApplication::processEvents();
        QCOMPARE(paints.value(&band.spectrum()), 1);
        QCOMPARE(paints.value(&band.waterfall()), 1);
    }

    void manualIsARealFile()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeUrl");
        entry("Manual...")->trigger();
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        QVERIFY(readFile(m_opened.toLocalFile()).contains("<h1>bandmonitor</h1>"));
    }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
