// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"

#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>
#include <jtbase/trovos.h>
#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QDir>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include <memory>

class InfoReceiver : public QObject
{
    Q_OBJECT
public:
    int infos = 0;
    int manuals = 0;

public Q_SLOTS:
    void showInfo() { ++infos; }
    void showManual(bool) { ++manuals; }
    void showPage(int) {}
Q_SIGNALS:
    void changed();
};

class RecordingOs : public TrovOS
{
public:
    explicit RecordingOs(QString& opened)
        : m_opened(opened)
    {}
    int OpenFile(const QString& fileName) override
    {
        m_opened = fileName;
        return fileName.contains(QStringLiteral("missing")) ? TrovOS::noAssociation
                                                            : TrovOS::firstSuccessCode;
    }

private:
    QString& m_opened;
};

class tst_HelpMenu : public GuardedTest
{
    Q_OBJECT
    using Entries = TestRows<bool, const char*, const char*, QString, QString>;
    using Manuals = TestRows<QString, QString, QString, QString>;

private Q_SLOTS:
    void entries_data()
    {
        // Whether there is a receiver, its info and manual slots; shortcuts, and the missing slot.
        Entries row;
        const char* info = SLOT(showInfo());
        const QString all = QStringLiteral("F1 Ctrl+F1 Ctrl+Q");
        const QString noInfo = QStringLiteral("F1 Ctrl+F1");
        row("all", true, info, nullptr, all, "-");
        row("own manual", true, info, SLOT(showManual(bool)), all, "-");
        row("no receiver", false, info, nullptr, noInfo, "-");
        row("manual without receiver", false, nullptr, info, "Ctrl+F1", "-");
        row("manual not there", true, info, SLOT(noSlot()), "Ctrl+F1 Ctrl+Q", "noSlot()");
        row("info not there", true, SLOT(noSlot()), nullptr, noInfo, "noSlot()");
        row("null", true, nullptr, nullptr, noInfo, "");
        row("garbage", true, "1)<(,,*&\xff", nullptr, noInfo, ")<(");
        row("signal", true, SIGNAL(changed()), nullptr, noInfo, "changed()");
        row("other arguments", true, SLOT(showPage(int)), nullptr, noInfo, "showPage(int)");
    }
    void entries()
    {
        const auto& [withReceiver, infoSlot, manualSlot, expected, missing] = Entries::fetch();
        ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags); // tells it unasked
        QWidget parent;
        InfoReceiver receiver;
        const QMenu* menu = m_services->CreateHelpMenu(
            &parent, QString(), withReceiver ? &receiver : nullptr, infoSlot, nullptr, manualSlot);
        QCOMPARE(menu->title(), QStringLiteral("&Help"));
        QStringList shortcuts;
        for (const QAction* action : menu->actions())
            shortcuts << action->shortcut().toString();
        QCOMPARE(shortcuts.join(u' '), expected);
        const QString traces = takeTraces();
        QCOMPARE(traces.count(u'\n'), missing == QLatin1String("-") ? 0 : 1);
        const QString trace =
            QStringLiteral("controls/guibase/guibase(1699): "
                           "GuiBase::CreateHelpMenu(): 'InfoReceiver' has no slot '");
        QVERIFY2(traces.isEmpty() || traces.contains(trace + missing), qPrintable(traces));
    }
    void entriesCallTheirSlots()
    {
        QWidget parent;
        InfoReceiver receiver;
        const QList<QAction*> actions =
            m_services
                ->CreateHelpMenu(&parent, QString(), &receiver, SLOT(showInfo()), nullptr,
                                 SLOT(showManual(bool)))
                ->actions();
        for (const int index : {0, 2})
            actions.at(index)->trigger();
        QCOMPARE(receiver.manuals, 1);
        QCOMPARE(receiver.infos, 1);

        const ModalDialogCloser closer([](const QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Keyboard - Hotkeys Overview"));
        });
        actions.at(1)->trigger();
        QVERIFY(closer.hasSeenDialog());
    }
    void ownShortcutIsGivenUp_data()
    {
        TestRows<bool> row;
        row("help menu made first", true);
        row("help menu made last", false);
    }
    void ownShortcutIsGivenUp()
    {
        const bool helpFirst = std::get<0>(TestRows<bool>::fetch());
        m_services->SetApplication(qApp);
        QMainWindow window;
        InfoReceiver receiver;
        const auto addHelp = [&] {
            window.menuBar()->addMenu(m_services->CreateHelpMenu(
                &window, QString(), &receiver, SLOT(showInfo()), nullptr, nullptr));
        };
        if (helpFirst)
            addHelp();
        QAction* const quit = window.menuBar()->addMenu(QString())->addAction(
            QStringLiteral("Quit"), Qt::CTRL | Qt::Key_Q, [] {});
        const QSignalSpy quits(quit, &QAction::triggered);
        if (!helpFirst)
            addHelp();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (int time = 1; time <= 2; ++time) {
            QTest::keyClick(window.windowHandle(), Qt::Key_Q, Qt::ControlModifier);
            QCOMPARE(quits.count(), time);
        }
        QCOMPARE(receiver.infos, 0);
        QVERIFY(takeTraces().contains(QStringLiteral("'&Info...' loses Ctrl+Q to 'Quit'")));
    }
    void menuDiesWithItsParent()
    {
        auto parent = std::make_unique<QWidget>();
        m_services->CreateHelpMenu(parent.get(), QString(), nullptr, nullptr, nullptr, nullptr);
        QVERIFY(m_services->GetHelpMenu() != nullptr);
        parent.reset();
        QCOMPARE(m_services->GetHelpMenu(), nullptr);
    }
    void manual_data()
    {
        const QString notThere = QStringLiteral("Helpfile not yet available.");
        const QString path = QCoreApplication::applicationFilePath();
        const QString program = QFileInfo(path).fileName();
        // Given, configured, opened, warning. What was given once stays.
        Manuals row;
        row("nothing", "", "", "", "Helpfile not configured.");
        row("configured, not there", "", "missing.pdf", "missing.pdf", notThere);
        row("beside the program", "", program, path, "");
        row("given, not there", "missing.pdf", program, "missing.pdf", notThere);
        row("given", QDir::tempPath(), "missing.pdf", QDir::tempPath(), "");
        row("given before", "", "missing.pdf", QDir::tempPath(), "");
    }
    void manual()
    {
        const auto& [given, configured, opened, warning] = Manuals::fetch();
        const QString formerFolder = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder()));
        QString asked;
        TrovOS::Set(std::make_unique<RecordingOs>(asked));
        CfgCenter::GetAppCfg(SettingsView)->SetString(QStringLiteral("HelpFile"), configured);
        QWidget parent;
        m_services->CreateHelpMenu(&parent, given, nullptr, nullptr, nullptr, nullptr);
        const ModalDialogCloser closer([&, text = warning](const QDialog& dialog) {
            const auto& box = dynamic_cast<const QMessageBox&>(dialog);
            QCOMPARE(box.text(), text);
            QCOMPARE(box.windowTitle(), QStringLiteral("Warning"));
            QCOMPARE(box.standardButtons(), QMessageBox::Ok);
            QCOMPARE(box.parentWidget(), &parent);
            const QString more = box.informativeText();
            QCOMPARE(more.contains(QStringLiteral("missing.pdf")), !asked.isEmpty());
            QCOMPARE(more.contains(QDir::currentPath()), !asked.isEmpty());
            QCOMPARE(more.contains(QCoreApplication::applicationDirPath()), !asked.isEmpty());
        });
        m_services->slotHelpContents();
        QCOMPARE(closer.hasSeenDialog(), !warning.isEmpty());
        QCOMPARE(asked, opened);
        QVERIFY(QDir::setCurrent(formerFolder));
    }

private:
    QString traceFileName() const { return filePath(QStringLiteral("trace.txt")); }
    void prepare() override
    {
        QVERIFY(ErrorHandler::SetTraceFile(traceFileName()));
        ErrorHandler::SetTraceFlags(ErrorHandler::TraceGuiBase);
    }
    void tidy() override
    {
        ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags);
        ErrorHandler::SetTraceFile(QString());
        TrovOS::Set(nullptr);
        m_services->SetHelpMenu(nullptr);
    }
    QString takeTraces() const { return QString::fromUtf8(readFile(traceFileName())); }

    GuiBase* m_services = &GuiBase::Instance();
};

QTEST_MAIN(tst_HelpMenu)
#include "tst_helpmenu.moc"
