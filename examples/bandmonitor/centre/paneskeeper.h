// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sessionvalues.h"

#include <valueframework/undoburst.h>

#include <QObject>
#include <QVariant>

#include <functional>
#include <vector>

namespace RadioPanes {
class BandPanes;
}

namespace bandmonitor {

/// Keeps what the user has chosen to see in the panes (traces, legends, colours, the zoom in time)
/// in the session's values, where each change is an undo step, and has the panes follow them.
class PanesKeeper : public QObject
{
    Q_OBJECT
public:
    /// The panes must outlive the keeper.
    PanesKeeper(std::shared_ptr<SessionValues> values, RadioPanes::BandPanes* panes,
                QObject* parent);
    ~PanesKeeper() override;

private:
    /// A value, and what it stands for in the panes.
    struct Choice
    {
        ValueBase& value;
        QString undoText;
        std::function<QVariant()> shown;
        std::function<void(const QVariant&)> show;
    };

    void addTraces();
    void addPictures();
    void addZoom();
    void take();

    std::shared_ptr<SessionValues> m_values;
    RadioPanes::BandPanes* m_panes;
    std::vector<Choice> m_choices;
    bool m_isShowing = false; ///< The panes follow the values.
    UndoBurst m_zooms;
    std::vector<SessionValues::Followers> m_followers;
};

} // namespace bandmonitor
