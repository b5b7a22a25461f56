// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

class SortListView;

/// The header of a SortListView.
///
/// Where QTreeView::setSortingEnabled() is on, the toolkit sorts at a click, before the view hears
/// of it. The header has it sort in the order that the view would choose.
class ListHeader : public QHeaderView
{
public:
    explicit ListHeader(SortListView& view);

    bool isInClick() const { return m_isInClick; }
    QSize sizeHint() const override;

protected:
    QSize sectionSizeFromContents(int logicalIndex) const override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    SortListView& m_view;
    bool m_isInClick = false;
    mutable bool m_isMeasuringHeight = false;
};
