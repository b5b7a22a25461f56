// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace bandmonitor {

/// Lets lines through to a person: of many in a short time only the first ones, and then how many
/// more there were.
class FloodGate : public QObject
{
    Q_OBJECT
public:
    static constexpr int linesAtOnce = 10;
    static constexpr std::chrono::seconds defaultWindow{10};

    explicit FloodGate(QObject* parent = nullptr);
    ~FloodGate() override;

    /// Of the lines in such a time linesAtOnce pass.
    void setWindow(std::chrono::milliseconds window) { m_timer.setInterval(window); }
    void add(const QString& line);
    /// Sums up now what is held back.
    void flush();

Q_SIGNALS:
    /// A line to be shown.
    void passed(const QString& line);

private:
    QTimer m_timer;
    int m_passed = 0;
    qint64 m_heldBack = 0;
    QString m_last;
};

} // namespace bandmonitor
