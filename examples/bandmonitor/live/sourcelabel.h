// SPDX-License-Identifier: MIT
#pragma once

#include "model/livewatch.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

namespace bandmonitor {

class Session;

/// Tells at any time whether the window shows live input or a recording, how many sweeps come in a
/// second, and how far the shown one is behind.
class SourceLabel : public QLabel
{
    Q_OBJECT
public:
    /// The session must outlive the label.
    SourceLabel(Session* session, QWidget* parent);
    ~SourceLabel() override;

private:
    void sweepShown(qsizetype position, qsizetype previous);
    void refresh();
    QString liveText() const;
    QString replayText() const;
    /// Between the time that is shown and the present of the source.
    qint64 behindUs() const;

    Session* m_session;
    QElapsedTimer m_clock;
    QTimer m_refresh;
    SweepRate m_replayed;
};

} // namespace bandmonitor
