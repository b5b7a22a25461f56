// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/lists/sortlistviewitem.h>

#include <QMetaObject>
#include <QPointer>

class QCheckBox;

/// A row whose first column is a check box with the text of that column.
///
/// The text of column 0 itself is empty: rows that are to be sorted by it need sort keys. The check
/// box belongs to the tree, which deletes it when the row is taken out; the row keeps the state and
/// gets a new check box when it comes into a tree again: at once in a SortListView, in another
/// QTreeWidget after moveItem() or with the next change of its state.
class GUIBASE_EXPORT CheckSortListViewItem : public SortListViewItem
{
public:
    /// As those of SortListViewItem; the check box is not checked at first.
    explicit CheckSortListViewItem(QTreeWidget* tree)
        : CheckSortListViewItem(tree, QStringList())
    {}
    CheckSortListViewItem(QTreeWidget* tree, std::same_as<bool> auto insertOnTop)
        : CheckSortListViewItem(tree, QStringList(), insertOnTop)
    {}
    CheckSortListViewItem(QTreeWidget* tree, const QString& text1, const QString& text2 = {},
                          const QString& text3 = {}, const QString& text4 = {},
                          const QString& text5 = {}, const QString& text6 = {},
                          const QString& text7 = {}, const QString& text8 = {},
                          bool insertOnTop = false);
    CheckSortListViewItem(QTreeWidgetItem* parent, const QString& text1, const QString& text2 = {},
                          const QString& text3 = {}, const QString& text4 = {},
                          const QString& text5 = {}, const QString& text6 = {},
                          const QString& text7 = {}, const QString& text8 = {});
    CheckSortListViewItem(QTreeWidget* tree, QTreeWidgetItem* after, const QString& text1 = {},
                          const QString& text2 = {}, const QString& text3 = {},
                          const QString& text4 = {}, const QString& text5 = {},
                          const QString& text6 = {}, const QString& text7 = {},
                          const QString& text8 = {});
    CheckSortListViewItem(QTreeWidgetItem* parent, QTreeWidgetItem* after,
                          const QString& text1 = {}, const QString& text2 = {},
                          const QString& text3 = {}, const QString& text4 = {},
                          const QString& text5 = {}, const QString& text6 = {},
                          const QString& text7 = {}, const QString& text8 = {});
    CheckSortListViewItem(QTreeWidget* tree, const QStringList& texts, bool insertOnTop = false);
    ~CheckSortListViewItem() override;

    /// A number that the application gives a meaning; 0 at start.
    void SetId(int id);
    int GetId() const;

    /// The state is that of the check box. Qt::PartiallyChecked makes it tristate.
    virtual void setOn(bool on);
    bool isOn() const;
    Qt::CheckState state() const;
    void setState(Qt::CheckState state);
    bool isTristate() const;
    void setTristate(bool tristate);

    /// Gives the row a check box when it is in a tree and has none there.
    void restoreCheckBox();

private:
    void init();
    void makeCheckBox(QTreeWidget& tree);

    int m_id = 0;
    QString m_name;
    QString m_label;
    Qt::CheckState m_state = Qt::Unchecked;
    bool m_isTristate = false;
    QPointer<QCheckBox> m_checkBox;
    QMetaObject::Connection m_connection;
};
