// SPDX-License-Identifier: MIT
#include "traystatus.h"

#include "mainwindow.h"
#include "settings/settings.h"

#include <QAction>

namespace bandmonitor {

TrayStatus::TrayStatus(MainWindow* window)
    : QObject(window)
    , m_window(window)
{
    m_icon.setIcon(QIcon::fromTheme(QStringLiteral("bandmonitor")));
    m_icon.addWindow(window);
    addStayEntry();
    const Session& session = window->session();
    connect(&session, &Session::liveChanged, this, &TrayStatus::refresh);
    connect(&session, &Session::begun, this, [this] {
        m_failure.clear();
        refresh();
    });
    for (const auto ended : {&Session::liveEnded, &Session::liveFailed})
        connect(&session, ended, this, [this](const QString& text) {
            if (!m_window->session().live()->isStopped())
                m_failure = text;
            refresh();
        });
    m_icon.show();
    refresh();
}

TrayStatus::~TrayStatus() = default;

void TrayStatus::addStayEntry()
{
    auto* stay = new QAction(tr("&Go on without the window"), this);
    stay->setCheckable(true);
    stay->setChecked(Settings::isStayingInTray());
    m_icon.setStayingInTray(stay->isChecked());
    connect(stay, &QAction::toggled, this, [this](bool stays) {
        m_icon.setStayingInTray(stays);
        Settings::setStayingInTray(stays);
    });
    m_icon.addAction(stay);
}

void TrayStatus::refresh()
{
    const Session& session = m_window->session();
    if (!session.isLive()) {
        m_icon.setState(m_failure.isEmpty() ? TrayState::Idle : TrayState::Fault, m_failure);
        return;
    }
    const QString name = session.live()->name();
    if (session.live()->state() == LiveInput::State::Stalled)
        m_icon.setState(TrayState::Warning, tr("%1, no sweeps are coming").arg(name));
    else
        m_icon.setState(TrayState::Running, name);
}

} // namespace bandmonitor
