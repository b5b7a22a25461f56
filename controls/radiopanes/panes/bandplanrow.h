// SPDX-License-Identifier: MIT
#pragma once

#include <radiopanes/core/bandplan.h>
#include <radiopanes/radiopanes_export.h>

#include <QWidget>

#include <memory>
#include <optional>

namespace RadioPanes {

class BandPlanRowPrivate;
class FrequencyText;
class VisibleBand;

/// The named parts of the visible band, or bookmarks, above a frequency axis. Parts that overlap
/// lie in up to three lanes. It takes no room as long as its plan is empty.
///
/// A click moves the cursor into the part, a double click shows all of it. Where the user may edit,
/// a double click names the entry, and a menu names and removes it.
class RADIOPANES_EXPORT BandPlanRow : public QWidget
{
    Q_OBJECT
public:
    /// Beyond it parts cover each other.
    static constexpr int maximumLanes = 3;

    /// `view` and `text` must outlive the row. The scale begins `indent` pixels from the left,
    /// where `caption` stands.
    BandPlanRow(const QString& caption, VisibleBand* view, const FrequencyText* text, int indent,
                QWidget* parent);
    ~BandPlanRow() override;

    /// Shows this plan instead of the former one.
    void setPlan(const BandPlan& plan);
    /// As set or edited last.
    const BandPlan& plan() const;
    /// Not at first.
    void setEditable(bool editable);
    /// The number of the entry shown there; of several the shortest one.
    std::optional<std::size_t> entryAt(const QPoint& position) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user has named or removed an entry of plan().
    void edited();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void editName(std::size_t number);
    void replace(const BandPlan::Entry& entry, const BandPlan::Entry* by);

    std::unique_ptr<BandPlanRowPrivate> d;
};

} // namespace RadioPanes
