// SPDX-License-Identifier: MIT
#pragma once

#include "panels/icons.h"
#include "settings/sessionvalues.h"

#include <QWidget>

class QAction;
class QDoubleSpinBox;
class QSlider;
class QToolButton;

namespace bandmonitor {

class Replay;
class TimeLabel;

/// The controls of a replay in one line: play and pause, steps, speed, position and time. It
/// follows the replay whoever changes it.
class ReplayBar : public QWidget
{
    Q_OBJECT
public:
    /// The replay must outlive the bar.
    ReplayBar(Replay* replay, std::shared_ptr<SessionValues> values, QWidget* parent);
    ~ReplayBar() override;

    /// For menus and shortcuts; owned by the bar.
    QAction* playAction() const { return m_play; }
    QAction* backAction() const { return m_back; }
    QAction* forwardAction() const { return m_forward; }
    QAction* firstAction() const { return m_first; }
    QAction* lastAction() const { return m_last; }

public Q_SLOTS:
    /// The recording has changed, or the way in which times are written.
    void refresh();
    /// The recording has more sweeps, or fewer.
    void refreshRange();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QAction* makeAction(const QString& text, Icon picture, const QKeySequence& key);
    void buildLayout();
    void showPlaying(bool playing);
    void showPosition();
    void fitTime();
    void jumpTo(int index);

    Replay* m_replay;
    std::shared_ptr<SessionValues> m_values;
    SessionValues::Followers m_followers;
    QAction* m_first;
    QAction* m_back;
    QAction* m_play;
    QAction* m_forward;
    QAction* m_last;
    QSlider* m_slider;
    QToolButton* m_toLive = nullptr; ///< For live recordings.
    QDoubleSpinBox* m_speed;
    TimeLabel* m_time;
};

} // namespace bandmonitor
