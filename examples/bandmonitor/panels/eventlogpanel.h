// SPDX-License-Identifier: MIT
#pragma once

#include "model/eventlog.h"
#include "panels/panel.h"

#include <QPointer>
#include <QTimer>

#include <chrono>
#include <deque>
#include <optional>

class QLabel;
class QLineEdit;
class QTreeWidgetItem;
class SortListView;
class SortListViewItem;

namespace bandmonitor {

/// The events of a log as a list that can be filtered, copied and saved.
///
/// New events are shown together, a few times a second at most, and only while the panel is
/// visible. As long as the list is scrolled to its end, it stays there.
class EventLogPanel : public Panel
{
    Q_OBJECT
public:
    enum Column { Time, Recorded, Kind, Text, ColumnCount };

    /// The log may go before the panel, which is empty then.
    explicit EventLogPanel(EventLog* log, QWidget* parent = nullptr);
    ~EventLogPanel() override;

    SortListView& list() { return *m_list; }
    /// The time between two updates of the list; 200 ms by default.
    void setUpdateInterval(std::chrono::milliseconds interval);
    /// Shows the events only that have the text in one of their columns, in any case.
    void setFilter(const QString& text);
    /// The selected rows as shown, or all when none is; see listText().
    QString text() const;
    /// All shown events, those that the list still waits for included.
    QString shownText();
    /// Writes all shown events. Returns what went wrong, one line for the user, or nothing.
    std::optional<QString> saveTo(const QString& path);
    /// Copy, Save, Clear and Go to the sweep.
    QList<QAction*> keyActions() const override { return m_actions; }

public Q_SLOTS:
    void refreshTexts() override;

Q_SIGNALS:
    /// The user wants to see the sweep that was shown at an event.
    void placeWanted(const EventPlace& place);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row
    {
        quint64 number;
        SortListViewItem* item; ///< Belongs to the list.
    };

    void buildList();
    void buildActions();
    void refresh();
    void update();
    void rebuild();
    void removeGone();
    void appendNew();
    bool matches(const Event& event) const;
    SortListViewItem* makeItem(const Event& event) const;
    void copy() const;
    void save();
    void goTo(const QTreeWidgetItem* row);
    void showCount();

    QPointer<EventLog> m_log;
    SortListView* m_list;
    QLineEdit* m_filter;
    QLabel* m_count;
    QList<QAction*> m_actions;
    QTimer m_rest;
    std::deque<Row> m_rows; ///< In the order of the events, those that match only.
    quint64 m_first = 0;    ///< The oldest event of the log when it was looked at.
    quint64 m_next = 0;     ///< The first event that was not looked at.
    bool m_isStale = false;
    bool m_followsEnd = true;
};

} // namespace bandmonitor
