// SPDX-License-Identifier: MIT
#include "panels/jobsmenu.h"

#include "settings/keys.h"
#include "model/jobs.h"
#include "settings/settings.h"

#include <guibase/services/guibase.h>

#include <QActionGroup>

#include <algorithm>

namespace bandmonitor {

namespace {

struct OrderEntry
{
    JobOrder order;
    const char* text;
    Qt::Key key; ///< With Alt and Shift.
};

constexpr int firstJobKey = Qt::Key_F5; // Control+F4 closes a panel
constexpr int lastJobKey = Qt::Key_F12;

constexpr OrderEntry orderEntries[] = {
    {JobOrder::Name, QT_TRANSLATE_NOOP("bandmonitor::JobsMenu", "Jobs by &name"), Qt::Key_N},
    {JobOrder::State, QT_TRANSLATE_NOOP("bandmonitor::JobsMenu", "Jobs by &state"), Qt::Key_S},
    {JobOrder::Time, QT_TRANSLATE_NOOP("bandmonitor::JobsMenu", "Jobs by &time, latest first"),
     Qt::Key_T},
};

JobOrder keptOrder()
{
    const int order = Settings::jobOrder();
    return order >= 0 && order < static_cast<int>(std::size(orderEntries))
               ? static_cast<JobOrder>(order)
               : JobOrder::Name;
}

} // namespace

JobsMenu::JobsMenu(Jobs* jobs, QWidget* parent)
    : ResortPopupMenu(parent, "jobs")
    , m_jobs(jobs)
    , m_orderMenu(new QMenu(tr("S&ort"), this))
    , m_order(keptOrder())
{
    setTitle(tr("&Jobs"));
    int key = firstJobKey;
    for (const Job& job : m_jobs->list().jobs()) {
        QAction* action = insertItem(job.name, job.id);
        if (key <= lastJobKey)
            action->setShortcut(Qt::CTRL | static_cast<Qt::Key>(key++));
        Keys::listEverywhere(action);
    }
    m_orderMenuId = createUniqueId();
    insertItem(m_orderMenu->title(), m_orderMenu, m_orderMenuId);
    buildOrderMenu();
    connect(this, &ResortPopupMenu::signalActivated, m_jobs, &Jobs::run);
    NotifyBeforeShow(this);
    UpdateMenu(this);
}

JobsMenu::~JobsMenu() = default;

void JobsMenu::buildOrderMenu()
{
    auto* group = new QActionGroup(this);
    for (const OrderEntry& entry : orderEntries) {
        // Without data: an entry with a number would be taken for a job.
        QAction* action = m_orderMenu->addAction(tr(entry.text));
        action->setCheckable(true);
        action->setChecked(entry.order == m_order);
        group->addAction(action);
        action->setShortcut(Qt::ALT | Qt::SHIFT | entry.key);
        Keys::listEverywhere(action);
        connect(action, &QAction::triggered, this,
                [this, order = entry.order] { setOrder(order); });
    }
}

void JobsMenu::setOrder(JobOrder order)
{
    m_order = order;
    Settings::setJobOrder(static_cast<int>(order));
    UpdateMenu(this);
}

QString JobsMenu::textOf(const Job& job) const
{
    quint64 time = job.timeUs;
    const QString when = GuiBase::Instance().TimeString(time, QStringLiteral("hh:mm:ss"));
    switch (job.state) {
    case JobState::Waiting:
        return tr("%1 – waiting since %2").arg(job.name, when);
    case JobState::Failed:
        return tr("%1 – failed at %2").arg(job.name, when);
    case JobState::Done:
        return tr("%1 – done at %2").arg(job.name, when);
    case JobState::Ready:
        break;
    }
    return job.name;
}

void JobsMenu::UpdateMenu(ResortPopupMenu* menu)
{
    menu->removeAllSeparators();
    std::vector<int> positions;
    for (const int id : m_jobs->list().ids(m_order)) {
        menu->changeItem(id, textOf(*m_jobs->list().find(id)));
        positions.push_back(menu->indexOf(id));
    }
    positions.push_back(separatorId);
    positions.push_back(menu->indexOf(m_orderMenuId));
    menu->resort(positions);
}

} // namespace bandmonitor
