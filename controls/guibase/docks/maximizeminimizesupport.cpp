// SPDX-License-Identifier: MIT
#include "maximizeminimizesupport.h"

#include "attachedhelper.h"
#include "dockicons.h"
#include "edgehiding.h"
#include "managedwindow_p.h"
#include "survivalcheck.h"
#include "updatesblocker.h"

#include <guibase/layouts/floatingdockkeeper.h>
#include <guibase/layouts/normalsize.h>

#include <jtbase/qtimerhelpers.h>
#include <jtbase/windowsystem.h>

#include <QAction>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDockWidget>
#include <QStyle>
#include <QTimer>
#include <QWindowStateChangeEvent>

#include <array>
#include <utility>

namespace QDockWidgetHelpers {

namespace {

using State = MaximizeMinimizeSupport_DockWidgetState;
using Support = MaximizeMinimizeSupport;

constexpr const char* propertyName = "QDockWidgetHelpers_MaximizeMinimizeSupport_instance";

/// For how long, and how often, the window manager is asked again for a state that it undoes at
/// once.
constexpr int insistenceMilliseconds = 1000;
constexpr int maximumInsistence = 3;
/// After so long, a window manager has done what it was asked for, or does not do it.
constexpr int refusalMilliseconds = 3000;

/// One of the three things that can be done with a floating dock.
struct Operation
{
    const char* actionName;
    const char* toolTip;
    QStyle::StandardPixmap icon;
    bool (Support::*perform)();
    bool (Support::*isPossible)() const;
    void (Support::*possibleChanged)(bool);
};

/// In the order of the signals: maximize, minimize, restore.
constexpr std::array operations{
    Operation{"maximizeDockWidget",
              QT_TRANSLATE_NOOP("QDockWidgetHelpers::MaximizeMinimizeSupport", "Maximize"),
              QStyle::SP_TitleBarMaxButton, &Support::maximizeDockWidget,
              &Support::isMaximizeDockWidgetPossible,
              &Support::isMaximizeDockWidgetPossibleChanged},
    Operation{"minimizeDockWidget",
              QT_TRANSLATE_NOOP("QDockWidgetHelpers::MaximizeMinimizeSupport", "Minimize"),
              QStyle::SP_TitleBarMinButton, &Support::minimizeDockWidget,
              &Support::isMinimizeDockWidgetPossible,
              &Support::isMinimizeDockWidgetPossibleChanged},
    Operation{"restoreDockWidget",
              QT_TRANSLATE_NOOP("QDockWidgetHelpers::MaximizeMinimizeSupport", "Restore"),
              QStyle::SP_TitleBarNormalButton, &Support::restoreDockWidget,
              &Support::isRestoreDockWidgetPossible, &Support::isRestoreDockWidgetPossibleChanged},
};

} // namespace

struct MaximizeMinimizeSupportPrivate
{
    MaximizeMinimizeSupportPrivate(Support& support, QDockWidget& dock)
        : q(support)
        , attachment(dock, propertyName, support)
        , normalGeometry(dock.geometry())
        , state(Support::dockWidgetState(dock))
    {}

    void createActions(QDockWidget& dock);
    bool changeTo(State::Type newState, bool (*operation)(QDockWidget&));
    void announceLater(bool reapplyState);
    /// Forgets the state and ends it, without showing the dock.
    void becomeNormal(QDockWidget& dock);
    void followEdgeHiding(QDockWidget& dock);
    void reapply(QDockWidget& dock);
    /// Whether the window manager has just taken the state back.
    bool isUndone(const QDockWidget& dock) const;
    void takeNotice(const QWindowStateChangeEvent& stateChange);
    void dropRefusedState();
    void announcePossible(size_t operation);
    void announceChanges();

    Support& q;
    AttachedHelpers::Attachment attachment;
    QRect normalGeometry;
    State::Type state;
    std::array<QAction*, operations.size()> actions{};
    /// What the receivers of the signals were told last.
    std::array<bool, operations.size()> announced{};
    QPointer<QTimer> announcement;
    bool reapplyBeforeAnnouncement = false;
    bool changing = false;
    /// Window managers that are late with an earlier request undo the newer one.
    QDeadlineTimer insistence{0};
    int timesToInsist = 0;
};

namespace {

/// Signals at the end of its life what changed in its course, or everything. The support may die
/// in one of the signals.
class Notifier
{
public:
    enum Mode {
        ChangesOnly,
        All,
    };

    Notifier(MaximizeMinimizeSupportPrivate& d, Mode mode)
        : m_alive(&d.q)
        , m_d(d)
        , m_mode(mode)
        , m_possible(possible())
        , m_state(d.state)
    {}
    ~Notifier()
    {
        for (size_t i = 0; i < operations.size() && m_alive; ++i) {
            if (m_mode == All || possible()[i] != m_possible[i])
                m_d.announcePossible(i);
        }
        if (m_alive && (m_mode == All || m_d.state != m_state))
            Q_EMIT m_alive->dockWidgetStateChanged(m_d.state);
    }
    Q_DISABLE_COPY_MOVE(Notifier)

private:
    std::array<bool, operations.size()> possible() const
    {
        std::array<bool, operations.size()> flags{};
        for (size_t i = 0; i < flags.size(); ++i)
            flags[i] = (m_alive->*operations[i].isPossible)();
        return flags;
    }

    QPointer<Support> m_alive;
    MaximizeMinimizeSupportPrivate& m_d;
    Mode m_mode;
    std::array<bool, operations.size()> m_possible;
    State::Type m_state;
};

/// To be called right after the end of another state.
void giveGeometry(QDockWidget& dock, const QRect& geometry)
{
    if (WindowSystem::placesWindows())
        dock.setGeometry(geometry);
    else
        NormalSize::give(dock, geometry.size());
}

/// The style makes a standard icon from its image files every time; it is kept with the style. Some
/// styles have dark ones only.
QIcon standardIconOf(const QDockWidget& dock, QStyle::StandardPixmap kind)
{
    QStyle* style = dock.style();
    const QByteArray name = "GuiBase_standardIcon_" + QByteArray::number(int(kind));
    QVariant kept = style->property(name.constData());
    if (!kept.isValid()) {
        kept = makeTintedIcon(style->standardIcon(kind, nullptr, &dock));
        style->setProperty(name.constData(), kept);
    }
    return kept.value<QIcon>();
}

} // namespace

void MaximizeMinimizeSupportPrivate::createActions(QDockWidget& dock)
{
    for (size_t i = 0; i < operations.size(); ++i) {
        const Operation& operation = operations[i];
        auto* action = new QAction(&q);
        action->setObjectName(QString::fromLatin1(operation.actionName));
        action->setToolTip(Support::tr(operation.toolTip));
        action->setIcon(standardIconOf(dock, operation.icon));
        QObject::connect(action, &QAction::triggered, &q, operation.perform);
        QObject::connect(&q, operation.possibleChanged, action, &QAction::setVisible);
        QObject::connect(&q, operation.possibleChanged, action, &QAction::setEnabled);
        actions[i] = action;
    }
}

bool MaximizeMinimizeSupportPrivate::changeTo(State::Type newState, bool (*operation)(QDockWidget&))
{
    QDockWidget* dock = q.dockWidget();
    if (dock == nullptr)
        return false;
    const QPointer<Support> alive(&q);
    const Notifier notifier(*this, Notifier::ChangesOnly);
    const QRect geometry =
        Support::dockWidgetState(*dock) == State::Normal ? dock->geometry() : normalGeometry;
    const bool wasChanging = std::exchange(changing, true);
    const bool changed = operation(*dock);
    if (alive)
        changing = wasChanging;
    if (changed && alive) {
        state = newState;
        insistence.setRemainingTime(insistenceMilliseconds);
        timesToInsist = newState == State::Minimized ? 0 : maximumInsistence;
        if (newState == State::Normal) {
            giveGeometry(*dock, normalGeometry);
            FloatingDockKeeper::keep(*dock);
        } else {
            normalGeometry = geometry;
            QTimerHelpers::singleShot(refusalMilliseconds, &q, [this] { dropRefusedState(); });
        }
    }
    return changed;
}

void MaximizeMinimizeSupportPrivate::dropRefusedState()
{
    QDockWidget* dock = q.dockWidget();
    // The toolkit forgets it at once where nobody tells; the next show would minimize it again.
    const bool isUnknown = state == State::Minimized && !WindowSystem::placesWindows();
    if (dock == nullptr || !insistence.hasExpired() ||
        !(isUnknown || ManagedWindow::hasRefusedState(*dock, normalGeometry.size())))
        return;
    const QPointer<Support> alive(&q);
    const Notifier notifier(*this, Notifier::ChangesOnly);
    const bool wasMinimized = isUnknown || dock->isMinimized();
    timesToInsist = 0;
    dock->setWindowState(dock->windowState() &
                         ~(wasMinimized ? Qt::WindowMinimized : Qt::WindowMaximized));
    if (alive)
        state = Support::dockWidgetState(*dock);
}

void MaximizeMinimizeSupportPrivate::announceLater(bool reapplyState)
{
    const QPointer<Support> alive(&q);
    for (size_t i = 0; i < operations.size() && alive; ++i)
        actions[i]->setVisible(false);
    if (!alive)
        return;
    reapplyBeforeAnnouncement = reapplyBeforeAnnouncement || reapplyState;
    if (announcement)
        return;
    announcement = QTimerHelpers::singleShot(0, &q, [this] {
        announcement = nullptr;
        if (std::exchange(reapplyBeforeAnnouncement, false))
            q.onFloatingStateChanged();
        else
            const Notifier notifier(*this, Notifier::All);
    });
}

void MaximizeMinimizeSupportPrivate::reapply(QDockWidget& dock)
{
    const QPointer<Support> alive(&q);
    const UpdatesBlocker blocker(dock);
    const QRect kept = normalGeometry;
    // A dock that floats again has the size that it had when it was maximized. Where only the
    // toolkit can give it its former size back, the toolkit must know that.
    if (state == State::Maximized && !WindowSystem::placesWindows() &&
        Support::dockWidgetState(dock) == State::Normal)
        NormalSize::resize(dock, kept.size());
    switch (state) {
    case State::Normal:
        q.restoreDockWidget();
        break;
    case State::Maximized:
        q.maximizeDockWidget();
        break;
    case State::Minimized:
        q.minimizeDockWidget();
        break;
    }
    if (alive)
        normalGeometry = kept;
}

void MaximizeMinimizeSupportPrivate::becomeNormal(QDockWidget& dock)
{
    const QPointer<Support> alive(&q);
    const Notifier notifier(*this, Notifier::ChangesOnly);
    state = State::Normal;
    timesToInsist = maximumInsistence;
    if (Support::dockWidgetState(dock) == State::Normal)
        return;
    const bool wasChanging = std::exchange(changing, true);
    dock.setWindowState(dock.windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized));
    if (!alive)
        return;
    changing = wasChanging;
    if (dock.isFloating())
        giveGeometry(dock, normalGeometry);
}

void MaximizeMinimizeSupportPrivate::followEdgeHiding(QDockWidget& dock)
{
    const QPointer<Support> alive(&q);
    if (EdgeHiding::isOn(dock))
        becomeNormal(dock);
    if (alive)
        announceChanges();
}

bool MaximizeMinimizeSupportPrivate::isUndone(const QDockWidget& dock) const
{
    if (timesToInsist == 0 || !dock.isFloating() || Support::dockWidgetState(dock) == state)
        return false;
    return EdgeHiding::isOn(dock) || (dock.isVisible() && !insistence.hasExpired());
}

void MaximizeMinimizeSupportPrivate::takeNotice(const QWindowStateChangeEvent& stateChange)
{
    QDockWidget* dock = q.dockWidget();
    // What the application itself does to the window stays.
    if (!stateChange.spontaneous())
        timesToInsist = 0;
    if (dock != nullptr && isUndone(*dock)) {
        const QPointer<Support> alive(&q);
        const QDeadlineTimer deadline = insistence;
        const int timesLeft = timesToInsist - 1;
        if (EdgeHiding::isOn(*dock))
            becomeNormal(*dock);
        else
            reapply(*dock);
        if (!alive)
            return;
        insistence = deadline;
        timesToInsist = timesLeft;
    }
    const Qt::WindowStates maximizedOrMinimized = Qt::WindowMaximized | Qt::WindowMinimized;
    if (dock != nullptr && dock->isFloating() && Support::dockWidgetState(*dock) != State::Normal &&
        !stateChange.oldState().testAnyFlags(maximizedOrMinimized))
        normalGeometry = dock->normalGeometry();
    announceChanges();
}

void MaximizeMinimizeSupportPrivate::announcePossible(size_t operation)
{
    announced[operation] = (q.*operations[operation].isPossible)();
    Q_EMIT(q.*operations[operation].possibleChanged)(announced[operation]);
}

void MaximizeMinimizeSupportPrivate::announceChanges()
{
    const QPointer<Support> alive(&q);
    for (size_t i = 0; i < operations.size() && alive; ++i) {
        if ((q.*operations[i].isPossible)() != announced[i])
            announcePossible(i);
    }
}

MaximizeMinimizeSupport* MaximizeMinimizeSupport::get(const QDockWidget& dock)
{
    return AttachedHelpers::get<MaximizeMinimizeSupport>(dock, propertyName);
}

MaximizeMinimizeSupport* MaximizeMinimizeSupport::install(QDockWidget& dock)
{
    MaximizeMinimizeSupport* existing = get(dock);
    return existing != nullptr ? existing : new MaximizeMinimizeSupport(dock);
}

MaximizeMinimizeSupport::MaximizeMinimizeSupport(QDockWidget& dock)
    : QObject(&dock)
    , d(std::make_unique<MaximizeMinimizeSupportPrivate>(*this, dock))
{
    d->createActions(dock);
    connect(&dock, &QObject::destroyed, this, &MaximizeMinimizeSupport::onDockWidgetDestroyed);
    connect(&dock, &QDockWidget::dockLocationChanged, this,
            &MaximizeMinimizeSupport::onDockLocationChanged);
    dock.installEventFilter(this);
    ManagedWindow::allowStates(dock);
    onFloatingStateChanged();
}

MaximizeMinimizeSupport::~MaximizeMinimizeSupport() = default;

QDockWidget* MaximizeMinimizeSupport::dockWidget() const
{
    return qobject_cast<QDockWidget*>(parent());
}

QAction& MaximizeMinimizeSupport::maximizeDockWidgetAction() const
{
    return *d->actions[0];
}

QAction& MaximizeMinimizeSupport::minimizeDockWidgetAction() const
{
    return *d->actions[1];
}

QAction& MaximizeMinimizeSupport::restoreDockWidgetAction() const
{
    return *d->actions[2];
}

State::Type MaximizeMinimizeSupport::dockWidgetState()
{
    return d->state;
}

bool MaximizeMinimizeSupport::isMaximizeDockWidgetPossible() const
{
    return dockWidget() != nullptr && isMaximizeDockWidgetPossible(*dockWidget());
}

bool MaximizeMinimizeSupport::isMinimizeDockWidgetPossible() const
{
    return dockWidget() != nullptr && isMinimizeDockWidgetPossible(*dockWidget());
}

bool MaximizeMinimizeSupport::isRestoreDockWidgetPossible() const
{
    return dockWidget() != nullptr && isRestoreDockWidgetPossible(*dockWidget());
}

bool MaximizeMinimizeSupport::maximizeWhenShown()
{
    return d->changeTo(State::Maximized, &MaximizeMinimizeSupport::maximizeWhenShown);
}

bool MaximizeMinimizeSupport::maximizeDockWidget()
{
    return d->changeTo(State::Maximized, &MaximizeMinimizeSupport::maximizeDockWidget);
}

bool MaximizeMinimizeSupport::minimizeDockWidget()
{
    return d->changeTo(State::Minimized, &MaximizeMinimizeSupport::minimizeDockWidget);
}

bool MaximizeMinimizeSupport::restoreDockWidget()
{
    return d->changeTo(State::Normal, &MaximizeMinimizeSupport::restoreDockWidget);
}

bool MaximizeMinimizeSupport::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != parent())
        return false;
    const SurvivalCheck receiver(watched);
    // What the window manager does to the dock, the support only takes notice of.
    if (event->type() == QEvent::Show) {
        if (dockWidget() != nullptr && !event->spontaneous())
            ManagedWindow::allowStates(*dockWidget());
        d->announceLater(!event->spontaneous());
    } else if (event->type() == QEvent::WindowStateChange && !d->changing) {
        d->takeNotice(static_cast<const QWindowStateChangeEvent&>(*event));
    } else if (EdgeHiding::isChange(*event) && dockWidget() != nullptr) {
        d->followEdgeHiding(*dockWidget());
    }
    return receiver.hasDied();
}

void MaximizeMinimizeSupport::onFloatingStateChanged()
{
    QDockWidget* dock = dockWidget();
    if (dock == nullptr)
        return;
    const Notifier notifier(*d, Notifier::All);
    // Showing a dock that was hidden again meanwhile would be wrong; its next show event comes.
    if (dock->isFloating() && dock->isVisible())
        d->reapply(*dock);
}

void MaximizeMinimizeSupport::onDockLocationChanged(Qt::DockWidgetArea)
{
    d->announceLater(true);
}

void MaximizeMinimizeSupport::onDockWidgetDestroyed()
{
    disconnect();
}

} // namespace QDockWidgetHelpers
