// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sessionvalues.h"

#include <QObject>

namespace bandmonitor {

/// Makes undo steps of changes of the colour set and of the user colours. Changes that no
/// colour-set file holds come back at the next start.
class ColorsKeeper : public QObject
{
    Q_OBJECT
public:
    ColorsKeeper(std::shared_ptr<SessionValues> values, QObject* parent);
    ~ColorsKeeper() override;

private:
    void take();
    void show();

    std::shared_ptr<SessionValues> m_values;
    bool m_isShowing = false;
    SessionValues::Followers m_followers;
};

} // namespace bandmonitor
