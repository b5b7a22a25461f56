// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStyledItemDelegate>

#include <optional>

namespace bandmonitor {

/// The time that the bars stand for, from the left to the right edge of their column, and the
/// present in it. Microseconds since 1970-01-01 00:00 UTC.
struct JobTimes
{
    quint64 firstUs = 0;
    quint64 lastUs = 0; ///< Not before the first.
    std::optional<quint64> nowUs = std::nullopt;

    bool operator==(const JobTimes&) const = default;
    /// The share of the width left of this time, 0 to 1; 0 when all times are one.
    double placeOf(quint64 timeUs) const;
};

/// The time of a job; the end may lie before the start when the replay was put back.
struct JobBar
{
    quint64 fromUs = 0;
    quint64 toUs = 0;
    QColor color;

    bool operator==(const JobBar&) const = default;
};

/// Paints the bars of jobs into a column, and the present as a line through all rows.
class JobBarDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    /// Holds the JobBar of a cell; a cell without one has no bar.
    static constexpr int barRole = Qt::UserRole + 1;

    explicit JobBarDelegate(QObject* parent);
    ~JobBarDelegate() override;

    const JobTimes& times() const { return m_times; }
    /// The caller has the view repainted.
    void setTimes(const JobTimes& times) { m_times = times; }
    /// Where the bar is painted in a cell; at least two pixels wide, and inside the cell.
    QRectF barRect(const QRectF& cell, const JobBar& bar) const;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    JobTimes m_times;
};

} // namespace bandmonitor

Q_DECLARE_METATYPE(bandmonitor::JobBar)
