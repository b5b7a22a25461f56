// SPDX-License-Identifier: MIT
#include "trovapplication.h"

#include "cfgcenter.h"
#include "endrequest_p.h"
#include "savecomponentif.h"
#include "serverend_p.h"
#include "startupsplash_p.h"
#include "terminationsignals_p.h"
#include "terminationtargets_p.h"

#include <jtbase/errorhandler.h>

#include <QApplication>
#include <QDateTime>

#include <utility>

namespace {

constexpr char module[] = "trovappstartup/trovapplication";
int gracePeriod = 3000; // in milliseconds

/// Null where no window can be shown.
QApplication* widgetApplication()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance());
}

} // namespace

class TrovApplicationPrivate
{
public:
    /// What needs the application object; also called when that dies before us.
    static void releaseApplication();

    /// Shared with calls that paint it: one of the events that they let through may hide it.
    std::shared_ptr<StartupSplash> splash;
    std::unique_ptr<TerminationSignals> signalWatch;
    std::unique_ptr<EndRequest> endRequest;
    std::unique_ptr<ServerEnd> serverEnd;
    qint64 splashShowTime = 0;
    bool isTerminated = false;
};

void TrovApplicationPrivate::releaseApplication()
{
    if (TrovApplication::m_pThis == nullptr)
        return;
    TrovApplication::m_pThis->Terminate();
    TrovApplication::m_pThis->d->signalWatch.reset();
    TrovApplication::m_pThis->d->endRequest.reset();
    TrovApplication::m_pThis->d->serverEnd.reset();
}

TrovApplication* TrovApplication::m_pThis = nullptr;

TrovApplication::TrovApplication(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<TrovApplicationPrivate>())
{
    if (!TROV_ASSERT(m_pThis == nullptr, module))
        return;
    m_pThis = this;
    QCoreApplication* const application = QCoreApplication::instance();
    if (!TROV_ASSERT(application != nullptr, module))
        return;
    qAddPostRoutine(&TrovApplicationPrivate::releaseApplication);
    connect(application, &QCoreApplication::aboutToQuit, this, &TrovApplication::Terminate);
#if QT_CONFIG(sessionmanager)
    if (auto* const gui = qobject_cast<QGuiApplication*>(application)) {
        connect(gui, &QGuiApplication::commitDataRequest, this, [] { CfgCenter::CommitAll(); });
    }
#endif
    d->serverEnd = std::make_unique<ServerEnd>();
    d->signalWatch = std::make_unique<TerminationSignals>();
    connect(d->signalWatch.get(), &TerminationSignals::requested, this,
            &TrovApplication::RequestEnd);
}

TrovApplication::~TrovApplication()
{
    if (m_pThis != this)
        return;
    Terminate();
    // Windows that died after the termination may have written their state.
    CfgCenter::Store();
    qRemovePostRoutine(&TrovApplicationPrivate::releaseApplication);
    m_pThis = nullptr;
}

void TrovApplication::RequestEnd()
{
    if (!d->endRequest)
        d->endRequest = std::make_unique<EndRequest>(*this, gracePeriod);
    d->endRequest->start();
}

bool TrovApplication::EndEventLoop()
{
    if (!EndRequest::quitLoop())
        return false;
    QCoreApplication::exit(0);
    return true;
}

void TrovApplication::SetGracePeriod(int milliseconds)
{
    gracePeriod = milliseconds;
}

void TrovApplication::ShowSplash(const QPixmap& picture)
{
    if (widgetApplication() == nullptr || d->isTerminated)
        return;
    d->splash =
        std::make_unique<StartupSplash>(picture.isNull() ? StartupSplash::plainPicture() : picture);
    d->splashShowTime = QDateTime::currentSecsSinceEpoch();
    d->splash->show();
    d->splash->paintNow();
}

void TrovApplication::Write2Splash(const QString& text)
{
    if (const auto splash = d->splash)
        splash->setText(text);
}

void TrovApplication::SplashBusy()
{
    if (const auto splash = d->splash)
        splash->advanceBusy();
}

void TrovApplication::HideSplash()
{
    if (d->splash)
        d->splash->hide();
    d->splash.reset();
}

bool TrovApplication::IsSplashVisible() const
{
    return d->splash && d->splash->isVisible();
}

bool TrovApplication::IsSplashBusy() const
{
    return d->splash && d->splash->isBusy();
}

QString TrovApplication::GetSplashText() const
{
    return d->splash ? d->splash->message() : QString();
}

qint64 TrovApplication::SplashShowTime() const
{
    return d->splashShowTime;
}

void TrovApplication::Terminate()
{
    if (std::exchange(d->isTerminated, true))
        return;
    HideSplash();
    CfgCenter::SaveAll();
    terminationTargets().callEach(
        CallbackRegistry<IAbstractTerminationTarget>::Added::Call,
        [](IAbstractTerminationTarget& target) { target.aboutToTerminate(); });
    CfgCenter::Store();
}

bool TrovApplication::IsTerminated() const
{
    return d->isTerminated;
}
