// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sessionvalues.h"

#include <QObject>

namespace RadioPanes {
class BandPanes;
}

namespace bandmonitor {

/// Keeps the bookmarks, and the file of the band plan, in the session's values, where each change
/// by the user is an undo step.
class BandPlanKeeper : public QObject
{
    Q_OBJECT
public:
    /// The panes must outlive the keeper.
    BandPlanKeeper(std::shared_ptr<SessionValues> values, RadioPanes::BandPanes* panes,
                   QObject* parent);
    ~BandPlanKeeper() override;

public Q_SLOTS:
    /// Asks for a file, and shows what is wrong in it.
    void choosePlan();
    /// Shows no band plan any more.
    void removePlan();

private:
    /// Returns what is wrong in its file.
    QStringList showPlan();
    void takeBookmarks();

    std::shared_ptr<SessionValues> m_values;
    RadioPanes::BandPanes* m_panes;
    SessionValues::Followers m_followers;
};

} // namespace bandmonitor
