// SPDX-License-Identifier: MIT
#include "screenshots.h"

#include "centre/bandview.h"
#include "colorsdialog.h"
#include "dialogcloser.h"
#include "mainwindow.h"
#include "model/panenames.h"
#include "panels/levelspanel.h"
#include "panels/signalspanel.h"
#include "receiver/receiverpanel.h"

#include <radiopanes/colors/panecolors.h>

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
#include <valueframework/undorecording.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QEventLoop>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>

#include <limits>

namespace bandmonitor {

namespace {

constexpr int shownSweeps = 90;
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

ScreenshotEnvironment::ScreenshotEnvironment(const QString& folder, const QString& configFolder)
    : m_ownSettings(QDir(folder).absoluteFilePath(QStringLiteral("settings-of-pictures")))
    , m_hasOwnSettings(configFolder.isEmpty())
{
    qputenv("TZ", "CET-1");
    if (m_hasOwnSettings)
        m_ownSettings.removeRecursively(); // left by a run that was killed
    CfgCenter::SetConfigDir(m_hasOwnSettings ? m_ownSettings.path() : configFolder);
}

ScreenshotEnvironment::~ScreenshotEnvironment()
{
    if (m_hasOwnSettings)
        m_ownSettings.removeRecursively();
}

ScreenshotSeries::ScreenshotSeries(MainWindow& window, DialogCloser& dialogs, const QString& folder)
    : m_window(window)
    , m_dialogs(dialogs)
    , m_folder(folder)
{}

bool ScreenshotSeries::run()
{
    if (!m_folder.mkpath(QStringLiteral(".")))
        m_failure = m_folder.path();
    m_window.resize(PanelDocks::windowSize); // whatever the screen is, for which it is arranged
    m_window.panelDocks().showFactory(m_window.modes().mode());
    takeMain();
    takeZoom();
    takeSignals();
    takeModes();
    takePanels();
    takeMenus();
    takeDialog(QStringLiteral("info.png"), "showInfo", &m_window);
    takeDialog(QStringLiteral("keyboard.png"), "slotShowHotKeysInMenu", &GuiBase::Instance());
    takeColorEditor();
    takeUnits();
    takeColors();
    takeReceiver();
    takeMessage();
    return m_failure.isEmpty();
}

void ScreenshotSeries::takeMain()
{
    Replay& replay = m_window.session().replay();
    m_window.panel<SignalsPanel>().setUpdateInterval(std::chrono::milliseconds(0));
    for (int sweep = 1; sweep < shownSweeps; ++sweep)
        replay.stepForward();
    VisibleBand& band = m_window.bandView().visibleBand();
    const double middle = (band.low() + band.high()) / 2;
    band.addPin(strongest(replay.sweep(), band.low(), middle));
    band.setCursor(strongest(replay.sweep(), middle, band.high()));
    write(QStringLiteral("main.png"));
}

void ScreenshotSeries::takeZoom()
{
    m_window.bandView().visibleBand().zoomAtCursor(8);
    write(QStringLiteral("zoom.png"));
    m_window.bandView().visibleBand().showAll();
}

void ScreenshotSeries::takeSignals()
{
    SortListView& list = m_window.panel<SignalsPanel>().list();
    list.setSorting(SignalsPanel::Level, Qt::DescendingOrder);
    list.header()->setSortIndicator(SignalsPanel::Level, Qt::DescendingOrder);
    list.setCurrentItem(list.topLevelItem(2));
    write(QStringLiteral("signals.png"));
    list.setSorting(SignalsPanel::Frequency, Qt::AscendingOrder);
    list.header()->setSortIndicator(SignalsPanel::Frequency, Qt::AscendingOrder);
    list.setCurrentItem(nullptr);
}

void ScreenshotSeries::takeModes()
{
    m_window.panel<LevelsPanel>().table().addRows(
        {{QStringLiteral("82 M"), QStringLiteral("-50 dB")},
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

void ScreenshotSeries::takePanels()
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
    const QList<QDockWidget*>& docks = m_window.panelDocks().docks();
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

void ScreenshotSeries::takeMenus()
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

void ScreenshotSeries::takeDialog(const QString& name, const char* slot, QObject* receiver)
{
    m_dialogs.useNext([this, name] { write(name); });
    QMetaObject::invokeMethod(receiver, slot, Qt::DirectConnection);
}

void ScreenshotSeries::takeUnits()
{
    GuiBase& services = GuiBase::Instance();
    services.SetFrequencyUnit(UnitPrefix::Kilo);
    m_window.frequencyResolution().SetValue(UnitPrefix::Kilo);
    services.GetTimeZone()->SetValue(0);
    services.GetPositionFormat()->SetValue(static_cast<int>(CoordFormat::Utm));
    write(QStringLiteral("units.png"));
}

void ScreenshotSeries::takeColors()
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

void ScreenshotSeries::takeColorEditor()
{
    const auto take = [this](const QString& name) {
        m_dialogs.useNext([this, name] { write(name); });
        ColorsDialog::edit(&m_window);
        settle();
    };
    take(QStringLiteral("color-editor.png"));
    takeDark([this, take] {
        take(QStringLiteral("color-editor-dark.png"));
        takeDialog(QStringLiteral("keyboard-dark.png"), "slotShowHotKeysInMenu",
                   &GuiBase::Instance());
    });
}

void ScreenshotSeries::takeDark(const std::function<void()>& take)
{
    const QPalette light = QApplication::palette();
    QApplication::setPalette(pictures::darkPalette());
    ColorSet& colors = ColorSet::Instance();
    colors.slotRestoreSystemColors();
    colors.Load(&m_window, QString::fromLatin1(ColorSet::darkDesktopName));
    settle();
    take();
    QApplication::setPalette(light);
    colors.slotRestoreSystemColors();
    colors.slotRestoreFactoryColors();
    GuiBase::Instance().emit_signalColorsChanged();
}

void ScreenshotSeries::takeReceiver()
{
    const std::pair<const char*, QVariant> entries[] = {
        {"centreFrequency", 98'500'123},  {"span", 12'000'000}, {"gain", 12.5},
        {"resolutionBandwidth", 100'000}, {"attenuation", -3},  {"sampleCount", 200'000},
        {"deviceAddress", 0xC0FFEE},      {"threshold", -30},
    };
    GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega);
    UndoRecording::Instance().clear();
    for (const auto& [field, value] : entries) {
        auto* input = m_window.panel<ReceiverPanel>().findChild<QWidget*>(QLatin1String(field));
        dynamic_cast<TypedInput&>(*input).setInputValue(value);
    }
    m_window.panelDocks().dock(QStringLiteral("history"))->show();
    UndoRecording::Instance().undo();
    write(QStringLiteral("receiver.png"));
    takeDark([this] { write(QStringLiteral("receiver-dark.png")); });
}

void ScreenshotSeries::takeMessage()
{
    QFile file(m_folder.filePath(QStringLiteral("notes.csv")));
    if (!file.open(QIODevice::WriteOnly) || file.write("not a recording\n") < 0) {
        m_failure = file.fileName();
        return;
    }
    file.close();
    m_dialogs.useNext([this] { write(QStringLiteral("message.png")); });
    QEventLoop untilFailed;
    QObject::connect(&m_window.session(), &Session::openFailed, &untilFailed, &QEventLoop::quit,
                     Qt::QueuedConnection);
    m_window.open(file.fileName());
    untilFailed.exec();
    file.remove();
}

QPixmap ScreenshotSeries::picture() const
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

void ScreenshotSeries::settle()
{
    for (int round = 0; round < settlingRounds; ++round)
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void ScreenshotSeries::write(const QString& name)
{
    settle();
    if (!picture().save(m_folder.filePath(name)) && m_failure.isEmpty())
        m_failure = m_folder.filePath(name);
}

} // namespace bandmonitor
