// SPDX-License-Identifier: MIT
#include "persistentwidget_p.h"

#include "widgetplacement.h"

#include <jtbase/qtimerhelpers.h>
#include <trovappstartup/cfgcenter.h>

#include <QChildEvent>
#include <QDialog>
#include <QDockWidget>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTimer>

using DockRestore::EdgeDocks;

namespace {

/// Also the docks in floating groups and in inner main windows: they end with the window, too.
QList<QDockWidget*> docksWithin(const QObject* window)
{
    return window != nullptr ? window->findChildren<QDockWidget*>() : QList<QDockWidget*>();
}

QMainWindow* mainWindowOf(QWidget* widget)
{
    if (auto* subWindow = qobject_cast<QMdiSubWindow*>(widget))
        return qobject_cast<QMainWindow*>(subWindow->widget());
    return qobject_cast<QMainWindow*>(widget);
}

} // namespace

PersistentWidget::PersistentWidget(QWidget* widget, const QString& recordName)
    : m_widget(widget)
    , m_mainWindow(mainWindowOf(widget))
    , m_hasMainWindow(m_mainWindow != nullptr)
    , m_identity(widget)
    , m_record(cleanedName(recordName), *this)
    , m_places(widget)
{
    connect(widget, &QObject::destroyed, this, &PersistentWidget::slotWidgetDestroyed);
    if (m_mainWindow && m_mainWindow != m_widget)
        connect(m_mainWindow, &QObject::destroyed, this, &PersistentWidget::slotWidgetDestroyed);
    connect(&m_sizeWait, &SizeWait::ended, this, &PersistentWidget::noteChange);
    CfgCenter::RegisterSaveComponent(this);
}

PersistentWidget::~PersistentWidget() = default;

QString PersistentWidget::cleanedName(QString name)
{
    static const QRegularExpression forbidden(
        QStringLiteral("#x((10?|[2-F])FFF[EF]|FDD[0-9A-F]|7F|8[0-46-9A-F]9[0-9A-F])"));
    if (name.contains(QLatin1String("#x"))) // Most have none, and then nothing is compiled.
        name.remove(forbidden);
    return name.remove(QLatin1Char(':')).replace(QLatin1Char(' '), QLatin1Char('_'));
}

/// Null also while the main window is destroyed.
QMainWindow* PersistentWidget::mainWindow() const
{
    return qobject_cast<QMainWindow*>(m_mainWindow);
}

QWidget* PersistentWidget::widget() const
{
    return m_widget;
}

bool PersistentWidget::watches(const QObject* object) const
{
    return m_identity == object;
}

void PersistentWidget::slotWidgetDestroyed(QObject* object)
{
    if (object != m_identity)
        return;
    // Another object may get the address; what the widget looked like last stays.
    m_widget.clear();
    m_identity = nullptr;
    write();
}

// --- Reading and writing -------------------------------------------------------------------------

void PersistentWidget::read()
{
    m_record.read();
}

void PersistentWidget::write()
{
    // Captures on the way to the record are no news.
    const QScopedValueRollback<bool> writing(m_isWriting, true);
    capture();
    m_isChanged = false;
    m_record.write(content());
}

void PersistentWidget::writeChanges()
{
    if (m_isChanged)
        write();
}

void PersistentWidget::Save()
{
    write();
}

void PersistentWidget::Load() {}

void PersistentWidget::CommitData()
{
    write();
}

WindowRecord::Content PersistentWidget::content() const
{
    return {m_modes.latest(), m_modes.latestMaximized(), m_geometry, m_isMinimized};
}

void PersistentWidget::ApplyPersistantBeforeWrite()
{
    m_record.set(content());
}

void PersistentWidget::ApplyPersistantAfterRead()
{
    if (!m_widget)
        return;
    const WindowRecord::Content content = m_record.take(m_widget->isWindow());
    m_modes.load(content.layouts, content.maximized);
    m_modes.current().latest.names = m_record.takeFirstNames();
    m_isMinimized = content.isMinimized;
    m_geometry = content.geometry;
    m_places.load(m_geometry);
    applyStart();
}

// --- Capturing -----------------------------------------------------------------------------------

template <typename T>
void PersistentWidget::update(T& member, const T& value)
{
    if (member == value)
        return;
    member = value;
    noteChange();
}

void PersistentWidget::noteChange()
{
    if (m_isWriting)
        return;
    m_isChanged = true;
    Q_EMIT changed();
}

void PersistentWidget::capture()
{
    // An MDI sub-window that has lost its main window shrinks to nothing.
    if (!m_widget || (m_hasMainWindow && mainWindow() == nullptr))
        return;
    if (!m_widget->isMinimized())
        update(m_geometry, m_places.present());
    update(m_isMinimized, m_widget->isMinimized());
    captureDocks();
}

void PersistentWidget::captureDocks()
{
    const QMainWindow* docks = mainWindow();
    // The toolkit closes the floating docks of a closed window when it likes.
    const bool isGone = m_isEnding || !m_widget || (m_isClosed && m_widget->isHidden());
    if (docks == nullptr || isGone || m_isRestoringDocks)
        return;
    // The application or the user has other plans than the layout that is awaited.
    m_sizeWait.endIfRearranged();
    if (!m_sizeWait.isOn())
        update(m_modes.current().latest, DockRestore::save(*docks, m_modes.current().latest));
}

/// Once for all the docks that change together. Their window may be gone before the next write.
void PersistentWidget::captureDocksSoon()
{
    noteChange();
    if (m_isRestoringDocks || m_captureTimer)
        return;
    m_captureTimer = QTimerHelpers::singleShot(0, this, [this] {
        m_captureTimer.clear(); // It deletes itself.
        captureDocks();
    });
}

void PersistentWidget::beginEnd()
{
    if (m_isEnding)
        return;
    capture();
    m_isEnding = true;
    m_openAtEnd.clear();
    for (QDockWidget* dock : docksWithin(m_mainWindow)) {
        if (dock->isFloating() && dock->isVisible())
            m_openAtEnd.emplace_back(dock);
    }
}

void PersistentWidget::giveUpEnd()
{
    const auto docks = std::exchange(m_openAtEnd, {});
    for (const QPointer<QDockWidget>& dock : docks) {
        if (dock && m_widget && m_widget->isVisible())
            dock->show();
    }
    m_isEnding = false;
}

bool PersistentWidget::eventFilter(QObject* watched, QEvent* event)
{
    const bool isWindow = watched == m_widget || watched == m_mainWindow;
    if (watched == m_widget) {
        noteVisibility(*event);
        m_places.note(*event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Close:
    case QEvent::WindowStateChange:
        if (isWindow)
            capture();
        else
            captureDocksSoon();
        break;
    case QEvent::DeferredDelete:
        if (isWindow)
            capture();
        break;
    case QEvent::Show:
    case QEvent::Hide:
        captureDocksSoon();
        break;
    case QEvent::LayoutRequest:
        // Docks come, go and move; their places are captured with the next write.
        noteChange();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::KeyPress:
        m_sizeWait.end();
        break;
    case QEvent::ChildPolished: {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (watched == m_mainWindow && qobject_cast<QDockWidget*>(child) != nullptr)
            child->installEventFilter(this);
        break;
    }
    default:
        break;
    }
    if (event->type() == QEvent::Resize && watched == m_mainWindow && m_sizeWait.isOn())
        QTimerHelpers::singleShot(0, this, [this] { Q_EMIT resized(); });
    return false;
}

/// A dialog that is accepted or rejected is hidden without being closed.
void PersistentWidget::noteVisibility(const QEvent& event)
{
    const bool isDismissed = event.type() == QEvent::Hide && !event.spontaneous() &&
                             qobject_cast<QDialog*>(m_widget) != nullptr;
    if (event.type() == QEvent::Close || isDismissed)
        m_isClosed = true;
    else if (event.type() == QEvent::Show)
        m_isClosed = false;
}

void PersistentWidget::watch()
{
    if (m_widget) {
        m_widget->installEventFilter(this);
        m_isClosed = m_isClosed && m_widget->isHidden(); // It may have been shown meanwhile.
        m_places.noteNormal();
    }
    if (m_mainWindow && m_mainWindow != m_widget)
        m_mainWindow->installEventFilter(this);
    watchDocks();
}

void PersistentWidget::unwatch()
{
    if (m_widget)
        m_widget->removeEventFilter(this);
}

void PersistentWidget::watchDocks()
{
    for (QDockWidget* dock : docksWithin(m_mainWindow))
        dock->installEventFilter(this);
}

void PersistentWidget::makeReachable()
{
    const QList<QDockWidget*> docks = docksWithin(m_mainWindow);
    for (QDockWidget* dock : docks)
        WidgetPlacement::makeReachable(*dock);
    if (m_widget)
        WidgetPlacement::makeReachable(*m_widget);
}

// --- Applying ------------------------------------------------------------------------------------
// Every call into the toolkit may run handlers of the application, which may delete the widget.

void PersistentWidget::applyStart()
{
    unwatch();
    const bool isStored = !m_geometry.isEmpty();
    m_places.begin(m_geometry);
    QSize size;
    if (isStored)
        size = WidgetPlacement::apply(*m_widget, m_places.start());
    if (m_widget)
        m_widget->show();
    applyCurrentLayout(EdgeDocks::Stay);
    if (isStored) {
        restoreGeometryIfMoved(m_places.start());
        awaitSize(size);
    } else {
        m_places.awaitWindowManager();
    }
    if (m_startMinimized == StartMinimized::Unknown)
        m_startMinimized = m_isMinimized ? StartMinimized::Yes : StartMinimized::No;
    if (m_isMinimized)
        minimizeLater();
    watch();
}

void PersistentWidget::applyCurrentLayout(EdgeDocks edgeDocks)
{
    const QMainWindow* docks = mainWindow();
    if (docks == nullptr)
        return;
    ModeLayout& layout = m_modes.current();
    const DockLayout present = DockRestore::save(*docks);
    if (layout.factory.state.isEmpty())
        layout.factory = present;
    if (layout.programStart.state.isEmpty())
        layout.programStart = layout.latest.state.isEmpty() ? present : layout.latest;
    if (!(layout.latest == present))
        restoreDocks(DockLayout(layout.latest), edgeDocks);
}

void PersistentWidget::restoreDocks(const DockLayout& layout, EdgeDocks edgeDocks)
{
    QMainWindow* docks = mainWindow();
    if (docks == nullptr || layout.state.isEmpty() || m_isRestoringDocks)
        return;
    const QScopedValueRollback<bool> restoring(m_isRestoringDocks, true);
    const bool isInner = docks != m_widget;
    if (isInner)
        docks->removeEventFilter(this);
    DockRestore::restore(*docks, layout, edgeDocks);
    if (isInner && m_mainWindow)
        m_mainWindow->installEventFilter(this);
}

void PersistentWidget::awaitSize(const QSize& size)
{
    if (m_mainWindow == m_widget)
        m_sizeWait.start(mainWindow(), m_modes.current().latest, size);
}

void PersistentWidget::applyAwaited()
{
    m_sizeWait.retry([this](const DockLayout& layout) { restoreDocks(layout, EdgeDocks::Stay); });
}

void PersistentWidget::restoreGeometryIfMoved(const QByteArray& geometry)
{
    if (m_widget && m_widget->saveGeometry() != geometry)
        WidgetPlacement::apply(*m_widget, geometry);
}

void PersistentWidget::minimizeLater()
{
    if (m_widget)
        QTimerHelpers::singleShot(minimizeMilliseconds, m_widget, [widget = m_widget.data()] {
            if (!widget->isHidden()) // closed meanwhile
                widget->showMinimized();
        });
}

void PersistentWidget::restoreProgramStart()
{
    restore(m_places.start(), &ModeLayout::programStart);
    if (m_widget && m_startMinimized == StartMinimized::Yes)
        m_widget->showMinimized();
}

void PersistentWidget::restoreFactory()
{
    restore(m_places.factory(), &ModeLayout::factory);
    m_places.centreUnplaced();
}

void PersistentWidget::restore(const QByteArray& geometry, DockLayout ModeLayout::*former)
{
    if (!m_widget)
        return;
    m_sizeWait.end();
    m_modes.reset(former);
    unwatch();
    if (!geometry.isEmpty()) {
        WidgetPlacement::apply(*m_widget, geometry);
        if (m_widget)
            m_widget->show();
    }
    const DockLayout docks = m_modes.current().latest;
    if (m_mainWindow && !docks.state.isEmpty()) {
        restoreDocks(docks, EdgeDocks::Move);
        restoreGeometryIfMoved(geometry);
    }
    if (m_widget)
        m_widget->update();
    watch();
    noteChange();
}

void PersistentWidget::setMode(quint32 mode)
{
    capture();
    const bool isAwaiting = m_sizeWait.isOn();
    m_sizeWait.end();
    m_modes.setCurrent(mode);
    if (!m_widget)
        return;
    const QByteArray geometry = m_widget->saveGeometry();
    unwatch();
    if (!m_isClosed)
        m_widget->show();
    applyCurrentLayout(EdgeDocks::Move);
    restoreGeometryIfMoved(geometry);
    if (isAwaiting)
        awaitSize(m_sizeWait.size());
    watch();
    noteChange();
}

void PersistentWidget::storeFactory(quint32 mode)
{
    const QMainWindow* docks = mainWindow();
    if (!m_widget || docks == nullptr)
        return;
    ModeLayout& layout = m_modes.layout(mode);
    layout.factory = DockRestore::save(*docks, m_modes.current().latest);
    if (layout.latest.state.isEmpty())
        layout.programStart = layout.latest = layout.factory;
    noteChange();
}
