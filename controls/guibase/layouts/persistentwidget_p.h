// SPDX-License-Identifier: MIT
#pragma once

#include "modetable_p.h"
#include "sizewait_p.h"
#include "windowplaces_p.h"
#include "windowrecord_p.h"

#include <trovappstartup/savecomponentif.h>
#include <valueframework/persistant.h>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

class QMainWindow;
class QTimer;

/// Keeps the geometry of one window, and its dock layout in each mode, from run to run, in a
/// configuration record of its own. The widget is not owned; what it looked like last is remembered
/// with every change, so that it can be written also after the widget is gone. A damaged record is
/// kept aside, once, under its name followed by "_damaged".
class PersistentWidget : public QObject, public PersistantOwner, public SaveComponentIf
{
    Q_OBJECT
public:
    PersistentWidget(QWidget* widget, const QString& recordName);
    ~PersistentWidget() override;

    /// The name without what the configuration cannot hold in names: forbidden character references
    /// and colons go, blanks become '_'.
    static QString cleanedName(QString name);

    QWidget* widget() const;
    /// Tells this widget from others also while, and after, it is destroyed.
    bool watches(const QObject* object) const;
    /// Reads the record, applies it to the widget and shows the widget. To be called once.
    void read();
    /// Writes the record, unless it would be the same as the one read or written last.
    void write();
    /// Writes only if something has changed since the last write.
    void writeChanges();
    void restoreProgramStart();
    void restoreFactory();
    /// Takes over what the widget looks like now. Docks that close only because their window or the
    /// application does are no change.
    void capture();
    /// The application starts to end, or goes on after all. In between the toolkit closes floating
    /// docks: they are not captured as closed, and giveUpEnd() opens them again.
    void beginEnd();
    void giveUpEnd();
    void applyAwaited();
    /// Brings the window and its floating docks back to a screen, if the user can no longer take
    /// them.
    void makeReachable();
    /// Captures the dock layout of the current mode, applies that of another one and shows the
    /// widget unless it was closed.
    void setMode(quint32 mode);
    /// Makes the present dock layout the factory layout of the mode; the current mode stays.
    void storeFactory(quint32 mode);
    bool hasLayout(quint32 mode) const { return m_modes.isKnown(mode); }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void ApplyPersistantBeforeWrite() override;
    void ApplyPersistantAfterRead() override;
    void Save() override;
    /// Nothing: the record is read once.
    void Load() override;
    void CommitData() override;

    /// From a program start until a window that was minimized is minimized again.
    static constexpr int minimizeMilliseconds = 1500;

Q_SIGNALS:
    /// Something to be written has changed; emitted at every change.
    void changed();
    /// The main window was resized while docks wait for that: applyAwaited() must be called, by
    /// somebody who keeps this object alive during the call.
    void resized();

public Q_SLOTS:
    void slotWidgetDestroyed(QObject* object);

private:
    enum class StartMinimized : quint8 { No = 0, Yes = 1, Unknown = 2 };

    QMainWindow* mainWindow() const;
    WindowRecord::Content content() const;
    void captureDocks();
    void captureDocksSoon();
    void noteVisibility(const QEvent& event);
    void applyStart();
    void applyCurrentLayout(DockRestore::EdgeDocks edgeDocks);
    void restore(const QByteArray& geometry, DockLayout ModeLayout::*former);
    void restoreDocks(const DockLayout& layout, DockRestore::EdgeDocks edgeDocks);
    void awaitSize(const QSize& size);
    void restoreGeometryIfMoved(const QByteArray& geometry);
    void minimizeLater();
    void watch();
    void unwatch();
    void watchDocks();
    void noteChange();
    template <typename T>
    void update(T& member, const T& value);

    QPointer<QWidget> m_widget;
    /// A QMainWindow, as an object: while it is destroyed it is no QMainWindow any more.
    QPointer<QObject> m_mainWindow;
    bool m_hasMainWindow;
    const QObject* m_identity;
    WindowRecord m_record;

    bool m_isMinimized = false;
    bool m_isClosed = false; ///< By the user or with QWidget::close(), and not shown since.
    bool m_isEnding = false;
    std::vector<QPointer<QDockWidget>> m_openAtEnd; ///< The floating docks that were.
    StartMinimized m_startMinimized = StartMinimized::Unknown;
    QByteArray m_geometry; ///< The latest.
    WindowPlaces m_places;
    ModeTable m_modes;
    SizeWait m_sizeWait;
    QPointer<QTimer> m_captureTimer;
    bool m_isChanged = false;
    bool m_isWriting = false;
    /// The toolkit cannot restore a main window from within its own restoring.
    bool m_isRestoringDocks = false;
};
