// SPDX-License-Identifier: MIT
#include "docks/modes.h"

#include "docks/paneldocks.h"
#include "settings/settings.h"

#include <guibase/services/guibase.h>
#include <guibase/splitters/splitter.h>

#include <QAction>

namespace bandmonitor {

namespace {

struct ModeEntry
{
    const char* name; ///< In the configuration.
    const char* title;
    bool waterfall;
    int spectrumShare; ///< Of a thousand pixels; the waterfall has the rest.
};

constexpr PerMode<ModeEntry> modeEntries{{
    {"Search", QT_TRANSLATE_NOOP("bandmonitor::Modes", "&Search"), true, 580},
    {"Measure", QT_TRANSLATE_NOOP("bandmonitor::Modes", "&Measure"), false, 800},
    {"Plan", QT_TRANSLATE_NOOP("bandmonitor::Modes", "&Plan"), true, 550},
}};

QString nameOf(Mode mode)
{
    return QString::fromLatin1(forMode(modeEntries, mode).name);
}

QList<int> factorySizes(Mode mode)
{
    const int share = forMode(modeEntries, mode).spectrumShare;
    return {share, 1000 - share};
}

} // namespace

Modes::Modes(PanelDocks* panels, QWidget* waterfall, Splitter* splitter, QObject* parent)
    : QObject(parent)
    , m_panels(panels)
    , m_waterfall(waterfall)
    , m_splitter(splitter)
    , m_waterfallAction(new QAction(tr("&Waterfall"), this))
{
    m_waterfallAction->setCheckable(true);
    connect(m_waterfallAction, &QAction::triggered, this, [this](bool shown) {
        showWaterfall(shown);
        Settings::setWaterfallShown(nameOf(m_mode), shown);
    });
    const GuiBase& services = GuiBase::Instance();
    connect(&services, &GuiBase::signalResetToFactoryDefault, this, &Modes::toFactory);
    connect(&services, &GuiBase::signalResetToProgramStart, this, &Modes::toProgramStart);
}

Modes::~Modes() = default;

QString Modes::title(Mode mode)
{
    return tr(forMode(modeEntries, mode).title);
}

void Modes::showWaterfall(bool shown)
{
    m_waterfallAction->setChecked(shown);
    m_waterfall->setVisible(shown);
}

void Modes::enterCentre()
{
    showWaterfall(
        Settings::isWaterfallShown(nameOf(m_mode), forMode(modeEntries, m_mode).waterfall));
    m_splitter->setSizes(factorySizes(m_mode));
    m_splitter->setVariant(nameOf(m_mode));
}

void Modes::noteStart()
{
    std::optional<Start>& start = m_starts[static_cast<std::size_t>(m_mode)];
    if (!start)
        start = Start{m_waterfallAction->isChecked(), m_splitter->saveState()};
}

void Modes::keepCentre()
{
    Settings::setWaterfallShown(nameOf(m_mode), m_waterfallAction->isChecked());
    m_splitter->slotKeepSettings(0, 0);
}

void Modes::showKept()
{
    const int kept = Settings::mode(0);
    m_mode =
        kept >= 0 && kept < static_cast<int>(modeCount) ? static_cast<Mode>(kept) : Mode::Search;
    // The services give a new window their mode 0.
    m_panels->arrange(Mode::Search);
    enterCentre();
    Q_EMIT modeChanged(m_mode);
}

void Modes::announce()
{
    m_panels->showMode(m_mode);
    enterCentre(); // in the size that the window has now
    noteStart();
}

void Modes::setMode(Mode mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    Settings::setMode(static_cast<int>(mode));
    m_panels->showMode(mode);
    enterCentre();
    noteStart();
    Q_EMIT modeChanged(mode);
}

void Modes::toFactory()
{
    const Mode current = m_mode;
    for (const Mode mode : allModes) {
        m_mode = mode;
        m_panels->showFactory(mode);
        m_splitter->setVariant(nameOf(mode));
        m_splitter->forgetSettings();
        Settings::setWaterfallShown(nameOf(mode), forMode(modeEntries, mode).waterfall);
    }
    m_mode = current;
    m_panels->showMode(current);
    enterCentre();
}

void Modes::toProgramStart()
{
    const Mode current = m_mode;
    for (const Mode mode : allModes) {
        m_mode = mode;
        m_panels->showProgramStart(mode);
        const std::optional<Start>& start = forMode(m_starts, mode);
        if (!start)
            continue;
        m_splitter->setVariant(nameOf(mode));
        showWaterfall(start->waterfall);
        m_splitter->restoreState(start->splitter);
        keepCentre();
    }
    m_mode = current;
    m_panels->showMode(current);
    enterCentre();
}

} // namespace bandmonitor
