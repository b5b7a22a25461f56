// SPDX-License-Identifier: MIT
#include "generator/receiverstream.h"

#include <algorithm>

namespace bandmonitor {

namespace {

constexpr quint64 jumpUs = 3'600'000'000;
constexpr quint64 longestGarbage = 200;
constexpr StreamFault allFaults[] = {StreamFault::Garbage, StreamFault::Cut, StreamFault::Stall,
                                     StreamFault::Jump, StreamFault::Span};

} // namespace

ReceiverStream::ReceiverStream(const SampleSettings& settings, StreamFaults faults)
    : m_generator(settings)
    , m_lowHz(settings.lowHz)
    , m_spanHz(settings.stepHz * settings.binsPerHop * settings.hops)
    , m_random(settings.seed * 2 + 1)
{
    std::ranges::copy_if(allFaults, std::back_inserter(m_faults),
                         [faults](StreamFault fault) { return faults.testFlag(fault); });
}

/// Knuth, "The Art of Computer Programming", volume 2, 3.3.4: a linear congruential generator.
quint64 ReceiverStream::random(quint64 below)
{
    m_random = m_random * 6364136223846793005U + 1442695040888963407U;
    return (m_random >> 33) % below;
}

QByteArray ReceiverStream::garbage()
{
    QByteArray line(static_cast<qsizetype>(random(longestGarbage)), '\0');
    for (char& byte : line)
        byte = static_cast<char>(random(256));
    return line + '\n';
}

ReceiverStream::Piece ReceiverStream::next(quint64 timeUs)
{
    Piece piece;
    bool isCut = false;
    if (!m_faults.empty() && random(sweepsPerFault) == 0) {
        switch (m_faults[random(m_faults.size())]) {
        case StreamFault::Garbage:
            piece.text = garbage();
            break;
        case StreamFault::Cut:
            isCut = true;
            break;
        case StreamFault::Stall:
            piece.pause = stallTime;
            break;
        case StreamFault::Jump:
            m_isAhead = !m_isAhead;
            break;
        case StreamFault::Span:
            m_isMoved = !m_isMoved;
            m_generator.setLowHz(m_lowHz + (m_isMoved ? m_spanHz / 2 : 0));
            break;
        }
    }
    QByteArray sweep = m_generator.nextSweep(timeUs + (m_isAhead ? jumpUs : 0));
    if (isCut)
        sweep = sweep.first(sweep.size() / 2) + '\n';
    piece.text += sweep;
    return piece;
}

} // namespace bandmonitor
