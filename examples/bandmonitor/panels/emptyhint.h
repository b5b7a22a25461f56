// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class QAbstractItemView;

namespace bandmonitor {

/// Tells in the middle of a list without rows what would appear there. Belongs to the list; does
/// not take the mouse.
class EmptyHint : public QLabel
{
    Q_OBJECT
public:
    /// The list must have its model.
    EmptyHint(const QString& text, QAbstractItemView* view);
    ~EmptyHint() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();

    QAbstractItemView* m_visibleBand;
};

} // namespace bandmonitor
