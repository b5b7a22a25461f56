// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace bandmonitor {

/// A line of plain text that may be narrower than its text: it ends in dots then, and the tool tip
/// tells all.
class ElidedLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;
    ~ElidedLabel() override;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isCut() const;
};

} // namespace bandmonitor
