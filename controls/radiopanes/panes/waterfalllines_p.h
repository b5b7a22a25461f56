// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/colors/levelcolors.h>
#include <radiopanes/core/columnreducer.h>

#include <QImage>

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace RadioPanes {

/// The lines of a waterfall, in the rows of an image that is used as a ring: what moves to another
/// place on the screen is not drawn again. A line shows the highest levels of one sweep or of
/// several. Those that must be drawn are, from the top on, as far as a budget of work allows.
class WaterfallLines
{
public:
    WaterfallLines();
    ~WaterfallLines();

    void setHistory(std::shared_ptr<const SweepHistory> history);
    const SweepHistory* history() const { return m_history.get(); }
    /// The lines of the sweeps that are shown in both sizes keep their pyramids.
    void resize(int width, int rows);
    void setBand(const ColumnView& band);
    void setColors(const LevelColors& colors);
    const LevelColors& colors() const { return m_colors; }
    void setSweepsPerLine(qsizetype sweeps);
    qsizetype sweepsPerLine() const { return m_sweepsPerLine; }
    /// No sweep after this one is shown; -1 for none. `pyramid` is that sweep's, or null.
    void setNewest(qsizetype sweep, std::shared_ptr<const LevelPyramid> pyramid);
    qsizetype newest() const { return m_newest; }
    /// The line at the top; below it follow those before.
    void setTop(qsizetype line);
    qsizetype top() const { return m_top; }
    /// The oldest line of which the history has sweeps. Those before are shown only as long as they
    /// are in the image.
    qsizetype oldest() const { return m_history ? m_history->first() / m_sweepsPerLine : 0; }

    /// Draws lines until `budget` levels have been looked at; true when none is missing.
    bool draw(qsizetype budget);

    int rowCount() const { return m_image.height(); }
    const QImage& image() const { return m_image; }
    int rowOf(qsizetype line) const;
    /// Whether the line is in the image, as it is to be.
    bool isDrawn(qsizetype line) const;
    /// The first line from `line` back to `lowest` that is not so; lower than `lowest` for none.
    qsizetype nextMissing(qsizetype line, qsizetype lowest) const;
    /// The first and the last sweep of the line that are to be shown.
    std::pair<qsizetype, qsizetype> sweepsOf(qsizetype line) const;
    /// The time of the last sweep of the line; nothing for a line that is not shown.
    std::optional<quint64> timeOf(qsizetype line) const;

private:
    struct Row
    {
        qsizetype line = -1;
        qsizetype last = -1; ///< The last sweep that is in the line.
        quint64 timeUs = 0;  ///< Of that sweep.
        qsizetype pyramidSweep = -1;
        std::shared_ptr<const LevelPyramid> pyramid;
    };

    bool holds(const Row& row, qsizetype line) const;
    void forgetLines();
    /// Both return how many levels they had to look at.
    qsizetype drawSweep(qsizetype sweep, Row& row);
    qsizetype drawRun(qsizetype line, Row& row, qsizetype budget);
    void showColumns(qsizetype line);

    std::shared_ptr<const SweepHistory> m_history;
    ColumnView m_band;
    LevelColors m_colors;
    qsizetype m_sweepsPerLine = 1;
    qsizetype m_newest = -1;
    qsizetype m_top = -1;
    QImage m_image; ///< Line i in row rowCount() - 1 - i % rowCount().
    std::vector<Row> m_rows;
    std::vector<float> m_columns; ///< The highest levels of the line drawn last.
    qsizetype m_columnsLine = -1; ///< It, if it is one of several sweeps.
};

} // namespace RadioPanes
