// SPDX-License-Identifier: MIT
#pragma once

#include "model/panenames.h"
#include "panels/panel.h"
#include "settings/sessionvalues.h"

#include <radiopanes/core/levelline.h>
#include <radiopanes/panes/frequencytext.h>

#include <QTimer>

#include <vector>

class QAction;
class QTableWidgetItem;
class SortRowTable;

namespace bandmonitor {

/// The table of reference levels with its buttons. Frequencies are shown in the application's unit,
/// whatever was typed; a row that cannot be read is marked and does not count. The rows are those
/// of the session's value, those that cannot be read as well; what the user changes is an undo
/// step.
class LevelsPanel : public Panel
{
    Q_OBJECT
public:
    explicit LevelsPanel(std::shared_ptr<SessionValues> values, QWidget* parent = nullptr);
    ~LevelsPanel() override;

    SortRowTable& table() { return *m_table; }
    /// The rows that can be read, in order of frequency.
    const std::vector<LevelPoint>& points() const { return m_points; }
    /// New, Delete and Clear.
    QList<QAction*> keyActions() const override { return m_actions; }

public Q_SLOTS:
    void refreshTexts() override;

Q_SIGNALS:
    /// points() are others now.
    void pointsChanged();

private:
    using Reader = std::optional<double> (*)(const QString& text);

    void buildLayout();
    /// Shows the rows of the value.
    void showRows();
    QString rowsText() const;
    void storeRows();
    void clearAll();
    /// Reads all rows after the present event: the table may change in many steps.
    void scheduleRead();
    void readRows();
    /// Whether the cell holds a value; reads it when its text is another one than before.
    bool readCell(QTableWidgetItem& cell, Reader reader);
    void mark(QTableWidgetItem& cell, bool readable);

    std::shared_ptr<SessionValues> m_values;
    FrequencyText m_text;
    SortRowTable* m_table;
    QList<QAction*> m_actions;
    QTimer m_readLater;
    std::vector<LevelPoint> m_points;
    bool m_isReading = false;
    SessionValues::Followers m_followers;
};

} // namespace bandmonitor
