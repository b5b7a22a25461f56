// SPDX-License-Identifier: MIT
#define QT_STATICPLUGIN // The style below is a plug-in inside this program.

#include "support/testguard.h"

#include <guibase/colors/colorset.h>
#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>
#include <valueframework/valueselection.h>
#include <xmsgdlg/xmessagedialog.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStylePlugin>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QtPlugin>

#include <ctime>
#include <memory>

namespace {

int createdStyles = 0;

void writeFile(const QString& name, const QByteArray& content)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

class DotNetStylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "qtdotnet.json")
public:
    QStyle* create(const QString&) override
    {
        ++createdStyles;
        return new QProxyStyle;
    }
};
Q_IMPORT_PLUGIN(DotNetStylePlugin)

class TestGuiBase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void signalTypes_data();
    void signalTypes();
    void timeString_data();
    void timeString();
    void dataDirectory_data();
    void dataDirectory();
    void nativeDialogs_data();
    void nativeDialogs();
    void styleSheet_data();
    void styleSheet();
    void styleSheetBesideProgram();
    void unreadableStyleSheet();
    void styleBox();
    void configuredFonts();
    void messageDialog();
    void settingsComeBack();
    void applicationIsForgotten();
    void mainWidgetIsReplaced();
    void mainWidgetEndsApplication_data();
    void mainWidgetEndsApplication();
    void finishEditing();
    void dialogVisible();
    void dock();
    void splash_data();
    void splash();

private:
    ICfg* applicationCfg() const { return CfgCenter::GetAppCfg(SettingsView); }

    std::unique_ptr<TestGuard> m_guard;
    GuiBase* m_services = nullptr;
};

void TestGuiBase::initTestCase()
{
    qputenv("TZ", "XST-5:30");
    tzset();
}

void TestGuiBase::init()
{
    m_guard = std::make_unique<TestGuard>();
    m_services = &GuiBase::Instance();
}

void TestGuiBase::cleanup()
{
    m_services->SetMainWidget(nullptr);
    m_services->SetApplication(nullptr);
    qApp->setStyleSheet(QString());
    QCOMPARE(m_guard->finish(), QString());
    m_guard.reset();
}

void TestGuiBase::signalTypes_data()
{
    QTest::addColumn<char>("letter");
    QTest::addColumn<QString>("name");
    const QString unknown = QStringLiteral("Unknown");
    QTest::newRow("lower") << 'b' << QStringLiteral("Unidentified - probably important");
    QTest::newRow("upper") << 'B' << QStringLiteral("Unidentified - probably important");
    QTest::newRow("first") << 'A' << QStringLiteral("Unidentified");
    QTest::newRow("last") << 'Q' << QStringLiteral("Type_Q");
    QTest::newRow("middle") << 'k' << QStringLiteral("Unidentified - Burst");
    QTest::newRow("past the last") << 'r' << unknown;
    QTest::newRow("upper past the last") << 'R' << unknown;
    QTest::newRow("digit") << '0' << unknown;
    QTest::newRow("before A") << '@' << unknown;
    QTest::newRow("after Z") << '[' << unknown;
    QTest::newRow("zero") << '\0' << unknown;
    QTest::newRow("high bit") << '\xe1' << unknown;
}

void TestGuiBase::signalTypes()
{
    QFETCH(char, letter);
    QTEST(m_services->GetSignalType(letter), "name");
}

void TestGuiBase::timeString_data()
{
    QTest::addColumn<int>("zoneIndex");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTC") << 0 << QStringLiteral("1970-01-02 00:00:01.000005");
    QTest::newRow("local") << 1 << QStringLiteral("1970-01-02 05:30:01.000005");
}

void TestGuiBase::timeString()
{
    QFETCH(int, zoneIndex);
    QVERIFY(m_services->GetTimeZone()->SetCurrentIndex(zoneIndex));
    QCOMPARE(m_services->GetTimeZoneValue(), zoneIndex);
    quint64 time = 86'401'000'005;
    QTEST(m_services->TimeString(time, QStringLiteral("yyyy-MM-dd hh:mm:ss.zzzuuu")), "text");
    QCOMPARE(time, quint64{86'401'000'005});
}

void TestGuiBase::dataDirectory_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("there") << QDir::tempPath() << true;
    QTest::newRow("missing") << QStringLiteral("/no/such/folder") << false;
    QTest::newRow("unnamed") << QString() << false;
    QTest::newRow("file") << QCoreApplication::applicationFilePath() << false;
}

void TestGuiBase::dataDirectory()
{
    QFETCH(QString, directory);
    QFETCH(bool, accepted);
    QVERIFY(m_services->SetDefaultDataDirectory(QDir::rootPath()));
    QCOMPARE(m_services->SetDefaultDataDirectory(directory), accepted);
    QCOMPARE(m_services->GetDefaultDataDirectory(), accepted ? directory : QDir::rootPath());
}

void TestGuiBase::nativeDialogs_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QFileDialog::Options>("options");
    QTest::newRow("default") << QString() << QFileDialog::Options();
    QTest::newRow("native") << QStringLiteral("true") << QFileDialog::Options();
    QTest::newRow("own") << QStringLiteral("false")
                         << QFileDialog::Options(QFileDialog::DontUseNativeDialog);
}

void TestGuiBase::nativeDialogs()
{
    QFETCH(QString, configured);
    if (!configured.isEmpty())
        applicationCfg()->SetString(QStringLiteral("UseNativeDialogs"), configured);
    m_services->SetApplication(qApp);
    QTEST(m_services->UseNativeDialogs(), "options");
}

void TestGuiBase::styleSheet_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("administrator");
    QTest::addColumn<QString>("loaded");
    const QString red = QStringLiteral("red #%20.css");
    const QString blue = QStringLiteral("blue.css");
    const QString folder = QStringLiteral("folder.css");
    const QString missing = QStringLiteral("missing.css");
    // A name with a star is made absolute; others are looked for in the administrator's folder.
    const QString star = QStringLiteral("*");
    QTest::newRow("application's") << star + red << star + blue << red;
    QTest::newRow("missing, then administrator's") << star + missing << star + blue << blue;
    QTest::newRow("folder, then administrator's") << star + folder << star + blue << blue;
    QTest::newRow("in the data folder") << missing << blue << blue;
    QTest::newRow("application's name is not looked for there") << blue << missing << QString();
    QTest::newRow("folder in the data folder") << missing << folder << QString();
    QTest::newRow("nowhere") << missing << star + missing << QString();
}

void TestGuiBase::styleSheet()
{
    QFETCH(QString, application);
    QFETCH(QString, administrator);
    QFETCH(QString, loaded);
    const QTemporaryDir folder;
    const QString base = folder.path() + QLatin1Char('/');
    writeFile(base + QStringLiteral("red #%20.css"), "QLabel { color: #ff0000 }");
    writeFile(base + QStringLiteral("blue.css"), "QLabel { color: #0000ff }");
    QVERIFY(QDir(base).mkdir(QStringLiteral("folder.css")));
    ICfg* administratorCfg = CfgCenter::GetAdminCfg(SettingsView);
    administratorCfg->SetString(QStringLiteral("SkornDataDir"), folder.path());
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
    const QRgb color = loaded.isEmpty()                           ? 0xff00ff00
                       : loaded.startsWith(QStringLiteral("red")) ? 0xffff0000
                                                                  : 0xff0000ff;
    QCOMPARE(label.palette().color(QPalette::WindowText).rgb(), color);
}

void TestGuiBase::styleSheetBesideProgram()
{
    QFile sheet(QCoreApplication::applicationDirPath() + QStringLiteral("/tst_guibase_sheet.css"));
    writeFile(sheet.fileName(), "QLabel { color: #ff0000 }");
    m_services->SetApplication(qApp);
    applicationCfg()->SetString(QStringLiteral("StyleSheet"), QStringLiteral("unused.css"));
    const auto given = applicationCfg()->OpenSubCfg(QStringLiteral("Given"));
    given->SetString(QStringLiteral("StyleSheet"), QStringLiteral("tst_guibase_sheet.css"));
    m_services->loadStyleSheet(given.get());
    QVERIFY(qApp->styleSheet().endsWith(sheet.fileName()));
    QVERIFY(sheet.remove());
}

void TestGuiBase::unreadableStyleSheet()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("closed.css"));
    writeFile(name, "QLabel { color: #ff0000 }");
    QVERIFY(QFile::setPermissions(name, {}));
    if (QFile(name).open(QIODevice::ReadOnly))
        QSKIP("This user may read every file");
    applicationCfg()->SetString(QStringLiteral("StyleSheet"), name);
    m_services->SetApplication(qApp);
    QVERIFY(qApp->styleSheet().isEmpty());
}

void TestGuiBase::styleBox()
{
    m_services->SetApplication(qApp);
    QWidget parent;
    QComboBox* box = m_services->GetStyleComboBox(&parent);
    QCOMPARE(box->count(), 3);
    createdStyles = 0;
    Q_EMIT box->activated(0);
    QCOMPARE(createdStyles, 1);
}

void TestGuiBase::configuredFonts()
{
    m_services->SetApplication(qApp);
    QVERIFY(!m_services->GetFontFamily().isEmpty());
    const QString windowsFamily = m_services->GetWFontFamily();
    applicationCfg()->SetString(QStringLiteral("Font"), QStringLiteral("Grid"));
    m_services->SetApplication(qApp);
    QCOMPARE(m_services->GetFontFamily(), QStringLiteral("Grid"));
    QCOMPARE(m_services->GetWFontFamily(), windowsFamily);
}

void TestGuiBase::messageDialog()
{
    ErrorHandler::SetMessageDlg(nullptr);
    m_services->SetApplication(qApp);
    QCOMPARE(ErrorHandler::GetMessageDlg(), nullptr);

    class OtherDialog : public IMessageDlg
    {
        MessageDlgSettings GetSettings() const override { return {QStringLiteral("App"), nullptr}; }
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

void TestGuiBase::settingsComeBack()
{
    const QTemporaryDir folder;
    const QString colorFile = folder.filePath(QStringLiteral("night.cst"));
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

void TestGuiBase::applicationIsForgotten()
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

void TestGuiBase::mainWidgetIsReplaced()
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

void TestGuiBase::mainWidgetEndsApplication_data()
{
    QTest::addColumn<bool>("destroyMain");
    QTest::addColumn<int>("result");
    QTest::newRow("main widget") << true << 0;
    QTest::newRow("former main widget") << false << 1;
}

void TestGuiBase::mainWidgetEndsApplication()
{
    QFETCH(bool, destroyMain);
    const bool quitsOnClose = QGuiApplication::quitOnLastWindowClosed();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    auto former = std::make_unique<QWidget>();
    auto main = std::make_unique<QWidget>();
    m_services->SetMainWidget(former.get());
    m_services->SetMainWidget(main.get());
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        (destroyMain ? main : former).reset();
        QTimer::singleShot(0, &context, [] { QCoreApplication::exit(1); });
    });
    QTEST(QCoreApplication::exec(), "result");
    QCOMPARE(m_services->GetMainWidget(), main.get());
    QGuiApplication::setQuitOnLastWindowClosed(quitsOnClose);
}

void TestGuiBase::finishEditing()
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

void TestGuiBase::dialogVisible()
{
    QWidget window;
    QDialog dialog;
    window.show();
    QVERIFY(!m_services->isDialogVisible());
    dialog.show();
    QVERIFY(m_services->isDialogVisible());
}

void TestGuiBase::dock()
{
    QMainWindow window;
    auto* content = new QLabel;
    QDockWidget* dock = GuiBase::AddAsDockWidget(content, QStringLiteral("Levels"), &window,
                                                 Qt::RightDockWidgetArea);
    QCOMPARE(dock->objectName(), QStringLiteral("Levels"));
    QCOMPARE(window.dockWidgetArea(dock), Qt::RightDockWidgetArea);
    QCOMPARE(dock->styleSheet().count(QLatin1Char('\t')), 17);
    auto* frame = qobject_cast<QFrame*>(dock->widget());
    QVERIFY(frame != nullptr);
    QCOMPARE(content->parentWidget(), frame);
    QCOMPARE(frame->frameShape(), QFrame::Panel);
    window.show();
    QTRY_VERIFY(content->isVisible());
    dock->hide();
    QTRY_VERIFY(content->isHidden());
    QCOMPARE(GuiBase::AddAsDockWidget(nullptr, QString(), &window, Qt::LeftDockWidgetArea),
             nullptr);
}

void TestGuiBase::splash_data()
{
    QTest::addColumn<int>("seconds");
    QTest::newRow("no time-out") << 0;
    QTest::newRow("negative") << -5;
    QTest::newRow("one second") << 1;
}

void TestGuiBase::splash()
{
    QFETCH(int, seconds);
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
    QVERIFY(QDateTime::currentSecsSinceEpoch() - startUp.SplashShowTime() >= seconds);
}

QTEST_MAIN(TestGuiBase)
#include "tst_guibase.moc"
