// SPDX-License-Identifier: MIT
#include "centre/bandview.h"
#include "mainwindowtest.h"
#include "model/textfile.h"
#include "receiver/receiverpanel.h"
#include "recordings.h"
#include "settings/settings.h"
#include "support/dialogscript.h"
#include "support/files.h"
#include "support/filesizelimit.h"
#include "support/modaldialogcloser.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

using namespace bandmonitor;

class tst_RecentRecordings : public MainWindowTest
{
    Q_OBJECT

    QMenu* recent() const
    {
        return m_window->findChild<QMenu*>(QStringLiteral("recentRecordings"));
    }
    QString names() const
    {
        QString result;
        for (const QAction* action : recent()->actions())
            result += action->text().remove(folder() + u'/') + u',';
        return result;
    }
    QString title() const { return m_window->windowTitle().section(QStringLiteral(" – "), 0, 0); }

private Q_SLOTS:
    void listsWhatWasOpened()
    {
        for (const char* name : {"a.csv", "b.csv", "c.csv"})
            QVERIFY(writeFile(filePath(QLatin1String(name)), SampleGenerator().nextSweep()));
        openWindow();
        Q_EMIT m_window->menuBar()->actions().constFirst()->menu()->aboutToShow();
        QVERIFY(!recent()->menuAction()->isEnabled()); // the sample is none of the user's files
        for (const char* name : {"a.csv", "b.csv"})
            open(filePath(QLatin1String(name)));
        QTRY_COMPARE(names(), QStringLiteral("&1 b.csv,&2 a.csv,"));
        DialogScript dialogs({filePath(QStringLiteral("c.csv"))}); // then only Escape
        entry("Open…")->trigger();
        QTRY_COMPARE(title(), QStringLiteral("c.csv"));
        openWindow();
        QTRY_COMPARE(names(), QStringLiteral("&1 c.csv,&2 b.csv,&3 a.csv,"));
        recent()->actions().at(2)->trigger();
        QTRY_COMPARE(title(), QStringLiteral("a.csv"));
        QTRY_COMPARE(names(), QStringLiteral("&1 a.csv,&2 c.csv,&3 b.csv,"));

        // What is gone goes from the list, what cannot be read stays.
        QVERIFY(QFile::remove(filePath(QStringLiteral("b.csv"))));
        recent()->actions().at(2)->trigger();
        QTRY_COMPARE(names(), QStringLiteral("&1 a.csv,&2 c.csv,"));
        QVERIFY(writeFile(filePath(QStringLiteral("c.csv")), "no recording"));
        recent()->actions().at(1)->trigger();
        QTRY_COMPARE(names(), QStringLiteral("&1 c.csv,&2 a.csv,"));
        QTRY_COMPARE(dialogs.shown().filter(QStringLiteral("Recording not opened")).size(), 2);
        QCOMPARE(title(), QStringLiteral("a.csv"));
    }

    void savesWhatIsVisible()
    {
        openWindow();
        m_window->values().gain.SetValue(20); // changes what is shown, not what is saved
        m_window->values().address.SetValue(0x1F);
        m_window->session().replay().jump(3);
        const Sweep sweep = m_window->session().replay().sweep();
        VisibleBand& view = m_window->bandView().visibleBand();
        view.setVisible(97.01e6, 98.99e6);
        QString proposed;
        {
            const ModalDialogCloser closer([&proposed](QDialog& dialog) {
                proposed = static_cast<QFileDialog&>(dialog).selectedFiles().value(0);
            });
            QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        }
        QCOMPARE(QFileInfo(proposed).fileName(), QStringLiteral("sample sweep 4.csv"));
        const QString file = filePath(QStringLiteral("part"));
        DialogScript dialogs({file, QStringLiteral("/dev/null/part.csv")}); // then only Escape
        entry("Save visible sweep")->trigger();
        const QByteArray text = readFile(file + QStringLiteral(".csv"));
        QVERIFY2(text.startsWith("# receiver 0x1F\n2026-01-01, "), text.left(60).constData());
        ReadRecording part;
        part.read(text.toStdString());
        QCOMPARE(part.recording->count(), 1);
        const Sweep saved = part.recording->sweep(0);
        QCOMPARE(saved.timeUs, sweep.timeUs);
        const double step = sweep.segments.front().stepHz;
        QVERIFY(saved.lowHz <= view.low() && saved.lowHz > view.low() - step);
        QVERIFY(saved.highHz >= view.high() && saved.highHz < view.high() + step);
        for (double hertz = saved.lowHz + step / 2; hertz < saved.highHz; hertz += step)
            QCOMPARE(saved.levelAt(hertz), sweep.levelAt(hertz));

        QTRY_COMPARE(names(), QStringLiteral("&1 part.csv,"));
        entry("Save visible sweep")->trigger();
        QTRY_COMPARE(dialogs.shown().size(), 3);
        QVERIFY(dialogs.shown().constLast().startsWith(QLatin1String("Sweep not saved")));
    }

    void cutsHopsAtBins()
    {
        OwnedSegments hops;
        hops.add(0, 10, {1, 2, 3});
        hops.add(1, 7, {4, 5, 6, 7});
        hops.add(100, 1, {8});
        const auto cut = [&hops](double low, double high) {
            const auto segments = hopsBetween(hops.sweep(), low, high);
            return sweepText(makeSweep(0, segments)).replace("1970-01-01, 00:00:00, ", "");
        };
        QCOMPARE(cut(-1e300, 1e300), sweepText(hops.sweep()).replace("1970-01-01, 00:00:00, ", ""));
        // In order, though hops overlap.
        QCOMPARE(cut(21, 22), QByteArray("15, 22, 7.00, 1, 6.00\n20, 30, 10.00, 1, 3.00\n"));
        QCOMPARE(cut(10, 20), QByteArray("8, 22, 7.00, 1, 5.00, 6.00\n10, 20, 10.00, 1, 2.00\n"));
        QCOMPARE(cut(30, 100), QByteArray());
    }

    void fullDiskLeavesTheOldFile()
    {
        const QString file = filePath(QStringLiteral("old.csv"));
        QVERIFY(writeFile(file, "old"));
        {
            const FileSizeLimit full(8192);
            QVERIFY(writeTextFile(file, QByteArray(8193, 'x')).has_value());
        }
        QCOMPARE(readFile(file), QByteArray("old"));
        QCOMPARE(QDir(folder()).entryList({QStringLiteral("old.csv?*")}), QStringList());
    }
};

QTEST_MAIN(tst_RecentRecordings)
#include "tst_recentrecordings.moc"
