// SPDX-License-Identifier: MIT
#pragma once

#include "docks/mode.h"

#include <QByteArray>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QSize>
#include <QString>
#include <QTimer>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QDockWidget;
class QMainWindow;
class QWidget;

namespace QMainWindowHelpers {
class AutoHideSupport;
}

namespace bandmonitor {

class Panel;

/// Where a panel stands in the factory layout of a mode.
struct PanelPlace
{
    enum Shown {
        Hidden,
        Beside, ///< Beside, or in a side area below, the panels before it in its area.
        Tabbed, ///< Behind the panel before it in its area.
    };

    Qt::DockWidgetArea area = Qt::BottomDockWidgetArea;
    Shown shown = Hidden;
    /// In pixels. Along its area a panel gets a share in proportion to the others beside it.
    QSize size;
};

/// One row of the table of panels.
struct PanelRow
{
    QString name;  ///< Kept in the configuration; no blanks.
    QString title; ///< With the mnemonic of its menu entry.
    QIcon icon;
    std::function<Panel*(QWidget* parent)> make; ///< Called once at most.
    PerMode<PanelPlace> places;
};

/// The docks around the centre of the main window, a panel in each one: docks that the user can
/// move, tab, tile, float, maximize and hide automatically, with a layout per mode. A panel is made
/// when its dock is shown for the first time, so that a window starts with those that are seen.
/// Owned by the main window.
class PanelDocks : public QObject
{
    Q_OBJECT
public:
    /// Sets the window up for docks.
    explicit PanelDocks(QMainWindow& window);
    ~PanelDocks() override;

    /// The order of the calls is that of menus, and of panels in an area. A row that is added here
    /// is all that a new panel needs.
    void add(const PanelRow& row);
    /// Makes the panel of the dock, unless it is there already.
    void makePanel(QDockWidget& dock);
    /// Makes all panels that are not there yet.
    void makePanels();
    /// The window that the sizes in the rows are meant for. In a smaller one panels are smaller.
    static constexpr QSize windowSize{1100, 800};

    /// Factory layout of the mode, for a window that was not announced yet.
    void arrange(Mode mode);
    /// Shows the docks as they were in the mode last, else in its factory layout. Once the window
    /// is registered.
    void showMode(Mode mode);
    /// Once the services have brought back the dock layouts at program start: shows that of the
    /// mode, and brings back what hides itself.
    void showProgramStart(Mode mode);
    /// Shows the factory layout of the mode, made for the present size of the window.
    void showFactory(Mode mode);

    QMainWindow& window() const { return m_window; }
    /// Those that are made, in the order of the rows.
    QList<Panel*> panels() const;
    /// The docks, in the order of the panels.
    const QList<QDockWidget*>& docks() const { return m_docks; }
    /// Null without a panel of this name.
    QDockWidget* dock(const QString& name) const;
    /// The dock that the user last worked in, or null.
    QDockWidget* activeDock() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The panel is in its dock now.
    void panelMade(Panel* panel);

private:
    void markActive(QDockWidget* active);
    /// Behind another tab nobody sees which dock is the active one: the one in front takes over.
    void activateFront();
    /// `autoHide` takes the place of what was kept; null for what was kept.
    void show(Mode mode, const QByteArray* autoHide);

    QMainWindow& m_window;
    std::vector<PanelRow> m_rows;
    QList<QDockWidget*> m_docks;
    QMainWindowHelpers::AutoHideSupport* m_autoHide;
    QByteArray m_nothingHides;
    PerMode<std::optional<QByteArray>> m_autoHideAtStart; ///< Of the modes that were shown.
    QTimer m_activateFront;
    /// While the docks stand as arrange() has left them: the mode, and the size of the window then.
    std::optional<std::pair<Mode, QSize>> m_arranged;
};

} // namespace bandmonitor
