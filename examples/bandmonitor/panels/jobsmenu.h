// SPDX-License-Identifier: MIT
#pragma once

#include "model/joblist.h"
#include "settings/sessionvalues.h"

#include <guibase/lists/iupdatemenu.h>
#include <guibase/lists/resortpopupmenu.h>

namespace bandmonitor {

class Jobs;

/// One entry per job, with its state. Whenever the menu opens, the entries stand in the order that
/// the user has chosen in its sub-menu.
class JobsMenu final : public ResortPopupMenu, private IUpdateMenu
{
    Q_OBJECT
public:
    /// The jobs must be complete, and outlive the menu.
    JobsMenu(Jobs* jobs, std::shared_ptr<SessionValues> values, QWidget* parent);
    ~JobsMenu() override;

    JobOrder order() const;
    /// As an undo step.
    void setOrder(JobOrder order);

private:
    void UpdateMenu(ResortPopupMenu* menu) override;
    void buildOrderMenu();
    void showOrder();
    QString textOf(const Job& job) const;

    Jobs* m_jobs;
    QMenu* m_orderMenu;
    int m_orderMenuId = 0;
    std::shared_ptr<SessionValues> m_values;
    QList<QAction*> m_orderActions; ///< By order.
    SessionValues::Followers m_followers;
};

} // namespace bandmonitor
