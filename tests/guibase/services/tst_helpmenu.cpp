// SPDX-License-Identifier: MIT
#include "messageboxcloser.h"
#include "support/testguard.h"

#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>
#include <jtbase/trovos.h>
#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

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

class TestHelpMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_guard = std::make_unique<TestGuard>();
        m_services = &GuiBase::Instance();
        QVERIFY(ErrorHandler::SetTraceFile(traceFileName()));
        ErrorHandler::SetTraceFlags(ErrorHandler::TraceGuiBase);
    }
    void cleanup()
    {
        ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags);
        ErrorHandler::SetTraceFile(QString());
        TrovOS::Set(nullptr);
        m_services->SetHelpMenu(nullptr);
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }

    void entries_data();
    void entries();
    void entriesCallTheirSlots();
    void menuDiesWithItsParent();
    void manual_data();
    void manual();
    void deprecatedSplash();

private:
    QString traceFileName() const { return m_folder.filePath(QStringLiteral("trace.txt")); }
    QStringList takeTraces()
    {
        QFile file(traceFileName());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QString text = QString::fromUtf8(file.readAll());
        ErrorHandler::SetTraceFile(QString());
        file.remove();
        return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<TestGuard> m_guard;
    GuiBase* m_services = nullptr;
};

void TestHelpMenu::entries_data()
{
    QTest::addColumn<bool>("withReceiver");
    QTest::addColumn<QByteArray>("infoSlot");
    QTest::addColumn<QByteArray>("manualSlot");
    QTest::addColumn<QString>("shortcuts");
    QTest::addColumn<QString>("missing");
    const QByteArray none;
    const QByteArray info = SLOT(showInfo());
    const QString all = QStringLiteral("F1 Ctrl+F1 Ctrl+Q");
    const QString withoutInfo = QStringLiteral("F1 Ctrl+F1");
    const QString withoutManual = QStringLiteral("Ctrl+F1 Ctrl+Q");
    QTest::newRow("all") << true << info << none << all << QString();
    QTest::newRow("not normalized")
        << true << QByteArray("1 showInfo( )") << none << all << QString();
    QTest::newRow("own manual") << true << info << QByteArray(SLOT(showManual(bool))) << all
                                << QString();
    QTest::newRow("no receiver") << false << info << none << withoutInfo << QString();
    QTest::newRow("manual without receiver")
        << false << none << info << QStringLiteral("Ctrl+F1") << QString();
    QTest::newRow("manual not there") << true << info << QByteArray(SLOT(noSlot())) << withoutManual
                                      << QStringLiteral("noSlot()");
    QTest::newRow("info not there")
        << true << QByteArray(SLOT(noSlot())) << none << withoutInfo << QStringLiteral("noSlot()");
    QTest::newRow("null") << true << none << none << withoutInfo << QStringLiteral("");
    QTest::newRow("empty") << true << QByteArray("") << none << withoutInfo << QStringLiteral("");
    QTest::newRow("digit only") << true << QByteArray("1") << none << withoutInfo
                                << QStringLiteral("");
    QTest::newRow("garbage") << true << QByteArray("1)<(,,*&\xff") << none << withoutInfo
                             << QStringLiteral(")<(");
    QTest::newRow("signal") << true << QByteArray(SIGNAL(changed())) << none << withoutInfo
                            << QStringLiteral("changed()");
    QTest::newRow("other arguments") << true << QByteArray(SLOT(showPage(int))) << none
                                     << withoutInfo << QStringLiteral("showPage(int)");
}

void TestHelpMenu::entries()
{
    QFETCH(bool, withReceiver);
    QFETCH(QByteArray, infoSlot);
    QFETCH(QByteArray, manualSlot);
    QFETCH(QString, missing);
    QWidget parent;
    InfoReceiver receiver;
    const QMenu* menu =
        m_services->CreateHelpMenu(&parent, QString(), withReceiver ? &receiver : nullptr,
                                   infoSlot.isNull() ? nullptr : infoSlot.constData(), nullptr,
                                   manualSlot.isNull() ? nullptr : manualSlot.constData());
    QCOMPARE(menu->title(), QStringLiteral("&Help"));
    QStringList shortcuts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        shortcuts << action->shortcut().toString();
    QTEST(shortcuts.join(QLatin1Char(' ')), "shortcuts");

    const QStringList traces = takeTraces();
    QCOMPARE(traces.size(), missing.isNull() ? 0 : 1);
    if (missing.isNull())
        return;
    QVERIFY2(
        traces.first().contains(
            QStringLiteral(
                "controls/guibase/guibase(1699): GuiBase::CreateHelpMenu(): 'InfoReceiver' has "
                "no slot '") +
            missing),
        qPrintable(traces.first()));
}

void TestHelpMenu::entriesCallTheirSlots()
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
    QCOMPARE(actions.at(2)->statusTip(), QStringLiteral("Show info dialog"));

    const ModalDialogCloser closer([](const QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Keyboard - Hotkeys Overview"));
    });
    actions.at(1)->trigger();
    QVERIFY(closer.hasSeenDialog());
}

void TestHelpMenu::menuDiesWithItsParent()
{
    auto parent = std::make_unique<QWidget>();
    auto messageParent = std::make_unique<QWidget>();
    m_services->CreateHelpMenu(parent.get(), QString(), nullptr, nullptr, messageParent.get(),
                               nullptr);
    QVERIFY(m_services->GetHelpMenu() != nullptr);
    parent.reset();
    messageParent.reset();
    QCOMPARE(m_services->GetHelpMenu(), nullptr);
    const ModalDialogCloser closer(
        [](const QDialog& dialog) { QCOMPARE(dialog.parentWidget(), nullptr); });
    m_services->slotHelpContents();
    QVERIFY(closer.hasSeenDialog());
}

void TestHelpMenu::manual_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("warning");
    const QString missing = QStringLiteral("missing.pdf");
    const QString notThere = QStringLiteral("Helpfile not yet available.");
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    // First, as a file that was given once stays until another one is.
    QTest::newRow("nothing") << QString() << QString() << QString()
                             << QStringLiteral("Helpfile not configured.");
    QTest::newRow("configured, not there") << QString() << missing << missing << notThere;
    QTest::newRow("beside the program")
        << QString() << program << QCoreApplication::applicationFilePath() << QString();
    QTest::newRow("given, not there") << missing << program << missing << notThere;
    QTest::newRow("given") << QDir::tempPath() << missing << QDir::tempPath() << QString();
}

void TestHelpMenu::manual()
{
    QFETCH(QString, given);
    QFETCH(QString, configured);
    QFETCH(QString, opened);
    QFETCH(QString, warning);
    const QString formerFolder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QString asked;
    TrovOS::Set(std::make_unique<RecordingOs>(asked));
    CfgCenter::GetAppCfg(SettingsView)->SetString(QStringLiteral("HelpFile"), configured);
    QWidget parent;
    m_services->CreateHelpMenu(&parent, given, nullptr, nullptr, nullptr, nullptr);
    const ModalDialogCloser closer([&](const QDialog& dialog) {
        const auto& box = dynamic_cast<const QMessageBox&>(dialog);
        QCOMPARE(box.text(), warning);
        QCOMPARE(box.windowTitle(), QStringLiteral("Warning"));
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        QCOMPARE(box.parentWidget(), &parent);
    });
    m_services->slotHelpContents();
    QCOMPARE(closer.hasSeenDialog(), !warning.isEmpty());
    QCOMPARE(asked, opened);
    QVERIFY(QDir::setCurrent(formerFolder));
}

void TestHelpMenu::deprecatedSplash()
{
    m_services->ShowSplash(3U);
    m_services->ShowSplash(QPixmap());
    const QStringList traces = takeTraces();
    QCOMPARE(traces.size(), 2);
    QVERIFY(traces.first().endsWith(
        QStringLiteral("controls/guibase/guibase(1043): GuiBase::ShowSplash(...) is deprecated!")));
}

QTEST_MAIN(TestHelpMenu)
#include "tst_helpmenu.moc"
