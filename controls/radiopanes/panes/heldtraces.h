// SPDX-License-Identifier: MIT
#pragma once

#include "spectrumpane.h"

#include <radiopanes/core/heldlevels.h>
#include <radiopanes/radiopanes_export.h>

#include <array>

namespace RadioPanes {

/// Holds average, maximum and minimum of the sweeps that it is told, and shows them in a spectrum.
/// The maximum is held always. The other two cost more: they are held only while they are visible,
/// and begin anew when they become so.
class RADIOPANES_EXPORT HeldTraces
{
public:
    /// The pane is not owned, and is cleared when this object goes: it must live longer.
    explicit HeldTraces(SpectrumPane* pane);
    ~HeldTraces();
    Q_DISABLE_COPY_MOVE(HeldTraces)

    /// Takes the sweep into account; shows nothing yet.
    void add(const Sweep& sweep);
    /// Shows what is held, to be called after the last add() before a painting.
    void show();
    /// Forgets all levels.
    void clear();

private:
    struct Held
    {
        Trace trace;
        HeldLevels levels;
    };

    void showChange(Trace trace);

    SpectrumPane* m_pane;
    QMetaObject::Connection m_visibleChanged;
    std::array<Held, 3> m_held{{{Trace::Average, HeldLevels(HeldLevels::Kind::Average)},
                                {Trace::Maximum, HeldLevels(HeldLevels::Kind::Maximum)},
                                {Trace::Minimum, HeldLevels(HeldLevels::Kind::Minimum)}}};
};

} // namespace RadioPanes
