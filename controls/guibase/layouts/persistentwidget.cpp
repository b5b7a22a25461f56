// SPDX-License-Identifier: MIT
#include "persistentwidget_p.h"

#include "widgetplacement.h"

#include <guibase/records/dockstatecheck.h>
#include <guibase/records/hexadecimal.h>
#include <guibase/records/recordstore.h>

#include <jtbase/qtimerhelpers.h>

#include <QChildEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>

namespace {

/// How long window managers take to give a window its stored size, in milliseconds.
constexpr int sizeMilliseconds = 2000;
/// So long after the first showing, a move is that of the window manager.
constexpr int placeMilliseconds = 1000;

QMainWindow* mainWindowOf(QWidget* widget)
{
    if (auto* subWindow = qobject_cast<QMdiSubWindow*>(widget))
        return qobject_cast<QMainWindow*>(subWindow->widget());
    return qobject_cast<QMainWindow*>(widget);
}

bool isDockLayout(const QString& text)
{
    const auto state = Hexadecimal::decode(text);
    return state && DockStateCheck::isValid(*state, DockRestore::stateVersion);
}

} // namespace

PersistentWidget::PersistentWidget(QWidget* widget, const QString& recordName)
    : m_widget(widget)
    , m_mainWindow(mainWindowOf(widget))
    , m_hasMainWindow(m_mainWindow != nullptr)
    , m_identity(widget)
    , m_record(cleanedName(recordName), this)
{
    m_record.Add(&m_stateText, QStringLiteral("State"));
    m_record.Add(&m_geometryText, QStringLiteral("Geometry"));
    m_record.Add(&m_isMinimized, QStringLiteral("Minimized"), false);
    connect(widget, &QObject::destroyed, this, &PersistentWidget::slotWidgetDestroyed);
    if (m_mainWindow && m_mainWindow != m_widget)
        connect(m_mainWindow, &QObject::destroyed, this, &PersistentWidget::slotWidgetDestroyed);
    CfgCenter::RegisterSaveComponent(this);
}

PersistentWidget::~PersistentWidget() = default;

QString PersistentWidget::cleanedName(QString name)
{
    static const QRegularExpression forbidden(
        QStringLiteral("#x((10?|[2-F])FFF[EF]|FDD[0-9A-F]|7F|8[0-46-9A-F]9[0-9A-F])"));
    return name.remove(forbidden)
        .remove(QLatin1Char(':'))
        .replace(QLatin1Char(' '), QLatin1Char('_'));
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
    m_record.Read(QString());
}

void PersistentWidget::write()
{
    // Captures on the way to the record are no news.
    const QScopedValueRollback<bool> writing(m_isWriting, true);
    m_record.Write(QString());
    m_isChanged = false;
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

void PersistentWidget::ApplyPersistantBeforeWrite()
{
    capture();
    StateRecord::Layouts layouts = m_modes.texts();
    if (layouts == m_encodedLayouts)
        return;
    m_stateText = StateRecord::encode(layouts);
    m_encodedLayouts = std::move(layouts);
}

void PersistentWidget::ApplyPersistantAfterRead()
{
    if (!m_widget)
        return;
    takeLayoutsFromRecord();
    takeGeometryFromRecord();
    applyStart();
}

void PersistentWidget::takeLayoutsFromRecord()
{
    std::optional<StateRecord::Layouts> layouts = StateRecord::decode(m_stateText);
    if (!layouts) {
        // Without the tag it is somebody else's text.
        if (StateRecord::isTagged(m_stateText))
            keepAside(QStringLiteral("the dock layouts cannot be read"));
        layouts.emplace();
    }
    bool isWhole = !layouts->empty();
    for (auto& [mode, text] : *layouts) {
        if (text.isEmpty() || isDockLayout(text))
            continue;
        keepAside(QStringLiteral("the dock layout of mode %1 is damaged").arg(mode));
        text.clear();
        isWhole = false;
    }
    m_modes.load(*layouts);
    if (isWhole)
        m_encodedLayouts = m_modes.texts();
}

void PersistentWidget::takeGeometryFromRecord()
{
    if (!m_geometryText.isEmpty() &&
        WidgetPlacement::fromText(m_geometryText, m_widget->isWindow()).isEmpty()) {
        keepAside(QStringLiteral("the geometry is damaged"));
        m_geometryText.clear();
    }
}

void PersistentWidget::keepAside(const QString& reason)
{
    const QString& name = m_record.GetName();
    const std::unique_ptr<ICfg> place =
        CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(RecordStore::asideName(name));
    RecordStore::keepAside(
        *place,
        {{QStringLiteral("State"), m_stateText}, {QStringLiteral("Geometry"), m_geometryText}},
        name, reason);
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
    const QMainWindow* docks = mainWindow();
    // An MDI sub-window that has lost its main window shrinks to nothing.
    if (!m_widget || (m_hasMainWindow && docks == nullptr))
        return;
    if (!m_widget->isMinimized())
        update(m_geometryText, Hexadecimal::encode(m_widget->saveGeometry()));
    update(m_isMinimized, m_widget->isMinimized());
    if (docks == nullptr || m_isRestoringDocks)
        return;
    // The application or the user has other plans than the layout that is awaited.
    if (DockRestore::isRearranged(m_awaitedPlaces))
        endAwaiting();
    if (m_awaitingState.isEmpty())
        update(m_modes.current().stateText, Hexadecimal::encode(DockRestore::save(*docks)));
}

bool PersistentWidget::eventFilter(QObject* watched, QEvent* event)
{
    const bool isWindow = watched == m_widget || watched == m_mainWindow;
    if (watched == m_widget && (event->type() == QEvent::Close || event->type() == QEvent::Show))
        m_isClosed = event->type() == QEvent::Close;
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Close:
    case QEvent::WindowStateChange:
        if (watched == m_widget && m_awaitsPlace && event->type() == QEvent::Move)
            m_startGeometry = m_widget->saveGeometry();
        if (isWindow)
            capture();
        else
            noteChange();
        break;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::LayoutRequest:
        // Docks come, go and move; their places are captured with the next write.
        noteChange();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::KeyPress:
        endAwaiting();
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
    if (event->type() == QEvent::Resize && watched == m_mainWindow && !m_awaitingState.isEmpty())
        QTimerHelpers::singleShot(0, this, [this] { Q_EMIT resized(); });
    return false;
}

void PersistentWidget::watch()
{
    if (m_widget)
        m_widget->installEventFilter(this);
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
    if (!m_mainWindow)
        return;
    const auto docks = m_mainWindow->findChildren<QDockWidget*>();
    for (QDockWidget* dock : docks)
        dock->installEventFilter(this);
}

// --- Applying ------------------------------------------------------------------------------------
// Every call into the toolkit may run handlers of the application, which may delete the widget.

void PersistentWidget::applyStart()
{
    unwatch();
    const bool isPlaced =
        !m_widget->isWindow() || m_widget->isVisible() || m_widget->testAttribute(Qt::WA_Moved);
    if (m_factoryGeometry.isEmpty()) {
        m_factoryGeometry = m_widget->saveGeometry();
        m_isFactoryPlaced = isPlaced;
    }
    const bool isStored = !m_geometryText.isEmpty();
    m_startGeometry =
        isStored ? WidgetPlacement::fromText(m_geometryText) : m_widget->saveGeometry();
    QSize size;
    if (isStored)
        size = WidgetPlacement::apply(*m_widget, m_startGeometry);
    if (m_widget)
        m_widget->show();
    applyCurrentLayout();
    if (isStored) {
        restoreGeometryIfMoved(m_startGeometry);
        awaitSize(size);
    }
    if (!isStored && !isPlaced) {
        m_awaitsPlace = true;
        QTimerHelpers::singleShot(placeMilliseconds, this, [this] { m_awaitsPlace = false; });
    }
    if (m_startMinimized == StartMinimized::Unknown)
        m_startMinimized = m_isMinimized ? StartMinimized::Yes : StartMinimized::No;
    if (m_isMinimized)
        minimizeLater();
    watch();
}

void PersistentWidget::applyCurrentLayout()
{
    const QMainWindow* docks = mainWindow();
    if (docks == nullptr)
        return;
    ModeLayout& layout = m_modes.current();
    const QByteArray present = DockRestore::save(*docks);
    if (layout.factoryState.isEmpty())
        layout.factoryState = present;
    const QByteArray state = Hexadecimal::decode(layout.stateText).value_or(QByteArray());
    if (layout.programStartState.isEmpty())
        layout.programStartState = state.isEmpty() ? present : state;
    if (state != present)
        restoreDocks(state);
}

void PersistentWidget::restoreDocks(const QByteArray& state)
{
    QMainWindow* docks = mainWindow();
    if (docks == nullptr || state.isEmpty() || m_isRestoringDocks)
        return;
    const QScopedValueRollback<bool> restoring(m_isRestoringDocks, true);
    const bool isInner = docks != m_widget;
    if (isInner)
        docks->removeEventFilter(this);
    DockRestore::restore(*docks, state);
    if (isInner && m_mainWindow)
        m_mainWindow->installEventFilter(this);
}

/// A window that is still on its way to its stored size, as maximized ones are, is too small for
/// its docks: they would come back squeezed. They are put in place again with each resizing until
/// the size is there, or somebody else arranges them.
void PersistentWidget::awaitSize(const QSize& size)
{
    m_awaitedSize = size;
    const QByteArray state =
        Hexadecimal::decode(m_modes.current().stateText).value_or(QByteArray());
    if (state.isEmpty() || !size.isValid() || m_mainWindow != m_widget || hasAwaitedSize())
        return;
    m_awaitingState = state;
    m_awaitedPlaces = DockRestore::places(*mainWindow());
    m_awaitingTimer = QTimerHelpers::singleShot(sizeMilliseconds, this, [this] {
        m_awaitingTimer.clear(); // It deletes itself.
        endAwaiting();
    });
}

/// True also without a widget.
bool PersistentWidget::hasAwaitedSize() const
{
    return !m_widget ||
           m_widget->size() ==
               m_awaitedSize.expandedTo(m_widget->minimumSize()).boundedTo(m_widget->maximumSize());
}

/// What has changed while the size was awaited is there to be captured now.
void PersistentWidget::endAwaiting()
{
    if (m_awaitingState.isEmpty())
        return;
    m_awaitingState.clear();
    m_awaitedPlaces.clear();
    delete m_awaitingTimer;
    noteChange();
}

void PersistentWidget::applyAwaited()
{
    if (DockRestore::isRearranged(m_awaitedPlaces))
        endAwaiting();
    if (m_awaitingState.isEmpty())
        return;
    restoreDocks(m_awaitingState);
    if (hasAwaitedSize() || mainWindow() == nullptr)
        endAwaiting();
    else if (!m_awaitingState.isEmpty())
        m_awaitedPlaces = DockRestore::places(*mainWindow());
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
    restore(m_startGeometry, &ModeLayout::programStartState);
    if (m_widget && m_startMinimized == StartMinimized::Yes)
        m_widget->showMinimized();
}

void PersistentWidget::restoreFactory()
{
    restore(m_factoryGeometry, &ModeLayout::factoryState);
    if (m_widget && !m_isFactoryPlaced) {
        QRect frame = m_widget->frameGeometry();
        frame.moveCenter(m_widget->screen()->availableGeometry().center());
        m_widget->move(frame.topLeft());
    }
}

void PersistentWidget::restore(const QByteArray& geometry, QByteArray ModeLayout::*state)
{
    if (!m_widget)
        return;
    endAwaiting();
    m_modes.reset(state);
    unwatch();
    if (!geometry.isEmpty()) {
        WidgetPlacement::apply(*m_widget, geometry);
        if (m_widget)
            m_widget->show();
    }
    const QByteArray docks = m_modes.current().*state;
    if (m_mainWindow && !docks.isEmpty()) {
        restoreDocks(docks);
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
    const bool isAwaiting = !m_awaitingState.isEmpty();
    endAwaiting();
    m_modes.setCurrent(mode);
    if (!m_widget)
        return;
    const QByteArray geometry = m_widget->saveGeometry();
    unwatch();
    if (!m_isClosed)
        m_widget->show();
    applyCurrentLayout();
    restoreGeometryIfMoved(geometry);
    if (isAwaiting)
        awaitSize(QSize(m_awaitedSize));
    watch();
    noteChange();
}

void PersistentWidget::storeFactory(quint32 mode)
{
    const QMainWindow* docks = mainWindow();
    if (!m_widget || docks == nullptr)
        return;
    ModeLayout& layout = m_modes.layout(mode);
    layout.factoryState = DockRestore::save(*docks);
    if (layout.stateText.isEmpty())
        layout.stateText = Hexadecimal::encode(layout.factoryState);
    noteChange();
}
