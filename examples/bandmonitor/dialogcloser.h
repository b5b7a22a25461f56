// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QDialog;

namespace bandmonitor {

/// Closes every dialog that opens in a run without a user, who could answer it otherwise: questions
/// get the answer that Escape gives. Needs the application object.
class DialogCloser : public QObject
{
    Q_OBJECT
public:
    explicit DialogCloser(QObject* parent = nullptr);
    ~DialogCloser() override;

    /// Calls `use` while the next dialog is open, before it is closed.
    void useNext(std::function<void()> use) { m_use = std::move(use); }

Q_SIGNALS:
    /// A dialog was closed that no useNext() was waiting for; `text` is one line for the user.
    void closedUnexpectedly(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finish(QDialog& dialog);

    std::function<void()> m_use;
};

} // namespace bandmonitor
