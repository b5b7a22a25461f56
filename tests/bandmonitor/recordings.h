// SPDX-License-Identifier: MIT
#pragma once

#include <model/recording.h>
#include <model/recordingparser.h>
#include <model/recordingwriter.h>

#include <memory>

/// A recording and the parser that read it.
struct ReadRecording
{
    std::shared_ptr<bandmonitor::Recording> recording = std::make_shared<bandmonitor::Recording>();
    bandmonitor::RecordingParser parser{recording};

    void read(std::string_view text)
    {
        parser.feed(text);
        parser.finish();
    }
    /// All sweeps as text; an empty line behind each.
    QByteArray text() const
    {
        QByteArray result;
        for (qsizetype i = 0; i < recording->count(); ++i) {
            bandmonitor::appendSweepText(result, recording->sweep(i));
            result += '\n';
        }
        return result;
    }
};

/// Segments with levels of their own, to make sweeps of.
class OwnedSegments
{
public:
    void add(double startHz, double stepHz, std::vector<float> levels)
    {
        m_levels.push_back(std::move(levels));
        m_segments.push_back({startHz, stepHz, 1, m_levels.back()});
    }
    bandmonitor::Sweep sweep(quint64 timeUs = 0) const
    {
        return bandmonitor::makeSweep(timeUs, m_segments);
    }

private:
    std::vector<std::vector<float>> m_levels; // moving a vector keeps its elements in place
    std::vector<bandmonitor::Segment> m_segments;
};
