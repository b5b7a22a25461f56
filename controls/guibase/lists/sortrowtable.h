// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QList>
#include <QPair>
#include <QPersistentModelIndex>
#include <QString>
#include <QTableWidget>

#include <memory>

/// A sortable table of frequencies and levels that the user fills row by row. Texts that are
/// numbers (with a point or a comma, a unit behind a blank may follow) sort as numbers, before all
/// other texts. Keys and pasting: docs/decisions/0012-keys-in-lists.md.
class GUIBASE_EXPORT SortRowTable : public QTableWidget
{
    Q_OBJECT
public:
    /// At most this many lines of the clipboard are taken at once.
    static constexpr int maximumPastedRows = 100'000;

    /// The name is the object name; may be null.
    explicit SortRowTable(QWidget* parent = nullptr, const char* name = nullptr);
    SortRowTable(int rows, int columns, QWidget* parent = nullptr, const char* name = nullptr);
    ~SortRowTable() override;

    /// The lines of a text with up to two values each, parted by a tab, a semicolon or, where there
    /// is neither, blanks; a unit behind a blank belongs to its number. Lines without a value are
    /// left out, and so is what is beyond `maximumPastedRows`: `left`, if given, is set to the
    /// number of these rows.
    static QList<QPair<QString, QString>> parseRows(const QString& text, qsizetype* left = nullptr);

    /// Appends rows in one step, sorted once.
    void addRows(const QList<QPair<QString, QString>>& rows);
    /// The selected cells as text, in the order in which they are shown. Unselected cells between
    /// and before them, from the first column on, are empty, so that each value is pasted into the
    /// column it came from; a single cell stands alone.
    QString selectionAsText() const;

    bool eventFilter(QObject* object, QEvent* event) override;

public Q_SLOTS:
    /// Appends a row and lets the user type its frequency.
    void slotNew();
    /// Removes the selected rows, after a question.
    void slotDelete();
    /// Removes all rows, without a question.
    void slotClearAll();
    /// Selected cells to the clipboard, as selectionAsText(); rows of the clipboard to the end, a
    /// single value into the current cell.
    void slotCopy();
    void slotPaste();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void init(const char* name);
    /// Returns the item of the frequency; null without that column.
    QTableWidgetItem* appendRow(const QString& frequency, const QString& level);
    void removeRows(QList<QPersistentModelIndex> rows);
    QList<int> rowsToDelete() const;

    struct Private;
    std::unique_ptr<Private> d;
};
