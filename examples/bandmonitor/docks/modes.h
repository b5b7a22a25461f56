// SPDX-License-Identifier: MIT
#pragma once

#include "docks/mode.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

class QAction;
class QWidget;
class Splitter;

namespace bandmonitor {

class PanelDocks;

/// Switches the window's layout with the mode: the docks around the centre, and in the centre
/// whether the waterfall is shown and where its border to the spectrum stands.
class Modes : public QObject
{
    Q_OBJECT
public:
    /// All of them must outlive this object.
    Modes(PanelDocks* panels, QWidget* waterfall, Splitter* splitter, QObject* parent);
    ~Modes() override;

    /// Shows the layout of the mode that was kept. For the constructor of the window, when all
    /// panels are known.
    void showKept();
    /// Tells the services which mode is current. Once the window is the main one, at every start.
    void announce();

    Mode mode() const { return m_mode; }
    void setMode(Mode mode);
    /// Shows and hides the waterfall in the current mode.
    QAction* waterfallAction() const { return m_waterfallAction; }
    static QString title(Mode mode);

Q_SIGNALS:
    /// Another mode is current now; its layout has been applied.
    void modeChanged(Mode mode);

private:
    /// The centre of a mode when it was entered first.
    struct Start
    {
        bool waterfall = true;
        QByteArray splitter;
    };

    void showWaterfall(bool shown);
    /// Shows what is kept for the centre in the current mode, else its factory layout.
    void enterCentre();
    void noteStart();
    void keepCentre();
    void toFactory();
    void toProgramStart();

    Mode m_mode = Mode::Search;
    PanelDocks* m_panels;
    QWidget* m_waterfall;
    Splitter* m_splitter;
    QAction* m_waterfallAction;
    PerMode<std::optional<Start>> m_starts;
};

} // namespace bandmonitor
