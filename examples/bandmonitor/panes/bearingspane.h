// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAction;
class QLabel;

namespace bandmonitor {

class BearingRose;
class Bearings;
class HeadingSpinBox;

/// The compass rose of the bearings with the heading and what is known of the selected signal. It
/// says that the bearings are simulated.
class BearingsPane : public QWidget
{
    Q_OBJECT
public:
    /// The bearings may go before the pane, which is empty then.
    explicit BearingsPane(const Bearings* bearings, QWidget* parent = nullptr);
    ~BearingsPane() override;

    BearingRose& rose() { return *m_rose; }
    HeadingSpinBox& heading() { return *m_heading; }
    /// Heading up, else north up; for the overview of keys.
    QAction* headingUpAction() const { return m_headingUp; }

public Q_SLOTS:
    /// Unit or resolution have changed.
    void refreshTexts();

Q_SIGNALS:
    /// The user has chosen the signal at this frequency, in hertz.
    void signalChosen(double hertz);

private:
    BearingRose* m_rose;
    HeadingSpinBox* m_heading;
    QAction* m_headingUp;
    QLabel* m_readOut;
};

} // namespace bandmonitor
