// SPDX-License-Identifier: MIT
#pragma once

#include "bandpanes.h"

#include <radiopanes/core/levelhistory.h>

namespace RadioPanes {

class LevelPanesPrivate;

/// Spectrum and waterfall of a live source. It keeps the last sweeps, holds what the visible traces
/// show, and fits the range of levels to the first sweeps, unless somebody has set another one. A
/// jump that the user wants scrolls the waterfall back to that sweep.
class RADIOPANES_EXPORT LevelPanes : public BandPanes
{
    Q_OBJECT
public:
    explicit LevelPanes(QWidget* parent = nullptr);
    /// The splitter's position is kept under `name` in the configuration; "LevelPanes" without.
    LevelPanes(const QString& name, QWidget* parent);
    ~LevelPanes() override;

    /// Shows one sweep of adjoining bins of `stepHz` from `startHz` on, newest on top: levels in
    /// dB, noLevel where there is none; time in microseconds since 1970-01-01T00:00 UTC. Copies the
    /// levels. A sweep with other ends than the one before makes them the band; pins beyond it come
    /// back with a band that has room for them. False, and nothing happens, for what
    /// LevelHistory::append() refuses.
    bool addSweep(quint64 timeUs, double startHz, double stepHz, std::span<const float> levels);
    /// The same for a sweep of several hops.
    bool addSweep(quint64 timeUs, std::span<const Segment> segments);

    /// Average, maximum and minimum start anew with the next sweep.
    void resetHold();
    /// Forgets all sweeps. `historyBytes` bounds the memory of those that come.
    void clear(std::size_t historyBytes = LevelHistory::defaultLimit);
    const LevelHistory& history() const;

private:
    void setBand(const Sweep& sweep);
    void fitLevels();

    std::unique_ptr<LevelPanesPrivate> d;
};

} // namespace RadioPanes
