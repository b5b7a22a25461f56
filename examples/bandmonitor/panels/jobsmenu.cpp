// SPDX-License-Identifier: MIT
#include "panels/jobsmenu.h"

#include "model/jobs.h"
#include "settings/keys.h"

#include <guibase/services/guibase.h>
#include <valueframework/undorecording.h>

#include <QActionGroup>

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

} // namespace

JobsMenu::JobsMenu(Jobs* jobs, std::shared_ptr<SessionValues> values, QWidget* parent)
    : ResortPopupMenu(parent, "jobs")
    , m_jobs(jobs)
    , m_orderMenu(new QMenu(tr("S&ort"), this))
    , m_values(std::move(values))
{
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
    showOrder();
    m_followers = SessionValues::follow({&m_values->jobOrder}, [this] { showOrder(); });
}

JobsMenu::~JobsMenu() = default;

void JobsMenu::buildOrderMenu()
{
    auto* group = new QActionGroup(this);
    for (const OrderEntry& entry : orderEntries) {
        // Without data: an entry with a number would be taken for a job.
        QAction* action =
            Keys::addEntry(*m_orderMenu, tr(entry.text), Qt::ALT | Qt::SHIFT | entry.key,
                           [this, order = entry.order] { setOrder(order); });
        action->setCheckable(true);
        group->addAction(action);
        m_orderActions << action;
    }
}

JobOrder JobsMenu::order() const
{
    return static_cast<JobOrder>(m_values->jobOrder.GetValue());
}

void JobsMenu::setOrder(JobOrder order)
{
    const SessionValues::Step step = m_values->step(tr("Sort the jobs"));
    m_values->jobOrder.SetValue(static_cast<int>(order));
}

void JobsMenu::showOrder()
{
    m_orderActions.at(m_values->jobOrder.GetValue())->setChecked(true);
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
    for (const int id : m_jobs->list().ids(order())) {
        menu->changeItem(id, textOf(*m_jobs->list().find(id)));
        positions.push_back(menu->indexOf(id));
    }
    positions.push_back(separatorId);
    positions.push_back(menu->indexOf(m_orderMenuId));
    menu->resort(positions);
}

} // namespace bandmonitor
