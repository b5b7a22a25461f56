// SPDX-License-Identifier: MIT
#pragma once

#include "model/samplegenerator.h"

#include <QByteArray>

#include <chrono>

namespace bandmonitor {

/// What goes wrong now and then in the stream of a receiver.
enum class StreamFault {
    Garbage = 1, ///< A line of random bytes.
    Cut = 2,     ///< A line that ends in the middle.
    Stall = 4,   ///< Nothing for a few seconds.
    Jump = 8,    ///< The time stamps jump by an hour, and back the next time.
    Span = 16,   ///< The receiver moves by half its span, and back the next time.
};
Q_DECLARE_FLAGS(StreamFaults, StreamFault)
Q_DECLARE_OPERATORS_FOR_FLAGS(StreamFaults)

/// The output of a receiver that does not exist, sweep by sweep, with the faults that it is to
/// have. The same settings and times give the same stream.
class ReceiverStream
{
public:
    static constexpr int sweepsPerFault = 20; ///< About.
    static constexpr std::chrono::seconds stallTime{5};

    ReceiverStream(const SampleSettings& settings, StreamFaults faults);

    struct Piece
    {
        QByteArray text;
        std::chrono::seconds pause{0}; ///< Before it is sent.
    };
    /// What comes next. `timeUs` is the present in microseconds since 1970-01-01T00:00 UTC.
    Piece next(quint64 timeUs);
    /// Every sweep was made.
    bool atEnd() const { return m_generator.atEnd(); }

private:
    quint64 random(quint64 below);
    QByteArray garbage();

    SampleGenerator m_generator;
    std::vector<StreamFault> m_faults;
    double m_lowHz;
    double m_spanHz;
    quint64 m_random;
    bool m_isAhead = false; ///< After a jump of the time.
    bool m_isMoved = false; ///< After a change of the span.
};

} // namespace bandmonitor
