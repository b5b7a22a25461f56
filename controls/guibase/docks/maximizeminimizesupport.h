// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

#include <memory>

class QAction;
class QDockWidget;

namespace QDockWidgetHelpers {

/// The states of a floating dock, with their names.
struct GUIBASE_EXPORT MaximizeMinimizeSupport_DockWidgetState
{
    /// What a floating dock can be.
    enum Type : int {
        Normal,
        Maximized,
        Minimized,
    };

    /// All states, in ascending order.
    static const QList<Type>& values();
    /// The English name; a null text for any other number.
    static QString toString(Type state);
    /// The translated name; a null text for any other number.
    static QString toDisplayString(Type state);
    /// The first state whose English name begins with the text, in either case and without the
    /// blanks around it. Sets `ok` (may be null); Normal when no name fits or the text is empty.
    static Type fromString(const QString& text, bool* ok);

    MaximizeMinimizeSupport_DockWidgetState() = delete;
};

struct MaximizeMinimizeSupportPrivate;

/// Lets a floating dock be maximized, minimized and restored like a window, with an action for each
/// that shows only while it is possible. A docked widget can do none of the three, and one that
/// hides at the edge is neither maximized nor minimized: its place is there.
///
/// The support belongs to its dock. It remembers the state it has put the dock into, and brings
/// that state back when the dock floats again after having been docked or hidden. When the dock
/// begins to hide at the edge, the state ends and is forgotten.
class GUIBASE_EXPORT MaximizeMinimizeSupport : public QObject
{
    Q_OBJECT
public:
    /// The states, under a shorter name.
    using State = MaximizeMinimizeSupport_DockWidgetState;

    /// The support of this dock, or null.
    static MaximizeMinimizeSupport* get(const QDockWidget& dock);
    /// The support of this dock; made when there is none yet.
    static MaximizeMinimizeSupport* install(QDockWidget& dock);
    ~MaximizeMinimizeSupport() override;

    /// Null while the dock is being destroyed.
    QDockWidget* dockWidget() const;
    QAction& maximizeDockWidgetAction() const;
    QAction& minimizeDockWidgetAction() const;
    QAction& restoreDockWidgetAction() const;

    /// The state that the support last put the dock into; what the user does through the window
    /// manager does not change it.
    State::Type dockWidgetState();
    bool isMaximizeDockWidgetPossible() const;
    bool isMinimizeDockWidgetPossible() const;
    bool isRestoreDockWidgetPossible() const;

    /// The same for any dock, read from its window.
    static State::Type dockWidgetState(const QDockWidget& dock);
    static bool isMaximizeDockWidgetPossible(const QDockWidget& dock);
    static bool isMinimizeDockWidgetPossible(const QDockWidget& dock);
    static bool isRestoreDockWidgetPossible(const QDockWidget& dock);
    /// False, with nothing changed, when it is not possible.
    static bool maximizeDockWidget(QDockWidget& dock);
    static bool minimizeDockWidget(QDockWidget& dock);
    static bool restoreDockWidget(QDockWidget& dock);

    /// Lets a hidden dock that floats appear maximized; its present geometry is the one that it
    /// goes back to when it is restored. False, with nothing changed, for a dock that is visible or
    /// docked, or hides at the edge.
    bool maximizeWhenShown();
    /// The same for any dock without a support.
    static bool maximizeWhenShown(QDockWidget& dock);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The current answer: it has changed, or the dock was shown or moved and it may be the same.
    void isMaximizeDockWidgetPossibleChanged(bool possible);
    /// As for maximizing.
    void isMinimizeDockWidgetPossibleChanged(bool possible);
    /// As for maximizing.
    void isRestoreDockWidgetPossibleChanged(bool possible);
    /// The state that the support has put the dock into; also sent with the same state, as above.
    void
    dockWidgetStateChanged(QDockWidgetHelpers::MaximizeMinimizeSupport_DockWidgetState::Type state);

public Q_SLOTS:
    /// False, with nothing changed, when it is not possible.
    bool maximizeDockWidget();
    bool minimizeDockWidget();
    /// Also gives the dock the geometry back that it had before it was maximized or minimized.
    bool restoreDockWidget();

protected Q_SLOTS:
    /// Connected to the signals of the dock.
    void onFloatingStateChanged();
    void onDockLocationChanged(Qt::DockWidgetArea area);
    void onDockWidgetDestroyed();

private:
    explicit MaximizeMinimizeSupport(QDockWidget& dock);

    friend struct MaximizeMinimizeSupportPrivate;
    std::unique_ptr<MaximizeMinimizeSupportPrivate> d;
};

} // namespace QDockWidgetHelpers

Q_DECLARE_METATYPE(QDockWidgetHelpers::MaximizeMinimizeSupport_DockWidgetState::Type)
