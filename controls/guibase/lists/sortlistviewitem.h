// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QTreeWidgetItem>

#include <concepts>
#include <memory>

class SortListView;

/// A row of a SortListView, also of a plain QTreeWidget: texts, and optionally keys that it is
/// sorted by in their place. It belongs to its tree as all QTreeWidgetItems do; with a null tree or
/// parent it belongs to the caller.
///
/// The constructors put the texts into the columns from 0 on, up to the first null QString behind
/// column 0. A row behind `after` goes first when `after` is null or stands elsewhere.
class GUIBASE_EXPORT SortListViewItem : public QTreeWidgetItem
{
public:
    enum { Type = QTreeWidgetItem::UserType + 0x4c56 };

    /// Appended to the tree, without texts.
    explicit SortListViewItem(QTreeWidget* tree)
        : SortListViewItem(tree, QStringList())
    {}
    /// For bool alone: a pointer, such as a text in quotes, would silently turn into one.
    SortListViewItem(QTreeWidget* tree, std::same_as<bool> auto insertOnTop)
        : SortListViewItem(tree, QStringList(), insertOnTop)
    {}
    SortListViewItem(QTreeWidget* tree, const QString& text1, const QString& text2 = {},
                     const QString& text3 = {}, const QString& text4 = {},
                     const QString& text5 = {}, const QString& text6 = {},
                     const QString& text7 = {}, const QString& text8 = {},
                     bool insertOnTop = false);
    SortListViewItem(QTreeWidgetItem* parent, const QString& text1, const QString& text2 = {},
                     const QString& text3 = {}, const QString& text4 = {},
                     const QString& text5 = {}, const QString& text6 = {},
                     const QString& text7 = {}, const QString& text8 = {});
    SortListViewItem(QTreeWidget* tree, QTreeWidgetItem* after, const QString& text1 = {},
                     const QString& text2 = {}, const QString& text3 = {},
                     const QString& text4 = {}, const QString& text5 = {},
                     const QString& text6 = {}, const QString& text7 = {},
                     const QString& text8 = {});
    SortListViewItem(QTreeWidgetItem* parent, QTreeWidgetItem* after, const QString& text1 = {},
                     const QString& text2 = {}, const QString& text3 = {},
                     const QString& text4 = {}, const QString& text5 = {},
                     const QString& text6 = {}, const QString& text7 = {},
                     const QString& text8 = {});
    /// All texts of the list, whether null or not.
    SortListViewItem(QTreeWidget* tree, const QStringList& texts, bool insertOnTop = false);
    ~SortListViewItem() override;
    SortListViewItem(const SortListViewItem&) = delete;
    SortListViewItem& operator=(const SortListViewItem&) = delete;

    /// The order of the view's sort column. The sort keys count where both rows have one, else the
    /// texts; by SortListView::SortFunction(), or as plain texts in another tree.
    bool operator<(const QTreeWidgetItem& other) const override;

    /// The view that the row is in; null when its tree is another widget or it has none.
    SortListView* listView() const;

    // --- Sort keys -------------------------------------------------------------------------------

    /// Room for the keys of `count` columns; new keys are empty.
    void SetColCount(int count);
    /// Ignored for a column without room.
    void SetSortKey(int column, const QString& key);
    QString GetSortKey(int column) const;
    /// Whether there is a key that is not empty.
    bool HasSortKey(int column) const;

    // --- Hooks -----------------------------------------------------------------------------------

    /// The row was expanded or collapsed in a SortListView. Does nothing.
    virtual void setOpen(bool open);
    /// The row was activated in a SortListView. Does nothing.
    virtual void activate();
    virtual void sortChildItems(int column, bool ascending);

    // --- Pictures --------------------------------------------------------------------------------

    /// Sets the icon of the column.
    void setPixmap(int column, const QPixmap& pixmap);
    /// The column's icon, at most 22 by 22; null pixmap without icon. One picture per row is kept:
    /// the pointer is good, and its content the same, until the next call for this row.
    const QPixmap* pixmap(int column) const;

    // --- The older navigation interface ---------------------------------------------------------

    /// Takes the row out of its tree and puts it, as a top-level row, at the index that `after` had
    /// before that. Nothing happens when `after` is no other top-level row of the same tree.
    void moveItem(QTreeWidgetItem* after);
    SortListViewItem* firstChild();
    SortListViewItem* nextChild();
    /// Moves the parent's nextChild() on; for a top-level row the item shown below.
    SortListViewItem* nextSibling();
    SortListViewItem* itemAbove() const;
    SortListViewItem* itemBelow() const;
    bool isOpen() const;
    /// In pixels; 0 when the row is not shown.
    int height() const;
    /// True: the sign for children is shown even without any. False: it is never shown.
    void setExpandable(bool expandable);

private:
    friend class ListSorter;
    struct Extras;

    void setTexts(std::initializer_list<const QString*> texts);
    void insertInto(QTreeWidget* tree, int row);
    Extras& extras() const;

    /// Sort keys, picture and child cursor, which few rows have.
    mutable std::unique_ptr<Extras> m_extras;
    // The last sort that read this row, the row's number in it, and what orders the rows.
    quint32 m_sortRun = 0;
    quint32 m_sortRow = 0;
    double m_sortRank = 0;
};
