// SPDX-License-Identifier: MIT
#include "checksortlistviewitem.h"

#include <QCheckBox>
#include <QTreeWidget>

CheckSortListViewItem::CheckSortListViewItem(QTreeWidget* tree, const QString& text1,
                                             const QString& text2, const QString& text3,
                                             const QString& text4, const QString& text5,
                                             const QString& text6, const QString& text7,
                                             const QString& text8, bool insertOnTop)
    : SortListViewItem(tree, text1, text2, text3, text4, text5, text6, text7, text8, insertOnTop)
{
    init();
}

CheckSortListViewItem::CheckSortListViewItem(QTreeWidgetItem* parent, const QString& text1,
                                             const QString& text2, const QString& text3,
                                             const QString& text4, const QString& text5,
                                             const QString& text6, const QString& text7,
                                             const QString& text8)
    : SortListViewItem(parent, text1, text2, text3, text4, text5, text6, text7, text8)
{
    init();
}

CheckSortListViewItem::CheckSortListViewItem(QTreeWidget* tree, QTreeWidgetItem* after,
                                             const QString& text1, const QString& text2,
                                             const QString& text3, const QString& text4,
                                             const QString& text5, const QString& text6,
                                             const QString& text7, const QString& text8)
    : SortListViewItem(tree, after, text1, text2, text3, text4, text5, text6, text7, text8)
{
    init();
}

CheckSortListViewItem::CheckSortListViewItem(QTreeWidgetItem* parent, QTreeWidgetItem* after,
                                             const QString& text1, const QString& text2,
                                             const QString& text3, const QString& text4,
                                             const QString& text5, const QString& text6,
                                             const QString& text7, const QString& text8)
    : SortListViewItem(parent, after, text1, text2, text3, text4, text5, text6, text7, text8)
{
    init();
}

CheckSortListViewItem::CheckSortListViewItem(QTreeWidget* tree, const QStringList& texts,
                                             bool insertOnTop)
    : SortListViewItem(tree, texts, insertOnTop)
{
    init();
}

CheckSortListViewItem::~CheckSortListViewItem()
{
    QObject::disconnect(m_connection);
    // The tree deletes the check boxes of top-level rows, but forgets those of rows below them.
    if (m_checkBox)
        m_checkBox->deleteLater();
}

void CheckSortListViewItem::init()
{
    static quint64 counter = 0;
    m_name = QStringLiteral("Check_%1").arg(counter++);
    m_label = text(0);
    setText(0, QString());
    restoreCheckBox();
}

void CheckSortListViewItem::restoreCheckBox()
{
    QTreeWidget* const tree = treeWidget();
    if (tree != nullptr && (!m_checkBox || tree->itemWidget(this, 0) != m_checkBox))
        makeCheckBox(*tree);
}

void CheckSortListViewItem::makeCheckBox(QTreeWidget& tree)
{
    QObject::disconnect(m_connection);
    if (m_checkBox) {
        m_label = m_checkBox->text();
        m_checkBox->deleteLater();
    }
    auto checkBox = std::make_unique<QCheckBox>(m_label);
    checkBox->setObjectName(m_name);
    checkBox->setTristate(m_isTristate);
    checkBox->setCheckState(m_state);
    m_connection = QObject::connect(checkBox.get(), &QCheckBox::stateChanged, checkBox.get(),
                                    [this](int state) { m_state = Qt::CheckState(state); });
    m_checkBox = checkBox.get();
    tree.setItemWidget(this, 0, checkBox.release());
}

void CheckSortListViewItem::SetId(int id)
{
    m_id = id;
}

int CheckSortListViewItem::GetId() const
{
    return m_id;
}

void CheckSortListViewItem::setOn(bool on)
{
    setState(on ? Qt::Checked : Qt::Unchecked);
}

bool CheckSortListViewItem::isOn() const
{
    return state() != Qt::Unchecked;
}

Qt::CheckState CheckSortListViewItem::state() const
{
    return m_checkBox ? m_checkBox->checkState() : m_state;
}

void CheckSortListViewItem::setState(Qt::CheckState state)
{
    restoreCheckBox();
    m_state = state;
    m_isTristate = m_isTristate || state == Qt::PartiallyChecked;
    if (m_checkBox)
        m_checkBox->setCheckState(state);
}

bool CheckSortListViewItem::isTristate() const
{
    return m_checkBox ? m_checkBox->isTristate() : m_isTristate;
}

void CheckSortListViewItem::setTristate(bool tristate)
{
    restoreCheckBox();
    m_isTristate = tristate;
    if (m_checkBox)
        m_checkBox->setTristate(tristate);
}
