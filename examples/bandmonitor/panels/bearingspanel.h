// SPDX-License-Identifier: MIT
#pragma once

#include "model/panenames.h"
#include "panels/panel.h"

class QLabel;

namespace RadioPanes {
class BearingRose;
}

namespace bandmonitor {

class Bearings;
class HeadingSpinBox;
class SessionValues;

/// The compass rose of the bearings with the heading and what is known of the selected signal. It
/// says that the bearings are simulated.
class BearingsPanel : public Panel
{
    Q_OBJECT
public:
    /// The bearings may go before the panel, which is empty then.
    BearingsPanel(const Bearings* bearings, const SessionValues& values, QWidget* parent = nullptr);
    ~BearingsPanel() override;

    BearingRose& rose() { return *m_rose; }
    HeadingSpinBox& heading() { return *m_heading; }
    /// Heading up, else north up.
    QList<QAction*> keyActions() const override { return {m_headingUp}; }

public Q_SLOTS:
    void refreshTexts() override;

private:
    BearingRose* m_rose;
    HeadingSpinBox* m_heading;
    QAction* m_headingUp;
    QLabel* m_readOut;
};

} // namespace bandmonitor
