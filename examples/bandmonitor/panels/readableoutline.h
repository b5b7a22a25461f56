// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPalette>

class QWidget;

namespace bandmonitor {

/// Keeps the outline of a check box or a slider visible in any palette. Styles draw it somewhat
/// darker than the window, which cannot be seen in a dark palette. Belongs to the control.
class ReadableOutline : public QObject
{
    Q_OBJECT
public:
    /// `ground` is what the control lies on: QPalette::Window, or QPalette::Base in a list.
    ReadableOutline(QWidget* control, QPalette::ColorRole ground);
    ~ReadableOutline() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void adapt();

    QWidget* m_control;
    QPalette::ColorRole m_ground;
};

} // namespace bandmonitor
