// SPDX-License-Identifier: MIT
#pragma once

#include "support/guardedtest.h"

#include <radiopanes/panes/levelpanes.h>
#include <radiopanes/panes/spectrumpane.h>

#include <guibase/services/guibase.h>

#include <memory>
#include <vector>

namespace LevelPanesTesting {

inline constexpr double startHz = -500e3; // baseband
inline constexpr double stepHz = 1e3;
inline constexpr int bins = 1000;
inline const std::vector<int> carriers{200, 300, 800};

/// Noise of -100 dB and carriers of -40 dB.
inline std::vector<float> levels(float noise = -100)
{
    std::vector<float> result(bins, noise);
    for (const int carrier : carriers)
        result[static_cast<size_t>(carrier)] = -40;
    return result;
}

inline double centreOf(int bin)
{
    return startHz + (bin + 0.5) * stepHz;
}

} // namespace LevelPanesTesting

/// Shows panes with one sweep.
class LevelPanesTest : public GuardedTest
{
protected:
    RadioPanes::VisibleBand& band() { return m_panes->visibleBand(); }
    RadioPanes::SpectrumPane& spectrum() { return m_panes->spectrum(); }
    bool add(const std::vector<float>& sweep)
    {
        return m_panes->addSweep(++m_timeUs, LevelPanesTesting::startHz, LevelPanesTesting::stepHz,
                                 sweep);
    }

    void prepare() override
    {
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Kilo);
        m_panes = std::make_unique<RadioPanes::LevelPanes>();
        m_panes->resize(1000, 600);
        m_panes->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_panes.get()));
        QVERIFY(add(LevelPanesTesting::levels()));
    }
    void tidy() override { m_panes.reset(); }

    std::unique_ptr<RadioPanes::LevelPanes> m_panes;
    quint64 m_timeUs = 0; ///< Of the newest sweep.
};
