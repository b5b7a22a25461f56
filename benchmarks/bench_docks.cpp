// SPDX-License-Identifier: MIT
// What the supports of a main window cost: events in a window with all of them ("ours") against
// one without, tiling ("ours") against the toolkit's own calls for the same, and tiling many docks
// against few.
#include "ratio.h"

#include <guibase/docks/active/activedockwidgetsupport.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/docks/mainwindowhelpers.h>
#include <guibase/docks/maximizeminimizesupport.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMouseEvent>
#include <QWidget>

#include <memory>

using namespace QMainWindowHelpers;

namespace {

constexpr double eventLimit = 1.4;
constexpr double tilingLimit = 1.5;
constexpr double growthLimit = 1.5;
constexpr double autoHideLimit = 5;
constexpr Qt::DockWidgetArea area = Qt::TopDockWidgetArea;

struct Window
{
    explicit Window(int count)
    {
        window.setCentralWidget(new QWidget);
        window.resize(2400, 1600);
        for (int i = 0; i < count; ++i) {
            auto* dock =
                new QDockWidget(QStringLiteral("Dock %1").arg(i, 3, 10, QLatin1Char('0')), &window);
            dock->setWidget(new QWidget);
            window.addDockWidget(area, dock);
            if (i > 0)
                window.tabifyDockWidget(docks.first(), dock);
            docks << dock;
        }
        window.show();
        QCoreApplication::processEvents();
        window.resizeDocks({docks.first()}, {1200}, Qt::Vertical);
        QCoreApplication::processEvents();
        TileSupport::tileDockWidgets(window, area);
    }

    void installAll()
    {
        ActiveDockWidgetSupport::install(window);
        AutoHideSupport::install(window, Qt::LeftToolBarArea | Qt::RightToolBarArea);
        TabifySupport::install(window, Qt::AllDockWidgetAreas);
        TileSupport::install(window, Qt::AllDockWidgetAreas);
        for (QDockWidget* dock : docks)
            QDockWidgetHelpers::MaximizeMinimizeSupport::install(*dock);
        QCoreApplication::processEvents();
    }

    QMainWindow window;
    QList<QDockWidget*> docks;
};

/// What the event loop of an application does when it comes to its turn: paints, and deletes what
/// the layout used for its animations.
void takeTurn()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// The grid that tiling makes of these docks, with the toolkit's own calls.
void tileByHand(Window& window, int columns)
{
    window.window.setUpdatesEnabled(false);
    const QList<QDockWidget*>& docks = window.docks;
    const QRect place = dockWidgetAreaGeometry(window.window, area);
    const int rows = (static_cast<int>(docks.size()) + columns - 1) / columns;
    for (QDockWidget* dock : docks)
        window.window.removeDockWidget(dock);
    window.window.addDockWidget(area, docks.first());
    for (int i = 1; i < docks.size(); ++i) {
        if (i < columns)
            window.window.splitDockWidget(docks[i - 1], docks[i], Qt::Horizontal);
        else
            window.window.splitDockWidget(docks[i - columns], docks[i], Qt::Vertical);
    }
    for (QDockWidget* dock : docks)
        dock->show();
    QCoreApplication::processEvents();
    window.window.resizeDocks(docks, QList<int>(docks.size(), place.width() / columns),
                              Qt::Horizontal);
    window.window.resizeDocks(docks, QList<int>(docks.size(), place.height() / rows), Qt::Vertical);
    QCoreApplication::processEvents();
    window.window.setUpdatesEnabled(true);
    takeTurn();
}

void tile(Window& window)
{
    if (!TileSupport::tileDockWidgets(window.window, area))
        qFatal("The docks do not fit.");
    takeTurn();
}

/// Lets all docks of a window hide at its edges, or only hides them; until it is painted.
RatioRun::Body hideAll(bool atEdge)
{
    return [atEdge](benchmark::State& state) {
        Window window(80);
        AutoHideSupport* support =
            AutoHideSupport::install(window.window, Qt::LeftToolBarArea | Qt::RightToolBarArea);
        takeTurn();
        for (auto _ : state) {
            for (QDockWidget* dock : window.docks) {
                if (atEdge)
                    support->enableAutoHide(*dock);
                else
                    dock->hide();
            }
            takeTurn();
            window.window.repaint();
            state.PauseTiming();
            for (QDockWidget* dock : window.docks) {
                support->disableAutoHide(*dock);
                dock->show();
            }
            takeTurn();
            state.ResumeTiming();
        }
    };
}

template <class Step>
RatioRun::Body repeat(Step step)
{
    return [step](benchmark::State& state) {
        for (auto _ : state)
            step();
    };
}

/// Sends an event of this type to a widget inside a dock of a window with or without the supports,
/// and nowhere in the process are there others meanwhile.
RatioRun::Body sendEvents(QEvent::Type type, bool withSupports)
{
    return [type, withSupports](benchmark::State& state) {
        Window window(20);
        if (withSupports)
            window.installAll();
        QWidget* receiver = window.docks[7]->widget();
        for (auto _ : state) {
            if (type == QEvent::MouseMove) {
                QMouseEvent event(type, {1, 1}, receiver->mapToGlobal(QPointF(1, 1)), Qt::NoButton,
                                  Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(receiver, &event);
            } else {
                QEvent event(type);
                QCoreApplication::sendEvent(receiver, &event);
            }
        }
    };
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    QApplication application(argc, argv);
    RatioRun run;
    run.compare("an event in a window with all supports", eventLimit,
                sendEvents(QEvent::User, true), sendEvents(QEvent::User, false));
    run.compare("a mouse move in a window with all supports", eventLimit,
                sendEvents(QEvent::MouseMove, true), sendEvents(QEvent::MouseMove, false));

    run.compare("auto-hiding 80 docks against hiding them", autoHideLimit, hideAll(true),
                hideAll(false));

    Window twenty(20);
    Window eighty(80);
    const std::string twentyName = "tiling 20 docks against the toolkit's calls";
    run.compare(twentyName, tilingLimit, repeat([&twenty] { tile(twenty); }),
                repeat([&twenty] { tileByHand(twenty, 10); }));
    const std::string eightyName = "tiling 80 docks against the toolkit's calls";
    run.compare(eightyName, tilingLimit, repeat([&eighty] { tile(eighty); }),
                repeat([&eighty] { tileByHand(eighty, 10); }));
    // One layout of the toolkit unites the separators of all docks anew for each dock it moves.
    run.compareGrowth("growth per dock of tiling 80 docks instead of 20", growthLimit, twentyName,
                      eightyName, 4);
    run.compare("tiling and painting 80 docks against four times 20", growthLimit,
                repeat([&eighty] {
                    tile(eighty);
                    eighty.window.repaint();
                }),
                repeat([&twenty] {
                    for (int times = 0; times < 4; ++times) {
                        tile(twenty);
                        twenty.window.repaint();
                    }
                }));
    return run.run(argc, argv);
}
