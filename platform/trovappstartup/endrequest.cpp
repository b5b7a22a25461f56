// SPDX-License-Identifier: MIT
#include "endrequest_p.h"

#include "cfgcenter.h"
#include "trovapplication.h"

#include <jtbase/errorhandler.h>

#include <QApplication>
#include <QScopedValueRollback>
#include <QThread>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr char module[] = "trovappstartup/endrequest";
constexpr int askMilliseconds = 50;

/// Sees whether the application object is told to quit: only within exec() it is.
class QuitWatch : public QObject
{
public:
    QuitWatch() { QCoreApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Quit && object == QCoreApplication::instance())
            hasSeenQuit = true;
        return false;
    }
    bool hasSeenQuit = false;
};

bool hasWidgets()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

EndRequest::EndRequest(TrovApplication& application, int graceMilliseconds)
    : m_application(application)
{
    // Single shots, started again first thing: they must fire in loops that their receivers run
    // too.
    m_askTimer.setSingleShot(true);
    m_askTimer.setInterval(askMilliseconds);
    m_askTimer.callOnTimeout(this, &EndRequest::ask);
    m_graceTimer.setSingleShot(true);
    m_graceTimer.setInterval(graceMilliseconds);
    m_graceTimer.callOnTimeout(this, &EndRequest::force);
}

EndRequest::~EndRequest() = default;

void EndRequest::start()
{
    if (m_graceTimer.isActive())
        return;
    m_hasReachedLoop = m_application.IsTerminated();
    m_graceTimer.start();
    ask();
}

bool EndRequest::quitLoop()
{
    const QuitWatch watch;
    QCoreApplication::quit();
    return watch.hasSeenQuit;
}

void EndRequest::ask()
{
    if (m_hasReachedLoop || m_isQuitting)
        return;
    m_askTimer.start();
    {
        const QScopedValueRollback<bool> quitting(m_isQuitting, true);
        m_hasReachedLoop = quitLoop();
    }
    if (m_hasReachedLoop || !hasWidgets() || QThread::currentThread()->loopLevel() == 0)
        return;
    if (QWidget* const dialog = QApplication::activeModalWidget())
        dialog->close();
}

void EndRequest::force()
{
    m_graceTimer.start();
    // While a window asks back whether to close, the loop below the question has been reached.
    const bool hasReachedLoop = m_hasReachedLoop || m_isQuitting;
    m_application.Terminate();
    if (!hasReachedLoop && m_isForced) {
        ErrorHandler::Trace(ErrorHandler::TracePlatform, module, __LINE__,
                            QStringLiteral("The program does not leave its loop: it ends here"));
        CfgCenter::Store();
        std::fflush(nullptr);
        std::_Exit(EXIT_SUCCESS);
    }
    m_isForced = true;
    if (!hasReachedLoop && hasWidgets())
        QApplication::closeAllWindows();
    QCoreApplication::exit(0);
}
