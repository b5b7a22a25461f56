// SPDX-License-Identifier: MIT
#include "colorrows_p.h"

#include <guibase/colors/colorcontrast.h>
#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorslotgroups.h>
#include <guibase/services/guibase.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>

#include <algorithm>

namespace {

/// Signal types are named by the services, all others by their row of the table.
QString textOf(const ColorSlotRow& row)
{
    if (row.text != nullptr)
        return QCoreApplication::translate("ColorsCtrl", row.text);
    return GuiBase::Instance().GetSignalType(
        static_cast<char>('a' + row.slot - IColorBase::SignalTypeA));
}

bool holds(const QTreeWidgetItem& row, const QString& text)
{
    return row.text(0).contains(text, Qt::CaseInsensitive) ||
           row.text(1).contains(text, Qt::CaseInsensitive);
}

} // namespace

ColorRows::ColorRows(QWidget* parent)
    : SortListView(parent, "Colors")
{
    AllowSort(false);
    setAllColumnsShowFocus(true);
    setRootIsDecorated(true);
    addColumn(QCoreApplication::translate("ColorsCtrl", "Control"));
    addColumn(QCoreApplication::translate("ColorsCtrl", "Element"));
}

void ColorRows::populate(quint32 mask)
{
    m_rows.clear();
    clear();
    for (const ColorSlotGroup& group : ColorSlotGroups::all) {
        if (group.isShown(mask))
            addGroup(group);
    }
    if (topLevelItemCount() > 0) {
        topLevelItem(0)->setExpanded(true);
        setCurrentItem(topLevelItem(0));
    }
    resizeColumnToContents(0);
    header()->resizeSection(0, std::max(header()->sectionSize(0), 16 * fontMetrics().height()));
}

void ColorRows::addGroup(const ColorSlotGroup& group)
{
    auto* heading =
        new ColorSelectListViewItem(this, QCoreApplication::translate("ColorsCtrl", group.heading));
    heading->setFirstColumnSpanned(true);
    for (const ColorSlotRow& row : group.rows)
        addRow(heading, row);
}

void ColorRows::addRow(SortListViewItem* heading, const ColorSlotRow& row)
{
    if (row.slot == ColorSlotRow::noSlot) {
        auto* note = new SortListViewItem(heading, textOf(row),
                                          QCoreApplication::translate("ColorsCtrl", row.note));
        note->setToolTip(1, note->text(1));
        return;
    }
    const auto role = static_cast<IColorBase::ECOLOR>(row.slot);
    auto* item = new ColorSelectListViewItem(heading, textOf(row), role);
    m_rows[role] = item;
    connect(item, &ColorSelectListViewItem::colorChosen, this,
            [this, role](int formerId, int id) { Q_EMIT colorChosen(role, formerId, id); });
}

void ColorRows::filter(const QString& text)
{
    for (int group = 0; group < topLevelItemCount(); ++group) {
        QTreeWidgetItem* heading = topLevelItem(group);
        const bool isWhole = text.isEmpty() || holds(*heading, text);
        bool hasRow = isWhole;
        for (int row = 0; row < heading->childCount(); ++row) {
            const bool isShown = isWhole || holds(*heading->child(row), text);
            heading->child(row)->setHidden(!isShown);
            hasRow = hasRow || isShown;
        }
        heading->setHidden(!hasRow);
        if (!text.isEmpty() && hasRow)
            heading->setExpanded(true);
    }
}

void ColorRows::refresh()
{
    for (const auto& [role, row] : m_rows) {
        if (!row)
            continue;
        const ColorDefinition* definition = ColorSet::Instance().GetColorDefinition(role);
        const int id = definition != nullptr ? definition->GetId() : -1;
        if (row->GetDirty() || row->GetColorId() == id) {
            row->Refresh();
        } else {
            row->SetColorId(id);
            row->SetDirty(false);
        }
    }
}

void ColorRows::accept()
{
    for (const auto& [role, row] : m_rows) {
        if (!row || !row->GetDirty())
            continue;
        ColorSet::Instance().SetColor(
            role, Colors::Instance().GetColorDefinition(row->GetColorId()), false);
        row->SetDirty(false);
    }
}

void ColorRows::setColorId(IColorBase::ECOLOR role, int id)
{
    if (const auto row = m_rows.find(role); row != m_rows.end() && row->second)
        row->second->SetColorId(id);
}

QColor ColorRows::colorOf(IColorBase::ECOLOR slot) const
{
    const auto row = m_rows.find(slot);
    const ColorDefinition* definition =
        row != m_rows.end() && row->second
            ? Colors::Instance().GetColorDefinition(row->second->GetColorId())
            : ColorSet::Instance().GetColorDefinition(slot);
    // An empty slot is drawn in the colour that ColorSet::GetColor() gives for it.
    return definition != nullptr ? definition->GetColor() : QColor(Qt::cyan);
}

void ColorRows::markContrasts()
{
    const QIcon warning = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
    for (const auto& [role, row] : m_rows) {
        if (!row)
            continue;
        const auto ratio =
            ColorContrast::ratioOf(role, [this](IColorBase::ECOLOR slot) { return colorOf(slot); });
        const bool isFaint = ratio && *ratio < ColorContrast::lowest;
        if (isFaint != row->icon(0).isNull())
            continue;
        row->setIcon(0, isFaint ? warning : QIcon());
        row->setToolTip(
            0, isFaint ? QCoreApplication::translate("ColorsCtrl", "Hard to see on its background")
                       : QString());
    }
}

std::optional<double> ColorRows::currentContrast() const
{
    const auto* row = dynamic_cast<const ColorSelectListViewItem*>(QTreeWidget::currentItem());
    if (row == nullptr || static_cast<const QTreeWidgetItem*>(row)->parent() == nullptr)
        return std::nullopt;
    return ColorContrast::ratioOf(row->GetColorRoleId(),
                                  [this](IColorBase::ECOLOR slot) { return colorOf(slot); });
}

void ColorRows::keyPressEvent(QKeyEvent* event)
{
    QTreeWidgetItem* row = QTreeWidget::currentItem();
    if ((event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) || row == nullptr) {
        SortListView::keyPressEvent(event);
        return;
    }
    if (row->childCount() > 0)
        row->setExpanded(!row->isExpanded());
    else
        Q_EMIT itemActivated(row, 1);
}
