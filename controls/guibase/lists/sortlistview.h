// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>
#include <guibase/lists/sortlistviewitem.h>

#include <QHeaderView>
#include <QString>
#include <QTreeWidget>

#include <memory>

class ISortCallback;
class ListSorter;
class QMenu;

/// A flat or shallow list of SortListViewItems that sorts its rows, lets the user hide columns, and
/// keeps its column widths under a name. It sorts when it is shown, when a header section is
/// clicked and when it is told to (see AllowSort()); a hidden view never reorders its rows.
///
/// Selection, expanded and hidden rows and the scroll position stay. Operations on columns that do
/// not exist, and on null items or items of other views, do nothing and return null, false or an
/// empty value. Keys: docs/decisions/0012-keys-in-lists.md.
class GUIBASE_EXPORT SortListView : public QTreeWidget
{
    Q_OBJECT
    /// See SetColumnWidthPersistantName().
    Q_PROPERTY(QString columnsName READ columnsName WRITE setColumnsName)
    /// See setColumnSelectionMenu().
    Q_PROPERTY(bool columnSelectionMenu READ hasColumnSelectionMenu WRITE setColumnSelectionMenu)
    /// See setPlacingArrivals().
    Q_PROPERTY(bool placingArrivals READ isPlacingArrivals WRITE setPlacingArrivals)
public:
    /// Returns a value below, equal to or above 0. Called with the texts of the two rows in reverse
    /// order: below 0 means that the row of the second text goes in front of that of the first.
    using CompareFunction = int (*)(const QString&, const QString&);

    /// The name is the object name; may be null.
    explicit SortListView(QWidget* parent = nullptr, const char* name = nullptr);
    ~SortListView() override;

    // --- Columns -------------------------------------------------------------------------------

    /// Returns the new number of columns.
    int addColumn(const QString& text);
    int columns() const;
    QString columnText(int column) const;
    void setColumnText(int column, const QString& text);
    /// Qt::Alignment flags for items made from now on, column 0 to 4095; columns before it that
    /// have none yet get the same.
    void setColumnAlignment(unsigned column, int alignment);
    /// Qt::AlignLeft where none was set.
    int columnAlignment(int column) const;
    void applyAlignment(QTreeWidgetItem* item) const;
    void setColumnWidthMode(int column, QHeaderView::ResizeMode mode);

    /// Keeps widths, order and hidden columns of the shown list under this name: a while after a
    /// change (GuiBase::SetLayoutWriteDelay()), when the list is hidden and at the end. Applies the
    /// stored ones now, and to further columns when they are added. Empty at start: nothing is
    /// kept.
    void SetColumnWidthPersistantName(const QString& name);
    /// The same, as forms call it.
    void setColumnsName(const QString& name) { SetColumnWidthPersistantName(name); }
    QString columnsName() const;
    void saveColumnStatus();
    /// Whether a right click on the header offers to hide and show the columns; off at start.
    void setColumnSelectionMenu(bool on);
    bool hasColumnSelectionMenu() const;

    // --- Sorting -------------------------------------------------------------------------------

    /// Room for the compare functions of `count` columns; new entries are null.
    void SetCompareFunctionLength(int count);
    /// Null: the texts are compared as they are. Ignored for a column without room.
    void SetCompareFunction(int column, CompareFunction function);
    bool HasSortFunction(int column) const;
    /// How the texts of two rows compare; 0 while the view is hidden, must not sort or has a sort
    /// callback.
    int SortFunction(int column, const QString& a, const QString& b) const;
    /// Not owned; must outlive the view or be set back to null.
    void SetSortCallback(ISortCallback* callback);
    /// Whether the view sorts at all; on at start.
    void AllowSort(bool allow);
    /// Whether rows that are appended to a shown list go to their places in the order that the list
    /// has; off at start. They go there together, in the next pass of the event loop or, when
    /// sorting takes long, a little later. The row at the upper edge of a scrolled view stays
    /// there. When it is switched off, rows that still wait stay where they are.
    ///
    /// A row that is put anywhere else (on top, after another row, with moveItem()) stays there,
    /// and so do rows appended after it, until the list is sorted again. Nothing is put in place
    /// while a sort callback is set.
    void setPlacingArrivals(bool on);
    bool isPlacingArrivals() const;
    /// A column that does not exist (-1): the rows stay as they are. An order that a shown list
    /// gets in other ways, through sortItems() or the header's sort indicator, is kept as well.
    void setSorting(int column, Qt::SortOrder order);
    void setSorting(int column, bool ascending);
    Qt::SortOrder GetColumnSortingOrder() const;
    void sort();
    void sortByColumn(int column, Qt::SortOrder order);

    /// Texts without regard to case.
    static int _compStandardString(const QString& x, const QString& y);
    /// Numbers as QString::toDouble() reads them; a text that is none equals all others.
    static int _compStandardNumeric(const QString& x, const QString& y);
    /// The numbers in front of the first blank. What follows does not count, so that all rows need
    /// the same unit: "500 kHz" is above "1 MHz". For mixed units, set a function that reads them.
    static int _compNumericWithSuffix(const QString& x, const QString& y);

    // --- The older navigation interface ----------------------------------------------------------

    /// Null when there is none; the first one of several selected rows.
    SortListViewItem* currentItem() const;
    SortListViewItem* selectedItem() const;
    /// The first row; nextChild() then walks through the others, to null at the end.
    SortListViewItem* firstChild();
    SortListViewItem* nextChild();
    int childCount() const;
    SortListViewItem* findItem(const QString& text, int column,
                               Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive) const;
    /// Takes the item, with its children, out of the view; it belongs to the caller then.
    void takeItem(QTreeWidgetItem* item);
    bool isSelected(const QTreeWidgetItem* item) const;
    void setSelected(QTreeWidgetItem* item, bool selected);
    void setShowSortIndicator(bool show);
    /// True: several rows can be selected, each on its own; false: one.
    void setMultiSelection(bool multi);
    void ensureItemVisible(const QTreeWidgetItem* item);
    QRect itemRect(const QTreeWidgetItem* item) const;
    using QTreeWidget::height;
    int height(const QTreeWidgetItem* item) const;

    /// What slotContextMenuRequested() shows; not owned. None at start.
    void setContextMenu(QMenu* menu);
    QMenu* contextMenu() const;

Q_SIGNALS:
    /// `item` is null beside the rows, `pos` global and `col` -1 beside the columns.
    void contextMenuRequested(SortListViewItem* item, QPoint pos, int col);
    /// Exactly one item is selected now.
    void selectionChanged(SortListViewItem* item);
    /// Null when the row is no SortListViewItem.
    void doubleClicked(SortListViewItem* item);
    /// The row was activated; null when it is no SortListViewItem.
    void clicked(SortListViewItem* item);
    /// For applications to emit; the view itself does not.
    void returnPressed(SortListViewItem* item);

public Q_SLOTS:
    /// Connected to the signals of the view and its header; derived lists may replace what they do.
    virtual void slotContextMenuRequested(SortListViewItem* item, QPoint pos, int col);
    /// `pos` in coordinates of the header's viewport.
    virtual void slotHeaderContextMenuRequested(QPoint pos);
    virtual void slotHeaderClicked(int column);
    virtual void slotSelectionChanged();
    virtual void slotDoubleClicked(QTreeWidgetItem* item, int column);
    virtual void slotClicked(QTreeWidgetItem* item, int column);
    virtual void slotExpanded(QTreeWidgetItem* item);
    virtual void slotCollapsed(QTreeWidgetItem* item);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void rowsInserted(const QModelIndex& parent, int first, int last) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    friend class SortListViewItem;

    struct Private;

    bool hasItem(const QTreeWidgetItem* item) const;
    QTreeWidgetItem* onlySelectedItem() const;
    ListSorter& sorter() const;
    void connectSignals();

    std::unique_ptr<Private> d;
};
