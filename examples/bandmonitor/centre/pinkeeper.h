// SPDX-License-Identifier: MIT
#pragma once

#include "model/panenames.h"
#include "settings/sessionvalues.h"

#include <QObject>

#include <functional>

namespace RadioPanes {
class VisibleBand;
}

namespace bandmonitor {

/// Keeps the pins of a band in the session's value, where each change by the user is an undo step.
/// Another recording gets the pins that lie in its band; the others wait for one that has them.
class PinKeeper : public QObject
{
    Q_OBJECT
public:
    /// The band must outlive the keeper.
    PinKeeper(std::shared_ptr<SessionValues> values, VisibleBand* band, QObject* parent);
    ~PinKeeper() override;

    /// Calls an operation that makes the band that of another recording, and gives it its pins.
    void changeBand(const std::function<void()>& change);

private:
    void showPins();
    void takePins();
    bool isInBand(double hertz) const;

    std::shared_ptr<SessionValues> m_values;
    VisibleBand* m_band;
    bool m_isShowing = false;
    SessionValues::Followers m_followers;
};

} // namespace bandmonitor
