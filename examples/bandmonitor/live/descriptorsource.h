// SPDX-License-Identifier: MIT
#pragma once

#include "model/livesource.h"

#include <QSocketNotifier>

#include <memory>

namespace bandmonitor {

/// Live input from the standard input, or from a FIFO. A FIFO whose writer has gone waits for the
/// next one.
class DescriptorSource : public LiveSource
{
    Q_OBJECT
public:
    /// Reads from an open descriptor, which stays the caller's.
    DescriptorSource(int descriptor, const QString& name);
    /// Reads from the FIFO at the path.
    explicit DescriptorSource(const QString& path);
    ~DescriptorSource() override;

    static std::unique_ptr<LiveSource> standardInput();

    QString name() const override { return m_name; }
    void start() override;
    void stop() override;
    qint64 read(char* to, qint64 size) override;

private:
    bool isFifo() const { return !m_path.isEmpty(); }
    QString open();
    void close();
    void wait();
    void writerGone();
    /// Emits ended() from the event loop.
    void end(const QString& reason);

    QString m_name;
    QString m_path; ///< Of a FIFO.
    int m_descriptor = -1;
    bool m_isAtEnd = false;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace bandmonitor
