// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>

#include <memory>
#include <utility>
#include <vector>

namespace bandmonitor {

/// A row of widgets that goes on in the next line where there is no room for all of them, so that a
/// panel need not be wider than its widest one. If the last widget expands, it has the rest of its
/// line.
class WrappingRow : public QLayout
{
    Q_OBJECT
public:
    WrappingRow();
    ~WrappingRow() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    /// The places of the items that are not hidden, in a row as wide as this.
    std::vector<std::pair<QLayoutItem*, QRect>> places(int width) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace bandmonitor
