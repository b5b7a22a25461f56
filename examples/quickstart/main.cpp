// SPDX-License-Identifier: MIT
// A window with a list, two panels that hide at the edge, a frequency entry and a pop-up
// (double-click a station), which comes back as it was left.
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/dockwidgethelpers.h>
#include <guibase/docks/mainwindowconfigurator.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortlistviewitem.h>
#include <guibase/notifications/popup/notifications.h>
#include <guibase/services/guibase.h>

#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

using QMainWindowHelpers::MainWindowConfigurator;

namespace {

SortListView* makeStations(QWidget* parent)
{
    auto* list = new SortListView(parent);
    list->addColumn(QStringLiteral("Station"));
    list->addColumn(QStringLiteral("Frequency"));
    list->SetCompareFunctionLength(2);
    list->SetCompareFunction(0, &SortListView::_compStandardString);
    list->SetCompareFunction(1, &SortListView::_compNumericWithSuffix); // 9.5 < 10, all in MHz
    list->setSorting(1, Qt::AscendingOrder);
    list->setColumnSelectionMenu(true);
    list->SetColumnWidthPersistantName(QStringLiteral("Stations"));
    new SortListViewItem(list, {QStringLiteral("Harbour"), QStringLiteral("10 MHz")});
    new SortListViewItem(list, {QStringLiteral("Airport"), QStringLiteral("9.5 MHz")});
    QObject::connect(list, &SortListView::doubleClicked, list, [](const SortListViewItem* station) {
        Notifications::notify(station->text(0), station->text(1), 5000); // goes after 5 s
    });
    return list;
}

/// Every panel hides at the edge, tabifies, tiles and maximizes from its title bar.
void addPanel(QMainWindow& window, QWidget* content, const char* name, Qt::DockWidgetArea area)
{
    const QString title = QString::fromLatin1(name);
    QDockWidget* dock = QDockWidgetHelpers::makeDockWidgetFrom(*content);
    window.addDockWidget(area, dock);
    QDockWidgetHelpers::DockWidgetConfigurator()
        .includeActionsFrom(QMainWindowHelpers::TabifySupport::get(window))
        .includeActionsFrom(QMainWindowHelpers::TileSupport::get(window))
        .withAutoHideSupport(true)
        .withMaximizeSupport(true)
        .configure(*dock, title, title);
}

} // namespace

int main(int argc, char* argv[])
{
    TrovApplication::ChooseWindowSystem(); // X11 where there is a choice: docks go anywhere there
    QApplication application(argc, argv);
    TrovApplication startUp; // ends the application in good order, also on SIGTERM
    QMainWindow window;
    MainWindowConfigurator()
        .withAutoHideSupport(MainWindowConfigurator::DefaultAutoHideSupportToolBarAreas)
        .withTabifySupport(MainWindowConfigurator::DefaultTabifySupportDockWidgetAreas)
        .withTileSupport(MainWindowConfigurator::DefaultTileSupportDockWidgetAreas)
        .configure(window, QStringLiteral("quickstart"), QStringLiteral("Quick start"));

    auto* frequency = new SpinBoxes::FrequencySpinBox(&window); // reads "14.225 MHz", "14225k"
    auto* tuned = new QLabel(&window);
    tuned->setAlignment(Qt::AlignCenter);
    QObject::connect(frequency, &SpinBoxes::FrequencySpinBox::valueChanged, tuned,
                     [=] { tuned->setText(frequency->textValue()); });
    frequency->setValue(14'225'000);
    window.setCentralWidget(makeStations(&window));
    addPanel(window, frequency, "Frequency", Qt::LeftDockWidgetArea);
    addPanel(window, tuned, "Tuned to", Qt::LeftDockWidgetArea);

    window.resize(840, 480); // at the first start
    window.resizeDocks(window.findChildren<QDockWidget*>(), {260, 260}, Qt::Horizontal);

    GuiBase& services = GuiBase::Instance();
    QMenu* view = window.menuBar()->addMenu(QStringLiteral("&View"));
    view->addAction(services.CreateResetWidgetViewAction(view));
    view->addAction(services.CreateResetFactoryViewAction(view));
    QMainWindowHelpers::AutoHideSupport::get(window)->setStorageName(QStringLiteral("Panels"));
    services.SetMainWidget(&window); // settings, style, colours; shows the window as it was left
    window.show();
    return QApplication::exec();
}
