// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/guardedtest.h"

#include <guibase/colors/colorset.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>
#include <valueframework/valueselection.h>
#include <xmsgdlg/xmessagedialog.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <ctime>
#include <memory>

class tst_GuiBase : public GuardedTest
{
    Q_OBJECT
    using Sheets = TestRows<QString, QString, QString>;

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "XST-5:30");
        tzset();
    }

    void signalTypes()
    {
        QCOMPARE(m_services->GetSignalType('Q'), QStringLiteral("Type_Q"));
        for (const char letter : {'0', '@', '[', '\0', '\xe1'})
            QCOMPARE(m_services->GetSignalType(letter), QStringLiteral("Unknown"));
    }
    void timeString()
    {
        const QString format = QStringLiteral("yyyy-MM-dd hh:mm:ss.zzzuuu");
        quint64 time = 86'401'000'005;
        for (const auto& [zone, text] : {std::pair(0, "1970-01-02 00:00:01.000005"),
                                         std::pair(1, "1970-01-02 05:30:01.000005")}) {
            QVERIFY(m_services->GetTimeZone()->SetCurrentIndex(zone));
            QCOMPARE(m_services->GetTimeZoneValue(), zone);
            QCOMPARE(m_services->TimeString(time, format), QString::fromLatin1(text));
        }
    }
    void dataDirectory()
    {
        for (const QString& good : {QDir::rootPath(), QString(), QDir::tempPath()}) {
            QVERIFY(m_services->SetDefaultDataDirectory(good));
            for (const QString& bad :
                 {QStringLiteral("/no/such/folder"), QCoreApplication::applicationFilePath()})
                QVERIFY2(!m_services->SetDefaultDataDirectory(bad), qPrintable(bad));
            QCOMPARE(m_services->GetDefaultDataDirectory(), good);
        }
    }
    void nextApplicationIsSavedToo()
    {
        m_services->aboutToTerminate();
        m_services->SetApplication(qApp);
        SortListView list;
        list.addColumn(QStringLiteral("column"));
        list.show();
        m_services->StoreColumnWidth4(QStringLiteral("list"), &list);
        CfgCenter::SaveAll();
        const auto cfg =
            CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("FreqStoreListView"));
        QVERIFY(cfg->GetString(QStringLiteral("list")).endsWith(QStringLiteral(",0,0;")));
    }
    void nativeDialogs()
    {
        for (const auto& [configured, options] :
             {std::pair("", QFileDialog::Options()), std::pair("true", QFileDialog::Options()),
              std::pair("false", QFileDialog::Options(QFileDialog::DontUseNativeDialog))}) {
            if (*configured != 0)
                applicationCfg()->SetString(QStringLiteral("UseNativeDialogs"),
                                            QString::fromLatin1(configured));
            m_services->SetApplication(qApp);
            QCOMPARE(m_services->UseNativeDialogs(), options);
        }
    }
    void styleSheet_data()
    {
        // The application's setting, the administrator's, and what is loaded. A name with a star
        // is made absolute; others are looked for in the administrator's folder.
        Sheets row;
        row("application's", "*red #%20.css", "*blue.css", "red");
        row("missing, then administrator's", "*missing.css", "*blue.css", "blue");
        row("in the data folder", "missing.css", "blue.css", "blue");
        row("application's name is not looked for there", "blue.css", "missing.css", "");
        row("nowhere", "missing.css", "*missing.css", "");
    }
    void styleSheet()
    {
        const auto& [application, administrator, loaded] = Sheets::fetch();
        const QString base = folder() + QLatin1Char('/');
        QVERIFY(writeFile(base + QStringLiteral("red #%20.css"), "QLabel { color: #ff0000 }"));
        QVERIFY(writeFile(base + QStringLiteral("blue.css"), "QLabel { color: #0000ff }"));
        ICfg* administratorCfg = CfgCenter::GetAdminCfg(SettingsView);
        administratorCfg->SetString(QStringLiteral("SkornDataDir"), folder());
        administratorCfg->SetString(QStringLiteral("StyleSheet"),
                                    QString(administrator).replace(QLatin1Char('*'), base));
        applicationCfg()->SetString(QStringLiteral("StyleSheet"),
                                    QString(application).replace(QLatin1Char('*'), base));
        const QString former = QStringLiteral("QLabel { color: #00ff00 }");
        qApp->setStyleSheet(former);
        m_services->loadStyleSheet(nullptr);
        QCOMPARE(qApp->styleSheet(), former); // Without application nothing is loaded.

        m_services->SetApplication(qApp);
        QLabel label;
        label.ensurePolished();
        const QColor color(loaded.isEmpty() ? QStringLiteral("lime") : loaded);
        QCOMPARE(label.palette().color(QPalette::WindowText), color);
    }
    void messageDialog()
    {
        ErrorHandler::SetMessageDlg(nullptr);
        m_services->SetApplication(qApp);
        QCOMPARE(ErrorHandler::GetMessageDlg(), nullptr);

        class OtherDialog : public IMessageDlg
        {
            MessageDlgSettings GetSettings() const override
            {
                return {QStringLiteral("App"), nullptr};
            }
            void SetSettings(const MessageDlgSettings&) override {}
            bool Show(const UserMessage&, QWidget*) override { return false; }
        };
        ErrorHandler::SetMessageDlg(std::make_unique<OtherDialog>());
        m_services->SetApplication(qApp);
        auto* dialog = dynamic_cast<XMessageDialog*>(ErrorHandler::GetMessageDlg());
        QVERIFY(dialog != nullptr);
        QCOMPARE(dialog->GetSettings().applicationName, QStringLiteral("App"));
        ErrorHandler::SetMessageDlg(nullptr);
    }
    void settingsComeBack()
    {
        const QString colorFile = filePath(QStringLiteral("night.cst"));
        ColorSet& colors = ColorSet::Instance();
        const QRgb factory = colors.GetColor(IColorBase::ECOLOR{}).rgb();
        const QColor other = colors.GetColor(static_cast<IColorBase::ECOLOR>(1));
        colors.SetColor(IColorBase::ECOLOR{}, other, false);
        colors.Save(nullptr, colorFile);
        m_services->GetTimeZone()->SetCurrentIndex(0);
        m_services->GetPositionFormat()->SetCurrentIndex(5);
        m_services->SavePersistant();
        QVERIFY(CfgCenter::Store());

        m_services->GetTimeZone()->SetCurrentIndex(1);
        m_services->GetPositionFormat()->SetCurrentIndex(2);
        colors.slotRestoreFactoryColors();
        QCOMPARE(colors.GetColor(IColorBase::ECOLOR{}).rgb(), factory);
        QSignalSpy colorsChanged(m_services, &GuiBase::signalColorsChanged);
        m_services->SetApplication(qApp);
        QCOMPARE(m_services->GetTimeZone()->GetCurrentIndex(), 0);
        QCOMPARE(m_services->GetPositionFormat()->GetCurrentIndex(), 5);
        QCOMPARE(colors.GetName(), colorFile);
        QCOMPARE(colors.GetColor(IColorBase::ECOLOR{}).rgb(), other.rgb());
        QCOMPARE(colorsChanged.count(), 1);

        // The save cycle of the configuration centre reads again, too.
        m_services->GetTimeZone()->SetCurrentIndex(1);
        CfgCenter::LoadAll();
        QCOMPARE(m_services->GetTimeZone()->GetCurrentIndex(), 0);
        colors.slotRestoreFactoryColors();
    }
    void darkDesktopGetsTheDarkColors()
    {
        const QPalette light = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(30, 30, 30)));
        m_services->SetApplication(qApp);
        const QString whenDark = ColorSet::Instance().GetName();
        QSignalSpy changes(m_services, &GuiBase::signalColorsChanged);
        QApplication::setPalette(light);
        QCOMPARE(whenDark, QLatin1String(ColorSet::darkDesktopName));
        QCOMPARE(ColorSet::Instance().GetName(), QLatin1String(ColorSet::factoryDefaultName));
        QVERIFY(!changes.isEmpty());
    }
    void applicationIsForgotten()
    {
        m_services->SetApplication(qApp);
        m_services->SetApplication(qApp);
        QSignalSpy escapes(m_services, &GuiBase::hotkey_ESC_pressed);
        QWidget widget;
        QTest::keyClick(&widget, Qt::Key_Escape);
        QCOMPARE(escapes.count(), 1);
        m_services->SetApplication(nullptr);
        QCOMPARE(m_services->GetApplication(), nullptr);
        QTest::keyClick(&widget, Qt::Key_Escape);
        QCOMPARE(escapes.count(), 1);
    }
    void mainWidgetIsReplaced()
    {
        QWidget first;
        QWidget second;
        m_services->SetMainWidget(&first);
        QCOMPARE(m_services->GetApplication(), qApp);
        QCOMPARE(first.property("SKORN_AppName").toString(), CfgCenter::GetAppName());
        first.resize(311, 212);
        m_services->SetMainWidget(&first);
        m_services->StoreWidgetSize();

        m_services->SetMainWidget(&second);
        QCOMPARE(m_services->GetMainWidget(), &second);
        QCOMPARE(second.size(), QSize(311, 212));
        first.resize(100, 100);
        m_services->StoreWidgetSize();
        m_services->SetMainWidget(nullptr);
        QCOMPARE(m_services->GetMainWidget(), nullptr);
        m_services->SetMainWidget(&first);
        QCOMPARE(first.size(), QSize(311, 212));
    }
    void mainWidgetEndsApplication_data()
    {
        TestRows<bool, int> row;
        row("main widget", true, 0);
        row("former main widget", false, 1);
    }
    void mainWidgetEndsApplication()
    {
        const auto& [destroyMain, result] = TestRows<bool, int>::fetch();
        const bool quitsOnClose = QGuiApplication::quitOnLastWindowClosed();
        QGuiApplication::setQuitOnLastWindowClosed(false);
        auto former = std::make_unique<QWidget>();
        auto main = std::make_unique<QWidget>();
        m_services->SetMainWidget(former.get());
        m_services->SetMainWidget(main.get());
        QObject context;
        QTimer::singleShot(0, &context, [&, destroyMain = destroyMain] {
            (destroyMain ? main : former).reset();
            QTimer::singleShot(0, &context, [] { QCoreApplication::exit(1); });
        });
        QCOMPARE(QCoreApplication::exec(), result);
        QCOMPARE(m_services->GetMainWidget(), main.get());
        QGuiApplication::setQuitOnLastWindowClosed(quitsOnClose);
    }
    void finishEditing()
    {
        QSignalSpy ends(m_services, &GuiBase::endEdit);
        m_services->ForceFinishEditing();
        QCOMPARE(ends.count(), 0);
        QLineEdit editor;
        editor.show();
        editor.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        m_services->ForceFinishEditing();
        QCOMPARE(ends.count(), 1);
        QCOMPARE(ends.at(0).at(0).value<QWidget*>(), &editor);
    }
    void splash()
    {
        constexpr int seconds = 1;
        m_services->HideSplash(); // Without start-up object.
        TrovApplication startUp;
        startUp.ShowSplash();
        applicationCfg()
            ->OpenSubCfg(QStringLiteral("Startup"))
            ->SetInt(QStringLiteral("SplashTimeout"), seconds);
        m_services->Write2Splash(QStringLiteral("Loading"));
        QCOMPARE(startUp.GetSplashText(), QStringLiteral("Loading"));
        m_services->BusySplash();
        QVERIFY(startUp.IsSplashBusy());
        m_services->HideSplash();
        QVERIFY(startUp.IsSplashVisible());
        QTRY_VERIFY(!startUp.IsSplashVisible());
        constexpr int timerTolerance = 50; // milliseconds
        QVERIFY(QDateTime::currentMSecsSinceEpoch() + timerTolerance >=
                (startUp.SplashShowTime() + seconds) * 1000);
    }

private:
    ICfg* applicationCfg() const { return CfgCenter::GetAppCfg(SettingsView); }

    void tidy() override
    {
        m_services->SetMainWidget(nullptr);
        m_services->SetApplication(nullptr);
        qApp->setStyleSheet(QString());
    }

    GuiBase* m_services = &GuiBase::Instance();
};

QTEST_MAIN(tst_GuiBase)
#include "tst_guibase.moc"
