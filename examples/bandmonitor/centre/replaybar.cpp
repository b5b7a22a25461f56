// SPDX-License-Identifier: MIT
#include "centre/replaybar.h"

#include "model/replay.h"
#include "panels/readableoutline.h"
#include "settings/boundform.h"
#include "settings/keys.h"

#include <guibase/services/guibase.h>

#include <QAction>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <limits>

namespace bandmonitor {

namespace {
constexpr int smallestSlider = 40; // in pixels
}

/// Shows the time alone where there is no room for the date, too.
class TimeLabel : public QLabel
{
public:
    using QLabel::QLabel;

    void setTexts(const QString& full, const QString& brief)
    {
        m_full = full;
        m_brief = brief;
    }
    /// Shows the whole text if that makes the label no wider than this, in pixels.
    void fit(int room) { setText(sizeOf(m_full).width() <= room ? m_full : m_brief); }
    QSize minimumSizeHint() const override { return sizeOf(m_brief); }

private:
    QSize sizeOf(const QString& text) const { return fontMetrics().size(0, text); }

    QString m_full;
    QString m_brief;
};

ReplayBar::ReplayBar(Replay* replay, std::shared_ptr<SessionValues> values, QWidget* parent)
    : QWidget(parent)
    , m_replay(replay)
    , m_values(std::move(values))
    , m_first(makeAction(tr("&First sweep"), Icon::ToStart, QKeySequence(Qt::CTRL | Qt::Key_Home)))
    , m_back(makeAction(tr("Step &back"), Icon::Backward, QKeySequence(Qt::Key_Comma)))
    , m_play(makeAction(tr("&Play"), Icon::Play, QKeySequence(Qt::Key_Space)))
    , m_forward(makeAction(tr("Step f&orward"), Icon::Forward, QKeySequence(Qt::Key_Period)))
    , m_last(makeAction(tr("&Last sweep"), Icon::ToEnd, QKeySequence(Qt::CTRL | Qt::Key_End)))
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_speed(new QDoubleSpinBox(this))
    , m_time(new TimeLabel(this))
{
    buildLayout();
    connect(m_first, &QAction::triggered, m_replay, [this] { m_replay->jump(0); });
    connect(m_last, &QAction::triggered, m_replay, &Replay::toLast);
    connect(m_back, &QAction::triggered, m_replay, &Replay::stepBackward);
    connect(m_play, &QAction::triggered, m_replay, &Replay::toggle);
    connect(m_forward, &QAction::triggered, m_replay, &Replay::stepForward);
    connect(m_slider, &QSlider::valueChanged, this, &ReplayBar::jumpTo);
    connect(m_replay, &Replay::recordingChanged, this, &ReplayBar::refresh);
    connect(m_replay, &Replay::growthChanged, this,
            [this] { m_toLive->setVisible(m_replay->growth() == Replay::Growth::Live); });
    connect(m_replay, &Replay::playingChanged, this, &ReplayBar::showPlaying);
    connect(m_replay, &Replay::positionChanged, this, &ReplayBar::showPosition);
    connect(m_replay, &Replay::speedChanged, this,
            [this](double factor) { m_values->speed.SetValue(factor); });
    m_followers = SessionValues::follow({&m_values->speed},
                                        [this] { m_replay->setSpeed(m_values->speed.GetValue()); });
    bindForm(*this, m_values->path());
    refresh();
}

ReplayBar::~ReplayBar() = default;

QAction* ReplayBar::makeAction(const QString& text, Icon picture, const QKeySequence& key)
{
    auto* action = new QAction(makeIcon(picture), text, this);
    action->setShortcut(key);
    Keys::nameInToolTip(action, QString());
    return action;
}

void ReplayBar::buildLayout()
{
    setLayoutDirection(Qt::LeftToRight); // as tape decks are everywhere, and the time axis
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 3, 6, 3);
    for (QAction* action : {m_first, m_back, m_play, m_forward, m_last}) {
        auto* button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        row->addWidget(button);
        m_toLive = button;
    }
    m_toLive->hide();
    new ReadableOutline(m_slider, QPalette::Window);
    m_slider->setAccessibleName(tr("Sweep"));
    m_slider->setToolTip(tr("Current sweep"));
    m_slider->setMinimumWidth(smallestSlider);
    row->addWidget(m_slider, 1);
    row->addWidget(m_time);
    auto* speedLabel = new QLabel(tr("&Speed"), this);
    speedLabel->setBuddy(m_speed);
    row->addSpacing(8);
    row->addWidget(speedLabel);
    m_speed->setRange(Replay::minimumSpeed, Replay::maximumSpeed);
    m_speed->setDecimals(1);
    m_speed->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    m_speed->setSuffix(QStringLiteral(" ×"));
    m_speed->setKeyboardTracking(false);
    m_speed->setObjectName(QStringLiteral("speed"));
    m_speed->setAccessibleName(tr("Replay speed"));
    m_speed->setToolTip(tr("Replay speed, 0.1 to 10,000 times as fast as recorded"));
    row->addWidget(m_speed);
}

void ReplayBar::refresh()
{
    const bool any = m_replay->count() > 0;
    refreshRange();
    m_slider->setEnabled(any);
    for (QAction* action : {m_first, m_back, m_play, m_forward, m_last})
        action->setEnabled(any);
    showPlaying(m_replay->isPlaying());
    showPosition();
}

void ReplayBar::refreshRange()
{
    constexpr qsizetype limit = std::numeric_limits<int>::max();
    const auto recording = m_replay->recording();
    const qsizetype first = recording ? recording->first() : 0;
    const QSignalBlocker blocker(m_slider);
    m_slider->setRange(static_cast<int>(std::min(first, limit)),
                       static_cast<int>(std::clamp(m_replay->count() - 1, first, limit)));
    m_slider->setPageStep(std::max((m_slider->maximum() - m_slider->minimum()) / 10, 1));
    m_slider->setValue(static_cast<int>(std::max<qsizetype>(m_replay->position(), 0)));
}

void ReplayBar::showPlaying(bool playing)
{
    m_play->setText(playing ? tr("&Pause") : tr("&Play"));
    m_play->setIcon(makeIcon(playing ? Icon::Pause : Icon::Play));
}

void ReplayBar::showPosition()
{
    const qsizetype position = m_replay->position();
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(static_cast<int>(std::max<qsizetype>(position, 0)));
    if (position < 0) {
        m_time->setTexts(QStringLiteral("–"), QStringLiteral("–"));
        fitTime();
        return;
    }
    quint64 timeUs = m_replay->sweep().timeUs;
    GuiBase& services = GuiBase::Instance();
    const QString zone = services.GetTimeZoneValue() == 0 ? tr("UTC") : tr("local");
    const QString date = services.TimeString(timeUs, QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    m_time->setTexts(QStringLiteral("%1 %2").arg(date, zone),
                     services.TimeString(timeUs, QStringLiteral("hh:mm:ss")));
    fitTime();
}

void ReplayBar::fitTime()
{
    m_time->fit(m_time->sizeHint().width() + width() - layout()->sizeHint().width());
}

void ReplayBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitTime();
}

void ReplayBar::jumpTo(int index)
{
    if (index != m_replay->position())
        m_replay->jump(index);
}

} // namespace bandmonitor
