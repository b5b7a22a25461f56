// SPDX-License-Identifier: MIT
#include "signalnotifier.h"

#include "mainwindow.h"
#include "model/session.h"
#include "panels/signalspanel.h"

#include <guibase/notifications/popup/notifications.h>
#include <guibase/notifications/popup/standardnotification.h>

#include <QPushButton>

namespace bandmonitor {

namespace {

constexpr int popupTime = 30000; // milliseconds
constexpr auto followButton = QDialogButtonBox::Apply;
constexpr auto ignoreButton = QDialogButtonBox::Ignore;

} // namespace

SignalNotifier::SignalNotifier(MainWindow* window)
    : QObject(window)
    , m_window(window)
{
    connect(&window->session(), &Session::sweepShown, this, &SignalNotifier::sweepShown);
}

SignalNotifier::~SignalNotifier() = default;

void SignalNotifier::sweepShown()
{
    for (const SignalTrack& track : m_alarm.takeIn(m_window->session().watch()))
        notify(track);
}

void SignalNotifier::notify(const SignalTrack& track)
{
    m_text.refresh();
    const QString text =
        tr("%1, %2 dB").arg(m_text.full(track.signal.centreHz)).arg(track.signal.peakDb, 0, 'f', 1);
    EventLog& events = m_window->session().events();
    if (!m_limit.pass()) {
        events.add(EventKind::Signal, tr("Not notified, too many in a minute: %1").arg(text));
        return;
    }
    StandardNotification* popup = Notifications::notify(
        tr("New signal"), text, popupTime, followButton | ignoreButton | QDialogButtonBox::Close);
    if (popup == nullptr)
        return;
    if (auto* box = popup->findChild<QDialogButtonBox*>())
        box->button(followButton)->setText(tr("Follow"));
    connect(popup, &StandardNotification::clicked, this,
            [this, track](QDialogButtonBox::StandardButton button) {
                if (button == followButton)
                    m_window->panel<SignalsPanel>().follow(track.id);
                else if (button == ignoreButton)
                    m_alarm.ignore(track.signal);
            });
    events.add(EventKind::Signal, tr("Notified: %1").arg(text));
}

} // namespace bandmonitor
