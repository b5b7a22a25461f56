// SPDX-License-Identifier: MIT
#include "mainwindow.h"

#include "centre/bandview.h"
#include "centre/replaybar.h"
#include "docks/windowmenu.h"
#include "manual.h"
#include "panels/jobsmenu.h"
#include "panels/panel.h"
#include "recentrecordings.h"
#include "selectionactions.h"
#include "settings/settings.h"

#include <guibase/colors/colorset.h>
#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace bandmonitor {

namespace {
constexpr double zoomPerKey = 1.5;

void listKeys(const QList<QAction*>& actions, const QString& scope)
{
    for (QAction* action : actions) {
        if (!action->shortcut().isEmpty())
            GuiBase::Instance().ShowHotKeyFrom(action, scope);
    }
}

} // namespace

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildViewMenu();
    buildReplayMenu();
    buildJobsMenu();
    buildColorsMenu();
    menuBar()->addMenu(new WindowMenu(m_panelDocks, m_bandView, this));
    buildHelpMenu();
}

QAction* MainWindow::addEntry(QMenu* menu, QAction* action, bool bandKey)
{
    menu->addAction(action);
    if (bandKey) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_bandView->addAction(action);
    }
    if (!action->shortcut().isEmpty())
        GuiBase::Instance().ShowHotKeyFrom(action,
                                           bandKey ? tr("Spectrum and waterfall") : tr("Window"));
    return action;
}

QAction* MainWindow::addEntry(QMenu* menu, const QString& text, const QList<QKeySequence>& keys,
                              bool bandKey)
{
    auto* action = new QAction(text, this);
    action->setShortcuts(keys);
    return addEntry(menu, action, bandKey);
}

void MainWindow::addSelectionMenu(QMenu* menu, const QString& title, ValueSelection* selection,
                                  void (MainWindow::*changed)())
{
    auto* actions = new SelectionActions(selection, menu->addMenu(title));
    connect(actions, &SelectionActions::currentChanged, this, changed);
}

void MainWindow::buildFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    connect(addEntry(menu, tr("&Open…"), {QKeySequence(QKeySequence::Open)}, false),
            &QAction::triggered, m_recordings, &RecentRecordings::choose);
    QMenu* recent = m_recordings->menu();
    menu->addMenu(recent);
    QAction* save = addEntry(menu, tr("&Save visible sweep as…"), {Qt::CTRL | Qt::Key_S}, false);
    save->setEnabled(false);
    connect(save, &QAction::triggered, this, &MainWindow::saveVisibleSweep);
    connect(&m_session, &Session::opened, save, [save] { save->setEnabled(true); });
    connect(menu, &QMenu::aboutToShow, recent,
            [recent] { recent->menuAction()->setEnabled(!recent->isEmpty()); });
    menu->addSeparator();
    // Control+Q belongs to the info dialog of the family's help menu.
    connect(addEntry(menu, tr("&Quit"), {QKeySequence(Qt::CTRL | Qt::Key_W)}, false),
            &QAction::triggered, this, &QWidget::close);
}

void MainWindow::buildViewMenu()
{
    GuiBase& services = GuiBase::Instance();
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    addSelectionMenu(menu, tr("Frequency &unit"), services.GetFrequencyUnit(),
                     &MainWindow::frequencyUnitChanged);
    addSelectionMenu(menu, tr("Frequency &resolution"), &m_resolution,
                     &MainWindow::frequencyResolutionChanged);
    addSelectionMenu(menu, tr("Position &format"), services.GetPositionFormat(),
                     &MainWindow::updatePosition);
    addSelectionMenu(menu, tr("Time &zone"), services.GetTimeZone(), &MainWindow::timeZoneChanged);
    menu->addSeparator();
    buildBandEntries(menu);
    menu->addSeparator();
    buildModeEntries(menu);
    menu->addAction(services.CreateResetWidgetViewAction(this));
    menu->addAction(services.CreateResetFactoryViewAction(this));
    for (const Panel* panel : m_panelDocks->panels())
        listKeys(panel->keyActions(), panel->windowTitle());
}

void MainWindow::buildBandEntries(QMenu* menu)
{
    VisibleBand* band = &m_bandView->visibleBand();
    connect(addEntry(menu, tr("Zoom &in"), {Qt::Key_Plus, Qt::Key_Equal}, true),
            &QAction::triggered, band, [band] { band->zoomAtCursor(zoomPerKey); });
    connect(addEntry(menu, tr("Zoom &out"), {Qt::Key_Minus}, true), &QAction::triggered, band,
            [band] { band->zoomAtCursor(1 / zoomPerKey); });
    connect(addEntry(menu, tr("Whole &band"), {Qt::Key_Home}, true), &QAction::triggered, band,
            &VisibleBand::showAll);
    menu->addSeparator();
    QAction* hold = addEntry(menu, tr("&Hold maximum"), {Qt::Key_H}, true);
    hold->setCheckable(true);
    hold->setChecked(Settings::isHoldVisible());
    connect(hold, &QAction::toggled, this, [this](bool visible) {
        Settings::setHoldVisible(visible);
        m_bandView->setHoldVisible(visible);
    });
    connect(addEntry(menu, tr("R&eset hold"), {Qt::Key_R}, true), &QAction::triggered, m_bandView,
            &BandView::resetHold);
    menu->addSeparator();
    connect(addEntry(menu, tr("Set &pin at the cursor"), {Qt::Key_P}, true), &QAction::triggered,
            band, [band] { band->addPin(band->cursor()); });
    connect(addEntry(menu, tr("Remove &all pins"), {QKeySequence(Qt::SHIFT | Qt::Key_P)}, true),
            &QAction::triggered, band, &VisibleBand::clearPins);
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
        connect(action, &QAction::triggered, m_modes, [this, mode] { m_modes->setMode(mode); });
        connect(m_modes, &Modes::modeChanged, action,
                [action, mode](Mode current) { action->setChecked(current == mode); });
    }
    m_modes->waterfallAction()->setShortcut(Qt::ALT | Qt::Key_1);
    addEntry(menu, m_modes->waterfallAction(), false);
}

void MainWindow::buildReplayMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Replay"));
    addEntry(menu, m_replayBar->playAction(), true);
    addEntry(menu, m_replayBar->backAction(), true);
    addEntry(menu, m_replayBar->forwardAction(), true);
    addEntry(menu, m_replayBar->firstAction(), true);
}

void MainWindow::buildJobsMenu()
{
    menuBar()->addMenu(new JobsMenu(&m_session.jobs(), this));
}

void MainWindow::buildColorsMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Colours"));
    connect(addEntry(menu, tr("&Load…"), {}, false), &QAction::triggered, this,
            &MainWindow::loadColors);
    connect(addEntry(menu, tr("&Save as…"), {}, false), &QAction::triggered, this,
            &MainWindow::saveColors);
    menu->addSeparator();
    connect(addEntry(menu, tr("&Factory"), {}, false), &QAction::triggered, this,
            &MainWindow::restoreFactoryColors);
}

void MainWindow::buildHelpMenu()
{
    menuBar()->addMenu(GuiBase::Instance().CreateHelpMenu(this, manualFile(), this,
                                                          SLOT(showInfo()), this, nullptr));
}

void MainWindow::loadColors()
{
    const QString path =
        ModalDialogs::askForFile(this, {QFileDialog::AcceptOpen, tr("Load colours"),
                                        Settings::lastFolder(),
                                        tr("Colour sets (*.cst);;All files (*)")});
    if (!path.isEmpty())
        ColorSet::Instance().Load(this, path);
}

void MainWindow::saveColors()
{
    const QString path =
        ModalDialogs::askForFile(this, {QFileDialog::AcceptSave, tr("Save colours"),
                                        Settings::lastFolder(), tr("Colour sets (*.cst)")});
    if (path.isEmpty())
        return;
    ColorSet::Instance().Save(this, path);
    GuiBase::Instance().SavePersistant(); // the name of the set
}

void MainWindow::restoreFactoryColors()
{
    ColorSet::Instance().slotRestoreFactoryColors();
    GuiBase::Instance().emit_signalColorsChanged();
}

} // namespace bandmonitor
