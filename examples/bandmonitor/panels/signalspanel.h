// SPDX-License-Identifier: MIT
#pragma once

#include "model/panenames.h"
#include "model/signalwatch.h"
#include "panels/panel.h"

#include <radiopanes/panes/frequencytext.h>

#include <QElapsedTimer>
#include <QIcon>
#include <QTimer>

#include <chrono>
#include <map>
#include <unordered_map>

class CheckSortListViewItem;
class SortListView;
class SortListViewItem;

namespace bandmonitor {

/// The list of the signals that a SignalWatch follows, one row each. Rows are changed in place, and
/// the list is sorted once for all changes of a sweep. While sweeps come fast it waits in between.
class SignalsPanel : public Panel
{
    Q_OBJECT
public:
    enum Column { Follow, Frequency, Level, Bandwidth, Type, FirstSeen, LastSeen, ColumnCount };

    /// The watch must outlive the pane.
    explicit SignalsPanel(const SignalWatch* watch, QWidget* parent = nullptr);
    ~SignalsPanel() override;

    SortListView& list() { return *m_list; }
    /// The time between two updates of the list; 200 ms by default.
    void setUpdateInterval(std::chrono::milliseconds interval);
    /// The track that the cursor follows; 0 for none. A track that is not in the list is ignored.
    /// When the watch begins anew, the new track at the same frequency takes its place.
    void follow(std::uint32_t id);
    std::uint32_t followed() const { return m_followed; }
    /// The signals as the list shows them, under its titles; see listText().
    QString text();
    /// Copy.
    QList<QAction*> keyActions() const override { return {m_copy}; }

public Q_SLOTS:
    /// The watch has other tracks now. The list follows at once, or when its rest is over.
    void refresh();
    /// Also when the colours have changed.
    void refreshTexts() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Row
    {
        CheckSortListViewItem* item = nullptr; ///< Belongs to the list.
        SignalTrack shown;
    };

    void buildColumns();
    void update();
    void removeGone();
    Row& addRow(const SignalTrack& track);
    /// True when what the list is sorted by has changed.
    bool fillRow(Row& row, const SignalTrack& track, bool anew);
    bool setCell(Row& row, Column column, const QString& text, const QString& key);
    void showType(Row& row, char type);
    void choose(SortListViewItem* item);
    void checkToggled(std::uint32_t id, bool on);
    void tellFollowed();
    void followSuccessor();

    const SignalWatch* m_watch;
    FrequencyText m_text;
    SortListView* m_list;
    std::unordered_map<std::uint32_t, Row> m_rows;
    std::map<char, QIcon> m_typeIcons;
    QAction* m_copy;
    QTimer m_rest;
    std::uint32_t m_followed = 0;
    Signal m_followedSignal; ///< As it was last seen.
    QString m_day;           ///< That of the shown sweep.
    bool m_isStale = false;
    bool m_isUpdating = false;
};

} // namespace bandmonitor
