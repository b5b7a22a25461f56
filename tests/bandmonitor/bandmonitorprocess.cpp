// SPDX-License-Identifier: MIT
// The whole application in a process of its own, worked by the words on its command line:
//   bandmonitorprocess FOLDER change quit|wait    changes every setting, then ends or waits
//   bandmonitorprocess FOLDER tell                prints the settings that it started with
//   bandmonitorprocess FOLDER arrange             changes the layout, then waits for its end
//   bandmonitorprocess FOLDER layout              prints the layout that it started with
#include "mainwindow.h"
#include "panes/bandview.h"
#include "panes/levelspane.h"
#include "panes/signalspane.h"
#include "settings.h"

#include <guibase/colors/colorset.h>
#include <guibase/docks/autohidesupport.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortrowtable.h>
#include <guibase/services/guibase.h>
#include <guibase/services/splitter.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QTimer>

#include <cstdio>

using namespace bandmonitor;

namespace {

void say(const QString& text)
{
    std::puts(text.toUtf8().constData());
    std::fflush(stdout);
}

QString settings(const MainWindow& window)
{
    GuiBase& services = GuiBase::Instance();
    return QStringLiteral("unit %1 resolution %2 zone %3 format %4 hold %5 grid %6 size %7x%8")
        .arg(services.GetFrequencyUnit()->GetValue())
        .arg(services.GetFrequencyResolution())
        .arg(services.GetTimeZoneValue())
        .arg(services.GetPositionFormat()->GetValue())
        .arg(Settings::isHoldVisible())
        .arg(ColorSet::Instance().GetColor(IColorBase::DrawPaneGrid).name())
        .arg(window.width())
        .arg(window.height());
}

void changeAll(MainWindow& window, const QString& folder)
{
    GuiBase& services = GuiBase::Instance();
    services.SetFrequencyUnit(UnitPrefix::Giga);
    window.frequencyResolution().SetValue(UnitPrefix::Kilo);
    services.GetTimeZone()->SetValue(0);
    services.GetPositionFormat()->SetValue(6);
    const QList<QAction*> actions = window.findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->text() == QLatin1String("&Hold maximum"))
            action->setChecked(false);
    }
    ColorSet::Instance().SetColor(IColorBase::DrawPaneGrid, QColor(Qt::magenta), true);
    ColorSet::Instance().Save(nullptr, folder + QStringLiteral("/own.cst"));
    window.resize(777, 555);
}

QString layout(MainWindow& window)
{
    QString text = QStringLiteral("mode %1").arg(static_cast<int>(window.modes().mode()));
    const QList<int> sizes = window.bandView().splitter()->sizes();
    text += QStringLiteral(" waterfall %1 splitter ")
                .arg(window.bandView().waterfallRow()->isVisible());
    for (const int size : sizes)
        text += QStringLiteral("%1;").arg(size);
    const auto* hiding = QMainWindowHelpers::AutoHideSupport::get(window);
    for (const QDockWidget* dock : window.panels().docks()) {
        const QAction* action = hiding->autoHideAction(*dock);
        text += QStringLiteral(" %1 %2").arg(dock->widget()->objectName(),
                                             action->isChecked() ? QStringLiteral("hides")
                                             : dock->isVisible() ? QStringLiteral("shown")
                                                                 : QStringLiteral("closed"));
        if (dock->isVisible() && !action->isChecked())
            text += QStringLiteral(" %1x%2").arg(dock->width()).arg(dock->height());
    }
    SortListView& list = window.signalsPane().list();
    for (int column = 0; column < list.columns(); ++column)
        text +=
            QStringLiteral(" %1").arg(list.isColumnHidden(column) ? 0 : list.columnWidth(column));
    for (const LevelPoint& point : window.levelsPane().points())
        text += QStringLiteral(" %1:%2").arg(point.hertz, 0, 'f', 1).arg(point.levelDb);
    return text;
}

void arrange(MainWindow& window)
{
    CfgCenter::SetAutoStoreDelay(50);
    window.modes().setMode(Mode::Plan);
    QDockWidget* signalDock = window.panels().dock(QStringLiteral("signals"));
    window.resizeDocks({signalDock}, {290}, Qt::Vertical);
    QMainWindowHelpers::AutoHideSupport::get(window)->enableAutoHide(
        *window.panels().dock(QStringLiteral("levels")));
    QApplication::processEvents(); // lays the window out
    window.bandView().splitter()->shiftHandle(1, -37);
    SortListView& list = window.signalsPane().list();
    list.setColumnWidth(SignalsPane::Type, 123);
    list.setColumnHidden(SignalsPane::Bandwidth, true);
    GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Kilo);
    window.levelsPane().table().addRows({{QStringLiteral("98100,25"), QStringLiteral("-40 dB")}});
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
    GuiBase::Instance().SetLayoutWriteDelay(1000); // what arrange() does is one change
    MainWindow window;
    window.resize(700, 600); // fits on any screen with its frame
    GuiBase::Instance().SetMainWidget(&window);
    window.announceModes();
    window.show();
    if (words.value(2) == QLatin1String("arrange") || words.value(2) == QLatin1String("layout")) {
        QTimer::singleShot(0, &window, [&] {
            if (words.value(2) == QLatin1String("arrange"))
                arrange(window);
            // What was put off comes first.
            QTimer::singleShot(20, &window, [&] {
                say(layout(window));
                if (words.value(2) == QLatin1String("layout"))
                    window.close();
            });
        });
        return QApplication::exec();
    }
    QTimer::singleShot(0, &window, [&] {
        if (words.value(2) == QLatin1String("change"))
            changeAll(window, words.value(1));
        say(settings(window));
        if (words.value(3) != QLatin1String("wait"))
            window.close();
    });
    return QApplication::exec();
}
