// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace bandmonitor {

/// What a SampleGenerator makes. The defaults give the sample that the application brings along.
struct SampleSettings
{
    quint64 seed = 1;
    int sweeps = 120;
    int hops = 3;
    int binsPerHop = 400;
    double lowHz = 80e6;
    double stepHz = 25e3;
    quint64 startTimeUs = 1'767'225'600'000'000; ///< 2026-01-01T00:00 UTC
    quint64 sweepIntervalUs = 1'000'000;
};

/// Makes a band-scan recording of a band that does not exist: stations with a carrier and
/// sidebands that follow their programme, a transmitter that hops, one that drifts slowly, and
/// noise. The same settings give the same text on every machine with the usual floating point.
class SampleGenerator
{
public:
    explicit SampleGenerator(const SampleSettings& settings = {});

    /// True after the last sweep.
    bool atEnd() const { return m_sweep >= m_settings.sweeps; }
    /// The lines of the next sweep; empty at the end.
    QByteArray nextSweep();
    /// The same with this time stamp, in microseconds since 1970-01-01T00:00 UTC.
    QByteArray nextSweep(quint64 timeUs);
    /// Moves the band, with the stations in it.
    void setLowHz(double lowHz) { m_settings.lowHz = lowHz; }
    /// All remaining sweeps.
    QByteArray remaining();

private:
    struct Station
    {
        double centre = 0; ///< of the band, from 0 to 1
        double width = 0;  ///< of the band
        double power = 0;
        double modulation = 0.5; ///< in the current sweep, 0 to 1
    };

    double uniform();
    double noiseDb();
    double stationPower(const Station& station, double place) const;
    double level(double place, double hopper, double drifter);

    SampleSettings m_settings;
    int m_sweep = 0;
    quint64 m_random = 0;
    std::vector<Station> m_stations;
};

/// Path of the sample recording that is built into the application; RecordingLoader reads it.
QString samplePath();

} // namespace bandmonitor
