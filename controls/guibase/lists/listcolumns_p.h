// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <vector>

class ColumnMenu;
class QTreeWidgetItem;
class SortListView;

/// The columns of a SortListView: their titles and alignments, the menu that hides and shows them,
/// and what is kept of them under a name.
class ListColumns
{
public:
    explicit ListColumns(SortListView& view);
    ~ListColumns();
    ListColumns(const ListColumns&) = delete;
    ListColumns& operator=(const ListColumns&) = delete;

    bool has(int column) const;
    void add(const QString& text);
    QString text(int column) const;
    void setText(int column, const QString& text);

    void setAlignment(unsigned column, int alignment);
    int alignment(int column) const;
    void applyAlignment(QTreeWidgetItem& item) const;

    void setName(const QString& name);
    const QString& name() const { return m_name; }
    /// The view has got further columns.
    void applyFrom(int firstColumn, int count);
    void keep();
    void store();

    void setHasMenu(bool on) { m_hasMenu = on; }
    bool hasMenu() const { return m_hasMenu; }
    /// `pos` is global. The view may be gone afterwards.
    void runMenu(QPoint pos);

private:
    SortListView& m_view;
    ColumnMenu* m_menu;
    bool m_hasMenu = false;
    QString m_name;
    QStringList m_labels;
    std::vector<int> m_alignments;
};
