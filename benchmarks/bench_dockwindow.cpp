// SPDX-License-Identifier: MIT
// What it costs to open a main window with 20 docks: configured with every support and all actions
// in their title bars ("ours") against the toolkit's plain docks ("theirs").
#include "ratio.h"

#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/dockwidgetconfigurator.h>
#include <guibase/docks/mainwindowconfigurator.h>

#include <QApplication>
#include <QTextEdit>

using QDockWidgetHelpers::DockWidgetConfigurator;
using namespace QMainWindowHelpers;

namespace {

constexpr int dockCount = 20;
constexpr double limit = 1.5;

void openWindow(bool configured)
{
    QMainWindow window;
    window.resize(1600, 1000);
    window.setCentralWidget(new QTextEdit);
    DockWidgetConfigurator dockConfigurator;
    if (configured) {
        using Configurator = MainWindowConfigurator;
        Configurator()
            .withActiveDockWidgetSupport(true)
            .withAutoHideSupport(Configurator::DefaultAutoHideSupportToolBarAreas)
            .withTabifySupport(Configurator::DefaultTabifySupportDockWidgetAreas)
            .withTileSupport(Configurator::DefaultTileSupportDockWidgetAreas)
            .configure(window);
        dockConfigurator.withAutoHideSupport(true)
            .withMaximizeSupport(true)
            .withMinimizeSupport(true)
            .includeActionsFrom(TabifySupport::get(window))
            .includeActionsFrom(TileSupport::get(window));
    }
    for (int i = 0; i < dockCount; ++i) {
        const QString title = QStringLiteral("Dock %1").arg(i);
        auto* dock = new QDockWidget(title, &window);
        dock->setObjectName(title);
        dock->setWidget(new QTextEdit(title));
        if (configured)
            dockConfigurator.configure(*dock);
        window.addDockWidget(static_cast<Qt::DockWidgetArea>(1 << i % 4), dock);
    }
    window.show();
    QCoreApplication::processEvents();
    window.grab();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    QApplication application(argc, argv);
    RatioRun run;
    run.compare(
        "open a window with 20 docks, configured against plain", limit,
        [](benchmark::State& state) {
            for (auto _ : state)
                openWindow(true);
        },
        [](benchmark::State& state) {
            for (auto _ : state)
                openWindow(false);
        });
    return run.run(argc, argv);
}
