// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace bandmonitor {

/// Does something once a window has shown its first frame, which it need not wait for then; soon in
/// any case, since a minimized window shows none. Owned by the window.
class FirstFrame : public QObject
{
public:
    FirstFrame(QWidget& window, std::function<void()> perform);
    ~FirstFrame() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finish();

    std::function<void()> m_perform;
};

} // namespace bandmonitor
