// SPDX-License-Identifier: MIT
#pragma once

#include "popupplacer_p.h"

#include <QPointer>
#include <QWidget>

/// Puts pop-ups into the active window of the application, as children at its lower right. They
/// move on to another window before theirs goes.
class WindowPlacer : public PopupPlacer
{
    Q_OBJECT
public:
    WindowPlacer();
    ~WindowPlacer() override;

    bool isShared() const override { return false; }
    QRect area() override;
    void adopt(QWidget& popup) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHost(QWidget* host);
    /// Takes the pop-ups out of the host.
    void release();

    QPointer<QWidget> m_host;
    QList<QPointer<QWidget>> m_popups;
};
