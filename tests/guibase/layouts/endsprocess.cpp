// SPDX-License-Identifier: MIT
// A small application that a test starts as a process of its own:
//     ends_process <configuration folder> <way to end> [<what it should look like>]
// Without the last word it changes everything that is kept. It tells what it looks like, and ends
// in its way: "close", "quit", "return", "signal" for waiting to be ended from outside, "session"
// as a desktop does that ends its session, or "server" for ending the session's server. Of those
// that leave no time for an end, "exit" ends, "wait" waits, and "save" saves without a pause.
#include <guibase/colors/colorset.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/dockwidgethelpers.h>
#include <guibase/docks/mainwindowconfigurator.h>
#include <guibase/docks/maximizeminimizesupport.h>
#include <guibase/files/fileopenmanager.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <guibase/splitters/splitter.h>

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>
#include <valueframework/persistant.h>
#include <valueframework/valueselection.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QDockWidget>
#include <QEventLoop>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QSessionManager>
#include <QTextEdit>
#include <QTextStream>
#include <QTimer>

#include <csignal>
#include <cstdlib>
#include <functional>

using QDockWidgetHelpers::MaximizeMinimizeSupport;
using QMainWindowHelpers::AutoHideSupport;
using QMainWindowHelpers::MainWindowConfigurator;

namespace {

class Window : public QMainWindow
{
public:
    Window()
    {
        MainWindowConfigurator()
            .withAutoHideSupport(MainWindowConfigurator::DefaultAutoHideSupportToolBarAreas)
            .configure(*this, QStringLiteral("ends"), QStringLiteral("Ends"));
        resize(700, 600);
        m_splitter = new Splitter(Qt::Horizontal, this, QString(), QStringLiteral("panes"));
        m_list = new SortListView(m_splitter, "list");
        m_list->addColumn(QStringLiteral("first"));
        m_list->addColumn(QStringLiteral("last"));
        m_list->SetColumnWidthPersistantName(QStringLiteral("list"));
        m_splitter->addWidget(m_list);
        m_splitter->addWidget(new QWidget);
        setCentralWidget(m_splitter);
        for (QDockWidget*& dock : m_docks) {
            const QString name = QString::number(&dock - m_docks);
            dock = QDockWidgetHelpers::makeDockWidgetFrom(*new QTextEdit);
            addDockWidget(Qt::LeftDockWidgetArea, dock);
            QDockWidgetHelpers::DockWidgetConfigurator()
                .withAutoHideSupport(true)
                .withMaximizeSupport(true)
                .configure(*dock, name, name);
        }
        AutoHideSupport::get(*this)->setStorageName(QStringLiteral("panels"));
        m_files.InitMenu(-1);
        m_record.Add(GuiBase::Instance().GetFrequencyUnit(), QStringLiteral("Unit"),
                     static_cast<int>(SelectionStorage::ByKey));
    }

    /// What the application itself keeps, once the services have read theirs.
    void readRecord() { m_record.Read({}); }

    void change()
    {
        const auto& [docked, open, hidden, hiding, tab, raised, large] = m_docks;
        addDockWidget(Qt::RightDockWidgetArea, docked);
        for (QDockWidget* dock : {open, hidden}) {
            dock->setFloating(true);
            dock->setGeometry(300, 260, 222, 188);
        }
        hidden->hide();
        large->setFloating(true);
        large->setGeometry(310, 240, 210, 170);
        MaximizeMinimizeSupport::get(*large)->maximizeDockWidget();
        AutoHideSupport::autoHideAction(*hiding)->setChecked(true);
        tabifyDockWidget(tab, raised);
        raised->raise();
        m_list->setColumnWidth(0, 77);
        m_splitter->setSizes({1, 1});
        m_splitter->shiftHandle(1, -50);
        ColorSet::Instance().Load(this, QString::fromLatin1(ColorSet::colorBlindName));
        GuiBase::Instance().GetTimeZone()->SetValue(0);
        GuiBase::Instance().GetPositionFormat()->SetCurrentIndex(3);
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Giga);
        m_record.Write({});
        for (const char* name : {"first.csv", "second.csv"})
            m_files.addRecentFile(QString::fromLatin1(name));
        showMaximized();
    }

    QString looks() const
    {
        const auto& [docked, open, hidden, hiding, tab, raised, large] = m_docks;
        const QRect place = open->geometry();
        const bool isAtEdge = AutoHideSupport::autoHideAction(*hiding)->isChecked();
        const QList<int> panes = m_splitter->sizes();
        QString text;
        QTextStream out(&text);
        out << (isMaximized() ? "window maximized" : "window") << ", docked "
            << (dockWidgetArea(docked) == Qt::RightDockWidgetArea ? "right " : "left ")
            << docked->width()
            << (open->isVisible() && open->isFloating() ? ", open" : ", not open") << " at "
            << place.x() << ' ' << place.y() << ' ' << place.width() << ' ' << place.height()
            << (large->isFloating() && large->isMaximized() ? ", large" : ", not large")
            << (hidden->isHidden() && hidden->isFloating() ? ", hidden" : ", shown")
            << (isAtEdge ? ", hiding" : ", not hiding")
            << (tabifiedDockWidgets(tab).contains(raised) ? ", tabbed" : ", not tabbed")
            << (tab->visibleRegion().isEmpty() ? " below" : " above") << ", column "
            << m_list->columnWidth(0) << ", panes " << panes.at(0) << ' ' << panes.at(1)
            << ", colors " << ColorSet::Instance().GetName() << ", zone "
            << GuiBase::Instance().GetTimeZoneValue() << ", position "
            << GuiBase::Instance().GetPositionFormat()->GetCurrentIndex() << ", unit "
            << GuiBase::Instance().GetFrequencyUnit()->GetCurrentItem()->GetName() << ", files";
        for (const QAction* file : m_menu.actions())
            out << ' ' << file->text();
        return text;
    }

private:
    QDockWidget* m_docks[7] = {};
    Splitter* m_splitter = nullptr;
    SortListView* m_list = nullptr;
    QMenu m_menu;
    FileOpenManager m_files{nullptr, QStringLiteral("Recordings (*.csv)"), &m_menu, 5,
                            CfgCenter::GetAppCfg(SettingsView)};
    Persistant m_record{QStringLiteral("Application")};
};

/// Tells what the window looks like, once that is as expected, or without expectation once it has
/// stayed the same for a while; and anyway at the end of its patience.
class Teller : public QTimer
{
public:
    Teller(const Window& window, QString expected, std::function<void()> end)
    {
        setInterval(50);
        callOnTimeout(this, [this, &window, expected, end] {
            const QString looks = window.looks();
            const bool isAsExpected = looks == expected || (expected.isEmpty() && m_same > 10);
            m_same = looks == m_last ? m_same + 1 : 0;
            m_last = looks;
            if (!isAsExpected && !m_patience.hasExpired())
                return;
            stop();
            QTextStream(stdout) << looks << "\ntold" << Qt::endl;
            end();
        });
        start();
    }

private:
    QDeadlineTimer m_patience{20'000};
    QString m_last;
    int m_same = 0;
};

void endServer()
{
    const int server = qEnvironmentVariableIntValue("GUIBASE_TEST_SERVER");
    if (server > 0)
        ::kill(server, SIGKILL);
}

/// What a session manager does: it has the programs store what they have, and ends them.
void endSession()
{
    Q_EMIT qGuiApp->commitDataRequest(*qGuiApp->findChild<QSessionManager*>());
    ::raise(SIGKILL);
}

} // namespace

int main(int argc, char** argv)
{
    TrovApplication::ChooseWindowSystem();
    QApplication application(argc, argv);
    QTextStream(stdout) << "on " << QGuiApplication::platformName() << ", handing on \""
                        << qEnvironmentVariable("QT_QPA_PLATFORM") << "\"\n";
    const QStringList arguments = QApplication::arguments();
    const QString way = arguments.value(2);
    CfgCenter::SetConfigDir(arguments.value(1));
    // Either the end alone writes, or every change does.
    const bool hasNoEnd = way == QStringLiteral("exit") || way == QStringLiteral("wait") ||
                          way == QStringLiteral("save");
    CfgCenter::SetAutoStoreDelay(hasNoEnd ? 0 : -1);
    GuiBase::Instance().SetLayoutWriteDelay(hasNoEnd ? 0 : -1);
    const TrovApplication startUp;
    Window window;
    GuiBase::Instance().SetMainWidget(&window);
    window.readRecord();
    window.show();
    if (arguments.size() < 4)
        QTimer::singleShot(0, &window, &Window::change);

    QTimer saving;
    saving.callOnTimeout([count = 0]() mutable {
        CfgCenter::GetAppCfg(SettingsView)->SetInt(QStringLiteral("Count"), ++count);
        GuiBase::Instance().SavePersistant();
        CfgCenter::Store();
    });
    QEventLoop loop;
    const Teller teller(window, arguments.value(3), [&] {
        if (way == QStringLiteral("close"))
            window.close();
        else if (way == QStringLiteral("quit"))
            QCoreApplication::quit();
        else if (way == QStringLiteral("exit"))
            std::exit(0);
        else if (way == QStringLiteral("server"))
            endServer();
        else if (way == QStringLiteral("session"))
            endSession();
        else if (way == QStringLiteral("save"))
            saving.start(0);
        else
            loop.quit();
    });
    if (way == QStringLiteral("return"))
        return loop.exec();
    return QApplication::exec();
}
