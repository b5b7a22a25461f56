// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <array>
#include <map>
#include <vector>

class QAction;
class QWidget;
class Splitter;

namespace bandmonitor {

/// What the user is doing; each has a layout of its own. The numbers are kept in the configuration.
enum class Mode : int { Search = 0, Measure = 1, Plan = 2 };
inline constexpr std::size_t modeCount = 3;

/// Switches the window's layout with the mode: which panes are shown and where the splitters stand.
/// Docks and tool bars are the services' matter, which are told the mode.
class Modes : public QObject
{
    Q_OBJECT
public:
    template <typename T>
    using PerMode = std::array<T, modeCount>;

    explicit Modes(QObject* parent = nullptr);
    ~Modes() override;

    /// `name` is kept in the configuration and must have no blanks. The pane must outlive this
    /// object or not be switched any more. Returns an action that shows and hides the pane.
    QAction* addPane(QWidget* pane, const QString& name, const QString& title,
                     const PerMode<bool>& shown);
    /// A splitter without a shown pane is hidden. Inner splitters come before outer ones.
    void addSplitter(Splitter* splitter, const PerMode<QList<int>>& sizes);

    /// Shows the layout of the mode that was kept. For the constructor of the window, when all
    /// panes and splitters are known.
    void showKept();
    /// Tells the services the modes and their factory layouts, and which one is current. Once the
    /// window is the main one, at every start: factory layouts are not kept.
    void announce();

    Mode mode() const { return m_mode; }
    void setMode(Mode mode);
    void setPaneShown(const QString& name, bool shown);
    bool isPaneShown(const QString& name) const;
    static QString title(Mode mode);

Q_SIGNALS:
    void modeChanged(Mode mode);

private:
    struct Pane
    {
        QWidget* widget;
        QString name;
        PerMode<bool> factory;
        QAction* action;
    };
    struct SplitterEntry
    {
        Splitter* splitter;
        PerMode<QList<int>> factory;
    };
    /// The layout of a mode when it was entered first.
    struct Start
    {
        QStringList panes;
        std::vector<QByteArray> splitters;
    };

    std::size_t index() const { return static_cast<std::size_t>(m_mode); }
    QStringList factoryPanes() const;
    QStringList shownPanes() const;
    void showPanes(const QStringList& names);
    /// Shows what is kept for the current mode, else its factory layout.
    void enter();
    /// Keeps the layout that is shown now for the current mode.
    void keep();
    void toFactory();
    void toProgramStart();

    Mode m_mode = Mode::Search;
    std::vector<Pane> m_panes;
    std::vector<SplitterEntry> m_splitters;
    std::map<Mode, Start> m_starts;
};

} // namespace bandmonitor
