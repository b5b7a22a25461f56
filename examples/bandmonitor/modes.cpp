// SPDX-License-Identifier: MIT
#include "modes.h"

#include "settings.h"

#include <guibase/services/guibase.h>
#include <guibase/services/splitter.h>

#include <QAction>

#include <algorithm>

namespace bandmonitor {

namespace {

struct ModeEntry
{
    const char* name; ///< In the configuration.
    const char* title;
};

constexpr ModeEntry modeEntries[modeCount] = {
    {"Search", QT_TRANSLATE_NOOP("bandmonitor::Modes", "&Search")},
    {"Measure", QT_TRANSLATE_NOOP("bandmonitor::Modes", "&Measure")},
    {"Plan", QT_TRANSLATE_NOOP("bandmonitor::Modes", "&Plan")},
};

QString nameOf(Mode mode)
{
    return QString::fromLatin1(modeEntries[static_cast<std::size_t>(mode)].name);
}

} // namespace

Modes::Modes(QObject* parent)
    : QObject(parent)
{
    const GuiBase& services = GuiBase::Instance();
    connect(&services, &GuiBase::signalResetToFactoryDefault, this, &Modes::toFactory);
    connect(&services, &GuiBase::signalResetToProgramStart, this, &Modes::toProgramStart);
}

Modes::~Modes() = default;

QString Modes::title(Mode mode)
{
    return tr(modeEntries[static_cast<std::size_t>(mode)].title);
}

QAction* Modes::addPane(QWidget* pane, const QString& name, const QString& title,
                        const PerMode<bool>& shown)
{
    auto* action = new QAction(title, this);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, name](bool on) { setPaneShown(name, on); });
    m_panes.push_back({pane, name, shown, action});
    return action;
}

void Modes::addSplitter(Splitter* splitter, const PerMode<QList<int>>& sizes)
{
    m_splitters.push_back({splitter, sizes});
}

QStringList Modes::factoryPanes() const
{
    QStringList names;
    for (const Pane& pane : m_panes) {
        if (pane.factory[index()])
            names << pane.name;
    }
    return names;
}

QStringList Modes::shownPanes() const
{
    QStringList names;
    for (const Pane& pane : m_panes) {
        if (!pane.widget->isHidden())
            names << pane.name;
    }
    return names;
}

void Modes::showPanes(const QStringList& names)
{
    for (const Pane& pane : m_panes) {
        const bool shown = names.contains(pane.name);
        pane.action->setChecked(shown);
        pane.widget->setVisible(shown);
    }
    for (const SplitterEntry& entry : m_splitters) {
        bool used = false;
        for (int i = 0; i < entry.splitter->count(); ++i)
            used = used || !entry.splitter->widget(i)->isHidden();
        entry.splitter->setVisible(used);
    }
}

void Modes::enter()
{
    showPanes(Settings::shownPanes(nameOf(m_mode), factoryPanes().join(QLatin1Char(' ')))
                  .split(QLatin1Char(' '), Qt::SkipEmptyParts));
    for (const SplitterEntry& entry : m_splitters) {
        entry.splitter->setSizes(entry.factory[index()]);
        entry.splitter->setVariant(nameOf(m_mode));
    }
    if (m_starts.contains(m_mode))
        return;
    Start& start = m_starts[m_mode];
    start.panes = shownPanes();
    for (const SplitterEntry& entry : m_splitters)
        start.splitters.push_back(entry.splitter->saveState());
}

void Modes::keep()
{
    Settings::setShownPanes(nameOf(m_mode), shownPanes().join(QLatin1Char(' ')));
    for (const SplitterEntry& entry : m_splitters)
        entry.splitter->slotKeepSettings(0, 0);
}

void Modes::showKept()
{
    const int kept = Settings::mode(0);
    m_mode =
        kept >= 0 && kept < static_cast<int>(modeCount) ? static_cast<Mode>(kept) : Mode::Search;
    enter();
    Q_EMIT modeChanged(m_mode);
}

void Modes::announce()
{
    GuiBase& services = GuiBase::Instance();
    for (int mode = 0; mode < static_cast<int>(modeCount); ++mode)
        services.storeFactoryDefaultWidgets(mode);
    services.setMode(static_cast<long>(m_mode));
}

void Modes::setMode(Mode mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    Settings::setMode(static_cast<int>(mode));
    GuiBase::Instance().setMode(static_cast<long>(mode));
    enter();
    Q_EMIT modeChanged(mode);
}

void Modes::setPaneShown(const QString& name, bool shown)
{
    QStringList names = shownPanes();
    names.removeAll(name);
    if (shown)
        names << name;
    showPanes(names);
    Settings::setShownPanes(nameOf(m_mode), shownPanes().join(QLatin1Char(' ')));
}

bool Modes::isPaneShown(const QString& name) const
{
    return shownPanes().contains(name);
}

void Modes::toFactory()
{
    const Mode current = m_mode;
    for (int mode = 0; mode < static_cast<int>(modeCount); ++mode) {
        m_mode = static_cast<Mode>(mode);
        showPanes(factoryPanes());
        for (const SplitterEntry& entry : m_splitters) {
            entry.splitter->setVariant(nameOf(m_mode));
            entry.splitter->setSizes(entry.factory[index()]);
        }
        keep();
    }
    m_mode = current;
    enter();
}

void Modes::toProgramStart()
{
    const Mode current = m_mode;
    for (const auto& [mode, start] : m_starts) {
        m_mode = mode;
        showPanes(start.panes);
        for (std::size_t i = 0; i < m_splitters.size(); ++i) {
            m_splitters[i].splitter->setVariant(nameOf(mode));
            m_splitters[i].splitter->restoreState(start.splitters[i]);
        }
        keep();
    }
    m_mode = current;
    enter();
}

} // namespace bandmonitor
