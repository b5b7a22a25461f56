// SPDX-License-Identifier: MIT
// The whole application in a process of its own, worked by the words on its command line:
//   bandmonitorprocess FOLDER tell                     prints its settings and its layout, and ends
//   bandmonitorprocess FOLDER change quit|wait|store   changes all of them, prints them, then ends,
//                                                      or waits, without or with storing
#include "centre/bandview.h"
#include "mainwindow.h"
#include "panels/levelspanel.h"
#include "panels/signalspanel.h"
#include "settings/settings.h"

#include <guibase/colors/colorset.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortrowtable.h>
#include <guibase/services/guibase.h>
#include <guibase/splitters/splitter.h>

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QTimer>

#include <algorithm>
#include <cstdio>

using namespace bandmonitor;

namespace {

/// Null when no command of the window has this text.
QAction* action(const MainWindow& window, const char* text)
{
    const QList<QAction*> actions = window.findChildren<QAction*>();
    const auto found = std::find_if(actions.begin(), actions.end(), [text](const QAction* each) {
        return each->text() == QLatin1String(text);
    });
    return found != actions.end() ? *found : nullptr;
}

/// All settings that are kept, and everything that the user sees of the layout.
QString state(MainWindow& window)
{
    GuiBase& services = GuiBase::Instance();
    QString text = QStringLiteral("unit %1 resolution %2 zone %3 format %4 hold %5 grid %6 key %7")
                       .arg(services.GetFrequencyUnit()->GetValue())
                       .arg(services.GetFrequencyResolution())
                       .arg(services.GetTimeZoneValue())
                       .arg(services.GetPositionFormat()->GetValue())
                       .arg(window.values().isHoldVisible.GetValue())
                       .arg(ColorSet::Instance().GetColor(IColorBase::DrawPaneGrid).name())
                       .arg(action(window, "&Hold maximum")->shortcut().toString());
    QDebug(&text) << " layout" << window.size() << static_cast<int>(window.modes().mode());
    for (const int size : window.bandView().splitter()->sizes())
        text += QStringLiteral("%1;").arg(size);
    const SortListView& list = window.panel<SignalsPanel>().list();
    for (const QDockWidget* dock : window.panelDocks().docks()) {
        const bool hides = QMainWindowHelpers::AutoHideSupport::autoHideAction(*dock)->isChecked();
        const bool isClosed = dock->isHidden() && !hides;
        QDebug(&text) << "" << dock->widget()->objectName() << "hides" << hides << "closed"
                      << isClosed << "floats" << (dock->isFloating() && !hides);
        if (!hides && !dock->visibleRegion().isEmpty())
            QDebug(&text) << dock->size();
    }
    for (int column = 0; column < list.columns(); ++column)
        text +=
            QStringLiteral("%1,").arg(list.isColumnHidden(column) ? 0 : list.columnWidth(column));
    for (const LevelPoint& point : window.panel<LevelsPanel>().points())
        text += QStringLiteral(" %1:%2").arg(point.hertz, 0, 'f', 1).arg(point.levelDb);
    return text;
}

void change(MainWindow& window, const QString& folder)
{
    GuiBase& services = GuiBase::Instance();
    services.SetFrequencyUnit(UnitPrefix::Kilo);
    window.panel<LevelsPanel>().table().addRows(
        {{QStringLiteral("98100,25"), QStringLiteral("-40 dB")}});
    window.frequencyResolution().SetValue(UnitPrefix::Kilo);
    services.GetTimeZone()->SetValue(0);
    services.GetPositionFormat()->SetValue(6);
    action(window, "&Hold maximum")->setChecked(false);
    services.ChangeHotKey(services.GetIndex4HotKey(Qt::Key_H, 0), Qt::Key_F9,
                          static_cast<int>(Qt::ShiftModifier));
    ColorSet::Instance().SetColor(IColorBase::DrawPaneGrid, QColor(Qt::magenta), true);
    ColorSet::Instance().Save(nullptr, folder + QStringLiteral("/own.cst"));
    window.resize(777, 555);
    window.modes().setMode(Mode::Plan);
    QDockWidget* signalDock = window.panelDocks().dock(QStringLiteral("signals"));
    window.resizeDocks({signalDock}, {290}, Qt::Vertical);
    QMainWindowHelpers::AutoHideSupport::get(window)->enableAutoHide(
        *window.panelDocks().dock(QStringLiteral("levels")));
    QDockWidget* bearings = window.panelDocks().dock(QStringLiteral("bearings"));
    bearings->show();
    bearings->setFloating(true);
    QApplication::processEvents(); // lays the window out
    window.bandView().splitter()->shiftHandle(1, -37);
    window.panel<SignalsPanel>().list().setColumnWidth(SignalsPanel::Type, 123);
    window.panel<SignalsPanel>().list().setColumnHidden(SignalsPanel::Bandwidth, true);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    CfgCenter::SetAppName(QStringLiteral("bandmonitor"));
    CfgCenter::SetConfigDir(words.value(1));
    CfgCenter::SetAutoStoreDelay(-1); // only the end of the process may store
    TrovApplication startUp;
    GuiBase::Instance().SetApplication(&application);
    GuiBase::Instance().SetLayoutWriteDelay(1000); // what change() does is one change
    MainWindow window;
    window.resize(700, 600); // fits on any screen with its frame
    GuiBase::Instance().SetMainWidget(&window);
    window.announceModes();
    window.show();
    QTimer::singleShot(0, &window, [&] {
        window.complete();
        if (words.value(2) == QLatin1String("change"))
            change(window, words.value(1));
        if (words.value(3) == QLatin1String("store"))
            CfgCenter::SetAutoStoreDelay(50);
        // What was put off comes first.
        QTimer::singleShot(20, &window, [&] {
            std::puts(state(window).toUtf8().constData());
            std::fflush(stdout);
            if (words.value(3).isEmpty() || words.value(3) == QLatin1String("quit"))
                window.close();
        });
    });
    return QApplication::exec();
}
