// SPDX-License-Identifier: MIT
#include "splashforwarder_p.h"

#include "tracing.h"

#include <jtbase/qtimerhelpers.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QDateTime>

#include <algorithm>
#include <limits>

namespace {

qint64 configuredTimeout()
{
    ICfg* cfg = CfgCenter::GetAppCfg(SettingsView);
    const QString group = QStringLiteral("Startup");
    if (!cfg->HasSubCfg(group))
        return 0;
    return cfg->OpenSubCfg(group)->GetInt(QStringLiteral("SplashTimeout"), 0);
}

} // namespace

void SplashForwarder::traceDeprecatedShow()
{
    ErrorHandler::Trace(ErrorHandler::TraceGuiBase, Tracing::module, Tracing::deprecatedSplashLine,
                        QStringLiteral("GuiBase::ShowSplash(...) is deprecated!"));
}

int SplashForwarder::remainingMilliseconds(qint64 timeout, qint64 shownAt, qint64 now)
{
    const qint64 remaining = std::min(timeout, timeout + (shownAt - now));
    constexpr qint64 longest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp<qint64>(remaining * 1000, 0, longest));
}

void SplashForwarder::hide()
{
    TrovApplication* startUp = TrovApplication::m_pThis;
    if (startUp == nullptr)
        return;
    const int delay = remainingMilliseconds(configuredTimeout(), startUp->SplashShowTime(),
                                            QDateTime::currentSecsSinceEpoch());
    QTimerHelpers::singleShot(delay, startUp, &SplashForwarder::hideAtOnce);
}

void SplashForwarder::hideAtOnce()
{
    if (TrovApplication::m_pThis != nullptr)
        TrovApplication::m_pThis->HideSplash();
}

void SplashForwarder::showBusy()
{
    if (TrovApplication::m_pThis != nullptr)
        TrovApplication::m_pThis->SplashBusy();
}

void SplashForwarder::write(const QString& text)
{
    if (TrovApplication::m_pThis != nullptr)
        TrovApplication::m_pThis->Write2Splash(text);
}
