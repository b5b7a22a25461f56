// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class QAbstractItemView;

namespace bandmonitor {

/// A text in the middle of a list that has no rows: it says what will appear there. Belongs to the
/// list; lets the mouse through.
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
