// SPDX-License-Identifier: MIT
#include "colorselectlistviewitem.h"

#include "colorselect.h"
#include "colorswatch_p.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/lists/sortlistview.h>

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>

namespace {

constexpr int colorColumn = 1;
constexpr int pickerMargin = 3; ///< Pixels that the picker stands out above and below its row.

} // namespace

ColorSelectListViewItem::ColorSelectListViewItem(SortListView* list, const QString& text1,
                                                 const QString& text2, const QString& text3,
                                                 const QString& text4, const QString& text5,
                                                 const QString& text6, const QString& text7,
                                                 const QString& text8)
    : SortListViewItem(list, text1, text2, text3, text4, text5, text6, text7, text8)
    , m_list(list)
{}

ColorSelectListViewItem::ColorSelectListViewItem(SortListViewItem* parent, const QString& text,
                                                 IColorBase::ECOLOR role)
    : SortListViewItem(parent, text)
    , m_role(role)
{
    const ColorDefinition* definition = ColorSet::Instance().GetColorDefinition(role);
    readDefinition(definition != nullptr ? definition->GetId() : -1);
    UpdateDisplay();
}

ColorSelectListViewItem::~ColorSelectListViewItem()
{
    // The row may die within the picker's own signal.
    if (m_picker) {
        m_picker->disconnect(this); // Hiding it ends the choice.
        m_picker->hide();
        m_picker->deleteLater();
    }
}

SortListView* ColorSelectListViewItem::GetListView() const
{
    return m_list ? m_list.data() : listView();
}

void ColorSelectListViewItem::readDefinition(int id)
{
    const ColorDefinition* definition = Colors::Instance().GetColorDefinition(id);
    m_colorId = definition != nullptr ? id : -1;
    m_colorString = definition != nullptr ? definition->GetColorString() : QString();
    m_colorName = definition != nullptr ? definition->GetName() : QString();
}

void ColorSelectListViewItem::SetColorId(int id)
{
    readDefinition(id);
    UpdateDisplay();
    m_dirty = true;
}

void ColorSelectListViewItem::Refresh()
{
    readDefinition(m_colorId);
    UpdateDisplay();
}

void ColorSelectListViewItem::UpdateDisplay()
{
    setText(colorColumn, m_colorName);
    const ColorDefinition* definition = Colors::Instance().GetColorDefinition(m_colorId);
    setIcon(colorColumn, definition != nullptr ? colorSwatch(definition->GetColor()) : QIcon());
}

void ColorSelectListViewItem::activate()
{
    if (QTreeWidgetItem::parent() != nullptr)
        Edit();
}

void ColorSelectListViewItem::Edit()
{
    SortListView* list = GetListView();
    if (list == nullptr)
        return;
    if (!m_picker) {
        m_picker = new ColorSelect(list->viewport());
        connect(m_picker, &ColorSelect::signalEndEdit, this, &ColorSelectListViewItem::slotEndEdit);
    }
    list->scrollToItem(this);
    const QRect row = list->visualItemRect(this);
    const QHeaderView* header = list->header();
    m_picker->setGeometry(header->sectionViewportPosition(colorColumn), row.top() - pickerMargin,
                          header->sectionSize(colorColumn), row.height() + 2 * pickerMargin);
    m_picker->Select(m_colorString, m_colorId);
    m_picker->show();
    m_picker->setFocus();
    m_picker->lineEdit()->selectAll();
}

void ColorSelectListViewItem::slotEndEdit()
{
    if (!m_picker)
        return;
    const bool hadFocus = m_picker->hasFocus() || m_picker->isAncestorOf(qApp->focusWidget());
    m_picker->hide();
    SortListView* list = GetListView();
    if (hadFocus && list != nullptr)
        list->setFocus();
    const int formerId = m_colorId;
    m_colorName = m_picker->currentText();
    m_colorString = m_picker->GetCurrent();
    m_colorId = m_picker->GetCurrentId();
    UpdateDisplay();
    m_dirty = true;
    if (m_colorId != formerId)
        Q_EMIT colorChosen(formerId, m_colorId);
}

void ColorSelectListViewItem::slotColorChanged(int)
{
    slotEndEdit();
}
