// SPDX-License-Identifier: MIT
#include "shots.h"

#include "mainwindow.h"
#include "panes/bandview.h"
#include "panes/levelspane.h"
#include "panes/panecolors.h"
#include "panes/signalspane.h"
#include "receiver/receiverpane.h"

#include <guibase/colors/colorset.h>
#include <guibase/docks/areas/tabifysupport.h>
#include <guibase/docks/areas/tilesupport.h>
#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/inputs/typedinput.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortrowtable.h>
#include <guibase/services/guibase.h>

#include <jtbase/coordformat.h>
#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QEventLoop>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QTimer>

#include <limits>

namespace bandmonitor {

namespace {

constexpr int shownSweeps = 90;
constexpr QSize windowSize(1100, 800); // whatever the screen is
constexpr int dialogPollMs = 20;
constexpr int settlingRounds = 3; // docks put work off into the next round

struct SlotColor
{
    IColorBase::ECOLOR slot;
    const char* color; ///< One of the catalogue.
};

// Dark curves on white, as for printing.
constexpr SlotColor paperColors[] = {
    {PaneSlot::BackgroundLow, "#fffffe"},
    {PaneSlot::BackgroundHigh, "#fffffe"},
    {PaneSlot::Grid, "#cccccc"},
    {PaneSlot::Curve, "#280099"},
    {PaneSlot::Hold, "#99ccff"},
    {PaneSlot::Peak, "#dc2300"},
    {PaneSlot::ReadOut, "#000"},
    {PaneSlot::Cursor, "#dc2300"},
    {PaneSlot::Pin, "#355e00"},
    {PaneSlot::FrequencyAxisHigh, "#e6e6e6"},
    {PaneSlot::FrequencyAxisLow, "#cccccc"},
    {PaneSlot::FrequencyAxisText, "#000"},
    {PaneSlot::LevelAxisText, "#000"},
    {PaneSlot::LevelAxisBackground, "#e6e6e6"},
};

/// The frequency of the highest level from `low` to `high`, in hertz.
double strongest(const Sweep& sweep, double low, double high)
{
    double result = low;
    float highest = -std::numeric_limits<float>::infinity();
    for (const Segment& segment : sweep.segments) {
        for (size_t bin = 0; bin < segment.levels.size(); ++bin) {
            const double hertz =
                segment.startHz + (static_cast<double>(bin) + 0.5) * segment.stepHz;
            if (hertz < low || hertz > high || !(segment.levels[bin] > highest))
                continue;
            highest = segment.levels[bin];
            result = hertz;
        }
    }
    return result;
}

} // namespace

namespace {

QtMessageHandler formerMessageHandler = nullptr;

/// The platform without a screen says of many things that it cannot do them; pictures do not mind.
void dropPlatformRemarks(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QStringLiteral("This plugin does not support")))
        formerMessageHandler(type, context, text);
}

} // namespace

ShotEnvironment::ShotEnvironment(const QString& folder, const QString& configFolder)
    : m_ownSettings(QDir(folder).absoluteFilePath(QStringLiteral("settings-of-pictures")))
    , m_hasOwnSettings(configFolder.isEmpty())
{
    formerMessageHandler = qInstallMessageHandler(&dropPlatformRemarks);
    qputenv("TZ", "CET-1");
    if (m_hasOwnSettings)
        m_ownSettings.removeRecursively(); // left by a run that was killed
    CfgCenter::SetConfigDir(m_hasOwnSettings ? m_ownSettings.path() : configFolder);
}

ShotEnvironment::~ShotEnvironment()
{
    qInstallMessageHandler(formerMessageHandler);
    if (m_hasOwnSettings)
        m_ownSettings.removeRecursively();
}

ShotSeries::ShotSeries(MainWindow& window, const QString& folder)
    : m_window(window)
    , m_folder(folder)
{}

bool ShotSeries::run()
{
    if (!m_folder.mkpath(QStringLiteral(".")))
        m_failure = m_folder.path();
    m_window.resize(windowSize);
    takeMain();
    takeZoom();
    takeSignals();
    takeModes();
    takePanels();
    takeMenus();
    takeDialog(QStringLiteral("info.png"), "showInfo", &m_window);
    takeDialog(QStringLiteral("keyboard.png"), "slotShowHotKeysInMenu", &GuiBase::Instance());
    takeUnits();
    takeColors();
    takeReceiver();
    takeMessage();
    return m_failure.isEmpty();
}

void ShotSeries::takeMain()
{
    Replay& replay = m_window.replay();
    m_window.signalsPane().setUpdateInterval(std::chrono::milliseconds(0));
    for (int sweep = 1; sweep < shownSweeps; ++sweep)
        replay.stepForward();
    FrequencyView& view = m_window.bandView().view();
    const double middle = (view.low() + view.high()) / 2;
    view.addPin(strongest(replay.sweep(), view.low(), middle));
    view.setCursor(strongest(replay.sweep(), middle, view.high()));
    write(QStringLiteral("main.png"));
}

void ShotSeries::takeZoom()
{
    m_window.bandView().view().zoomAtCursor(8);
    write(QStringLiteral("zoom.png"));
    m_window.bandView().view().showAll();
}

void ShotSeries::takeSignals()
{
    SortListView& list = m_window.signalsPane().list();
    list.setSorting(SignalsPane::Level, Qt::DescendingOrder);
    list.header()->setSortIndicator(SignalsPane::Level, Qt::DescendingOrder);
    list.setCurrentItem(list.topLevelItem(2));
    write(QStringLiteral("signals.png"));
    list.setSorting(SignalsPane::Frequency, Qt::AscendingOrder);
    list.header()->setSortIndicator(SignalsPane::Frequency, Qt::AscendingOrder);
    list.setCurrentItem(nullptr);
}

void ShotSeries::takeModes()
{
    m_window.levelsPane().table().addRows({{QStringLiteral("82 M"), QStringLiteral("-50 dB")},
                                           {QStringLiteral("94,5"), QStringLiteral("-38")},
                                           {QStringLiteral("108 MHz"), QStringLiteral("-45,5")},
                                           {QStringLiteral("tomorrow"), QStringLiteral("-40")}});
    for (const auto& [mode, name] : {std::pair(Mode::Measure, QStringLiteral("measure.png")),
                                     std::pair(Mode::Plan, QStringLiteral("plan.png"))}) {
        m_window.modes().setMode(mode);
        write(name);
    }
    m_window.modes().setMode(Mode::Search);
}

void ShotSeries::takePanels()
{
    constexpr auto area = Qt::BottomDockWidgetArea;
    m_window.modes().setMode(Mode::Plan);
    const QByteArray layout = m_window.saveState();
    QMainWindowHelpers::TileSupport::get(m_window)->tileDockWidgets(area);
    write(QStringLiteral("panels-tiled.png"));
    QMainWindowHelpers::TabifySupport::get(m_window)->tabifyDockWidgets(area);
    write(QStringLiteral("panels-tabified.png"));
    m_window.restoreState(layout);

    auto* hiding = QMainWindowHelpers::AutoHideSupport::get(m_window);
    const QList<QDockWidget*>& docks = m_window.panels().docks();
    for (QDockWidget* dock : docks) {
        if (dock->isHidden())
            continue;
        hiding->enableAutoHide(*dock);
        dock->hide(); // as it does when the mouse has left it
    }
    write(QStringLiteral("panels-hidden.png"));
    docks.constFirst()->show();
    write(QStringLiteral("panels-popup.png"));
    for (QDockWidget* dock : docks)
        hiding->disableAutoHide(*dock);
    m_window.restoreState(layout);
    m_window.modes().setMode(Mode::Search);
}

void ShotSeries::takeMenus()
{
    const QList<QAction*> entries = m_window.menuBar()->actions();
    int number = 0;
    for (const QAction* entry : entries) {
        QMenu* menu = entry->menu();
        if (menu == nullptr)
            continue;
        const QRect bar = m_window.menuBar()->actionGeometry(const_cast<QAction*>(entry));
        menu->popup(m_window.menuBar()->mapToGlobal(bar.bottomLeft()));
        const QAction* first = menu->actions().value(0);
        if (first != nullptr && first->menu() != nullptr)
            first->menu()->popup(menu->mapToGlobal(menu->rect().topRight()));
        write(QStringLiteral("menu-%1.png").arg(++number));
        if (first != nullptr && first->menu() != nullptr)
            first->menu()->close();
        menu->close();
    }
}

void ShotSeries::takeDialog(const QString& name, const char* slot, QObject* receiver)
{
    writeWhenDialogOpens(name);
    QMetaObject::invokeMethod(receiver, slot, Qt::DirectConnection);
}

void ShotSeries::takeUnits()
{
    GuiBase& services = GuiBase::Instance();
    services.SetFrequencyUnit(UnitPrefix::Kilo);
    m_window.frequencyResolution().SetValue(UnitPrefix::Kilo);
    services.GetTimeZone()->SetValue(0);
    services.GetPositionFormat()->SetValue(static_cast<int>(CoordFormat::Utm));
    write(QStringLiteral("units.png"));
}

void ShotSeries::takeColors()
{
    const QString file = m_folder.filePath(QStringLiteral("paper.cst"));
    ColorSet& colors = ColorSet::Instance();
    for (const SlotColor& entry : paperColors)
        colors.SetColor(entry.slot, QColor(QLatin1String(entry.color)), false);
    colors.Save(&m_window, file);
    colors.slotRestoreFactoryColors();
    colors.Load(&m_window, file);
    write(QStringLiteral("colors.png"));
    QFile::remove(file); // and so the next start must not look for it
    colors.slotRestoreFactoryColors();
    GuiBase::Instance().emit_signalColorsChanged();
}

void ShotSeries::takeReceiver()
{
    const std::pair<const char*, QVariant> entries[] = {
        {"centreFrequency", 98'500'123},  {"span", 12'000'000}, {"gain", 12.5},
        {"resolutionBandwidth", 100'000}, {"attenuation", -3},  {"sampleCount", 200'000},
        {"deviceAddress", 0xC0FFEE},      {"threshold", -30},
    };
    GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega);
    for (const auto& [field, value] : entries) {
        auto* input = m_window.receiverPane().findChild<QWidget*>(QLatin1String(field));
        dynamic_cast<TypedInput&>(*input).setInputValue(value);
    }
    write(QStringLiteral("receiver.png"));
}

void ShotSeries::takeMessage()
{
    QFile file(m_folder.filePath(QStringLiteral("notes.csv")));
    if (!file.open(QIODevice::WriteOnly) || file.write("not a recording\n") < 0) {
        m_failure = file.fileName();
        return;
    }
    file.close();
    writeWhenDialogOpens(QStringLiteral("message.png"));
    QEventLoop untilFailed;
    QObject::connect(&m_window, &MainWindow::openFailed, &untilFailed, &QEventLoop::quit,
                     Qt::QueuedConnection);
    m_window.open(file.fileName());
    untilFailed.exec();
    file.remove();
}

void ShotSeries::writeWhenDialogOpens(const QString& name)
{
    QTimer::singleShot(dialogPollMs, &m_window, [this, name] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            const QWidgetList windows = QApplication::topLevelWidgets();
            for (QWidget* window : windows)
                dialog = window->isVisible() && dialog == nullptr ? qobject_cast<QDialog*>(window)
                                                                  : dialog;
        }
        if (dialog == nullptr) {
            writeWhenDialogOpens(name);
            return;
        }
        write(name);
        dialog->reject();
    });
}

QPixmap ShotSeries::picture() const
{
    QPixmap result = m_window.grab();
    QPainter painter(&result);
    const QPoint origin = m_window.mapToGlobal(QPoint(0, 0));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window == &m_window || !window->isVisible() ||
            !(qobject_cast<QMenu*>(window) || qobject_cast<QDialog*>(window) ||
              qobject_cast<QDockWidget*>(window)))
            continue;
        // Kept inside the picture; a window manager would keep it on the screen as well.
        const QPoint place = window->mapToGlobal(QPoint(0, 0)) - origin;
        const QPoint limit(std::max(m_window.width() - window->width(), 0),
                           std::max(m_window.height() - window->height(), 0));
        const QRect shown(
            QPoint(std::clamp(place.x(), 0, limit.x()), std::clamp(place.y(), 0, limit.y())),
            window->size());
        painter.drawPixmap(shown.topLeft(), window->grab());
        painter.setPen(window->palette().color(QPalette::Shadow)); // there is no window frame
        painter.drawRect(shown.adjusted(-1, -1, 0, 0));
    }
    return result;
}

void ShotSeries::write(const QString& name)
{
    for (int round = 0; round < settlingRounds; ++round)
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!picture().save(m_folder.filePath(name)) && m_failure.isEmpty())
        m_failure = m_folder.filePath(name);
}

} // namespace bandmonitor
