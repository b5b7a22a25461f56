// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "centre/bandplankeeper.h"
#include "centre/bandview.h"
#include "centre/replaybar.h"
#include "colorsmenu.h"
#include "docks/panelfocus.h"
#include "docks/windowmenu.h"
#include "exports.h"
#include "manual.h"
#include "menukeys.h"
#include "panels/jobsmenu.h"
#include "playkey.h"
#include "receiver/receiverbar.h"
#include "recentrecordings.h"
#include "selectionactions.h"
#include "settings/keys.h"

#include <radiopanes/panes/waterfallpane.h>

#include <guibase/binding/actionbinding.h>
#include <guibase/services/guibase.h>
#include <guibase/undo/undoactions.h>

#include <QActionGroup>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>

namespace bandmonitor {

namespace {
constexpr double zoomPerKey = 1.5;
} // namespace

/// The first frame shows the titles only.
void MainWindow::buildMenuBar()
{
    for (const QString& title :
         {tr("&File"), tr("&Edit"), tr("&View"), tr("&Replay"), JobsMenu::tr("&Jobs"),
          ColorsMenu::tr("&Colours"), WindowMenu::tr("&Window")})
        menuBar()->addAction(title);
    menuBar()->addMenu(GuiBase::Instance().CreateHelpMenu(this, manualFile(), this,
                                                          SLOT(showInfo()), this, nullptr));
}

void MainWindow::buildMenus()
{
    QMenu* const menus[] = {buildFileMenu(),
                            buildEditMenu(),
                            buildViewMenu(),
                            buildReplayMenu(),
                            new JobsMenu(&m_session.jobs(), m_values, this),
                            new ColorsMenu(this),
                            new WindowMenu(m_panelDocks, m_bandView, this)};
    qsizetype number = 0;
    for (QMenu* menu : menus)
        menuBar()->actions().at(number++)->setMenu(menu);
    new MenuKeys(this);
}

QAction* MainWindow::addEntry(QMenu* menu, QAction* action, bool bandKey)
{
    menu->addAction(action);
    if (bandKey) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_bandView->addAction(action);
        GuiBase::Instance().ShowHotKeyFrom(action, tr("Spectrum and waterfall"));
    } else {
        Keys::listEverywhere(action);
    }
    return action;
}

QAction* MainWindow::addEntry(QMenu* menu, const QString& text, const QList<QKeySequence>& keys,
                              bool bandKey)
{
    auto* action = new QAction(text, this);
    action->setShortcuts(keys);
    return addEntry(menu, action, bandKey);
}

void MainWindow::addSelectionMenu(QMenu* menu, const QString& title, const ChoiceEntry& entry,
                                  void (MainWindow::*changed)())
{
    auto* actions = new SelectionActions(entry, menu->addMenu(title));
    connect(actions, &SelectionActions::currentChanged, this, changed);
}

QMenu* MainWindow::buildFileMenu()
{
    auto* menu = new QMenu(menuBar());
    connect(addEntry(menu, tr("&Open…"), {QKeySequence(QKeySequence::Open)}, false),
            &QAction::triggered, m_recordings, &RecentRecordings::choose);
    QMenu* recent = m_recordings->menu();
    menu->addMenu(recent);
    QAction* save = addEntry(menu, tr("&Save visible sweep as…"), {Qt::CTRL | Qt::Key_S}, false);
    save->setEnabled(false);
    connect(save, &QAction::triggered, this, &MainWindow::saveVisibleSweep);
    connect(&m_session, &Session::begun, save, [save] { save->setEnabled(true); });
    buildLiveEntries(menu);
    connect(menu, &QMenu::aboutToShow, recent,
            [recent] { recent->menuAction()->setEnabled(!recent->isEmpty()); });
    menu->addMenu(m_exports->exportMenu());
    menu->addSeparator();
    // Control+Q belongs to the info dialog of the family's help menu.
    connect(addEntry(menu, tr("&Quit"), {QKeySequence(Qt::CTRL | Qt::Key_W)}, false),
            &QAction::triggered, this, [this] {
                if (close())
                    QCoreApplication::quit(); // also when closed windows leave an icon in the tray
            });
    return menu;
}

QMenu* MainWindow::buildEditMenu()
{
    auto* menu = new QMenu(menuBar());
    addEntry(menu, m_undo->undoAction(), false);
    addEntry(menu, m_undo->redoAction(), false);
    menu->addSeparator();
    menu->addMenu(m_exports->copyMenu());
    menu->addSeparator();
    QDockWidget* history = m_panelDocks->dock(QStringLiteral("history"));
    QAction* show = addEntry(menu, tr("Show &history"), {Qt::CTRL | Qt::Key_H}, false);
    show->setCheckable(true);
    show->setChecked(history->toggleViewAction()->isChecked());
    connect(show, &QAction::triggered, history, [this, history](bool shown) {
        history->setVisible(shown);
        if (shown)
            PanelFocus::enter(*m_panelDocks, *history, Qt::ShortcutFocusReason);
    });
    connect(history->toggleViewAction(), &QAction::toggled, show, &QAction::setChecked);
    return menu;
}

QMenu* MainWindow::buildViewMenu()
{
    GuiBase& services = GuiBase::Instance();
    auto* menu = new QMenu(menuBar());
    constexpr auto control = Qt::CTRL | Qt::SHIFT;
    addSelectionMenu(menu, tr("Frequency &unit"),
                     {services.GetFrequencyUnit(), tr("Frequencies in %1"), control | Qt::Key_1},
                     &MainWindow::frequencyUnitChanged);
    addSelectionMenu(menu, tr("Frequency &resolution"),
                     {&m_resolution, tr("Frequencies to %1"), control | Qt::Key_5},
                     &MainWindow::frequencyResolutionChanged);
    addSelectionMenu(menu, tr("Position &format"),
                     {services.GetPositionFormat(), tr("Position in %1"), control | Qt::Key_F1},
                     &MainWindow::updatePosition);
    addSelectionMenu(menu, tr("Time &zone"),
                     {services.GetTimeZone(), QStringLiteral("%1"), control | Qt::Key_7},
                     &MainWindow::timeZoneChanged);
    addSelectionMenu(menu, tr("Lan&guage"),
                     {&m_language.selection(), QStringLiteral("%1"), control | Qt::Key_F9},
                     &MainWindow::languageChanged);
    menu->addSeparator();
    buildBandEntries(menu);
    menu->addSeparator();
    buildModeEntries(menu);
    auto* bar = findChild<ReceiverBar*>();
    bar->toggleViewAction()->setShortcut(Qt::ALT | Qt::Key_0);
    addEntry(menu, bar->toggleViewAction(), false);
    QAction* toStart = services.CreateResetWidgetViewAction(this);
    toStart->setShortcut(Qt::CTRL | Qt::Key_R);
    addEntry(menu, toStart, false);
    QAction* toFactory = services.CreateResetFactoryViewAction(this);
    toFactory->setShortcut(control | Qt::Key_R);
    addEntry(menu, toFactory, false);
    services.ShowListHotKeys();
    return menu;
}

void MainWindow::buildBandEntries(QMenu* menu)
{
    VisibleBand* band = &m_bandView->visibleBand();
    connect(addEntry(menu, tr("Zoom &in"), {Qt::Key_Plus, Qt::Key_Equal}, true),
            &QAction::triggered, band, [band] { band->zoomAtCursor(zoomPerKey); });
    connect(addEntry(menu, tr("Zoom &out"), {Qt::Key_Minus}, true), &QAction::triggered, band,
            [band] { band->zoomAtCursor(1 / zoomPerKey); });
    connect(addEntry(menu, tr("Whole ban&d"), {Qt::Key_Home}, true), &QAction::triggered, band,
            &VisibleBand::showAll);
    WaterfallPane* waterfall = &m_bandView->waterfall();
    connect(addEntry(menu, tr("Zoom in in tim&e"),
                     {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, true),
            &QAction::triggered, waterfall, [waterfall] { waterfall->zoomTime(1); });
    connect(addEntry(menu, tr("Zoom out in &time"), {Qt::CTRL | Qt::Key_Minus}, true),
            &QAction::triggered, waterfall, [waterfall] { waterfall->zoomTime(-1); });
    menu->addSeparator();
    buildTraceMenu(menu->addMenu(tr("Trace&s")));
    menu->addSeparator();
    connect(addEntry(menu, tr("Set &pin at the cursor"), {Qt::Key_P}, true), &QAction::triggered,
            band, [band] { band->addPin(band->cursor()); });
    connect(addEntry(menu, tr("Remove &all pins"), {QKeySequence(Qt::SHIFT | Qt::Key_P)}, true),
            &QAction::triggered, band, &VisibleBand::clearPins);
    connect(addEntry(menu, tr("&Bookmark the cursor"), {Qt::Key_B}, true), &QAction::triggered,
            m_bandView, [this, band] { m_bandView->addBookmark(band->cursor()); });
    auto* plan = m_bandView->findChild<BandPlanKeeper*>();
    connect(addEntry(menu, tr("Band p&lan…"), {Qt::CTRL | Qt::Key_B}, false), &QAction::triggered,
            plan, &BandPlanKeeper::choosePlan);
    connect(addEntry(menu, tr("No band pla&n"), {Qt::CTRL | Qt::SHIFT | Qt::Key_B}, false),
            &QAction::triggered, plan, &BandPlanKeeper::removePlan);
    QAction* overview = addEntry(menu, tr("O&verview of all sweeps"), {Qt::Key_O}, true);
    new ValueWidgetBinding::ActionBinding(m_values->isOverviewVisible, *overview);
}

void MainWindow::buildTraceMenu(QMenu* menu)
{
    struct Row
    {
        Value<bool>& value;
        QString text;
        Qt::Key key;
    };
    const Row rows[] = {{m_values->isCurrentVisible, tr("&Current"), Qt::Key_C},
                        {m_values->isAverageVisible, tr("&Average"), Qt::Key_A},
                        {m_values->isHoldVisible, tr("&Hold maximum"), Qt::Key_H},
                        {m_values->isMinimumVisible, tr("Hold &minimum"), Qt::Key_M}};
    for (const Row& row : rows)
        new ValueWidgetBinding::ActionBinding(row.value,
                                              *addEntry(menu, row.text, {row.key}, true));
    menu->addSeparator();
    connect(addEntry(menu, tr("R&eset hold"), {Qt::Key_R}, true), &QAction::triggered, m_bandView,
            &BandView::resetHold);
}

void MainWindow::buildModeEntries(QMenu* menu)
{
    QMenu* modeMenu = menu->addMenu(tr("&Mode"));
    auto* group = new QActionGroup(this);
    for (int number = 0; number < static_cast<int>(modeCount); ++number) {
        const auto mode = static_cast<Mode>(number);
        const QKeySequence key(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number));
        QAction* action = addEntry(modeMenu, Modes::title(mode), {key}, false);
        action->setCheckable(true);
        group->addAction(action);
        action->setChecked(mode == m_modes->mode());
        connect(action, &QAction::triggered, m_modes, [this, mode] { m_modes->setMode(mode); });
        connect(m_modes, &Modes::modeChanged, action,
                [action, mode](Mode current) { action->setChecked(current == mode); });
    }
    m_modes->waterfallAction()->setShortcut(Qt::ALT | Qt::Key_1);
    addEntry(menu, m_modes->waterfallAction(), false);
}

QMenu* MainWindow::buildReplayMenu()
{
    auto* menu = new QMenu(menuBar());
    addEntry(menu, m_replayBar->playAction(), true);
    new PlayKey(*m_replayBar->playAction(), *this);
    addEntry(menu, m_replayBar->backAction(), true);
    addEntry(menu, m_replayBar->forwardAction(), true);
    addEntry(menu, m_replayBar->firstAction(), true);
    addEntry(menu, m_replayBar->lastAction(), true);
    return menu;
}

} // namespace bandmonitor
