// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/icolorbase.h>
#include <guibase/guibase_export.h>
#include <guibase/lists/sortlistviewitem.h>

#include <QObject>
#include <QPointer>
#include <QString>

class ColorSelect;
class SortListView;

/// A row of the colour editor: a heading, or a slot of the colour set with the colour that was
/// chosen for it but not yet accepted. Activating a slot's row opens a colour picker over it.
class GUIBASE_EXPORT ColorSelectListViewItem : public QObject, public SortListViewItem
{
    Q_OBJECT
public:
    /// A heading.
    ColorSelectListViewItem(SortListView* list, const QString& text1, const QString& text2 = {},
                            const QString& text3 = {}, const QString& text4 = {},
                            const QString& text5 = {}, const QString& text6 = {},
                            const QString& text7 = {}, const QString& text8 = {});
    /// The row of a slot, with the slot's present colour.
    ColorSelectListViewItem(SortListViewItem* parent, const QString& text, IColorBase::ECOLOR role);
    ~ColorSelectListViewItem() override;

    /// The chosen colour as ColorDefinition::GetColorString(), and its display name.
    const QString& GetColorString() const { return m_colorString; }
    const QString& GetColorName() const { return m_colorName; }
    /// Whether a choice has ended in this row since the changes were accepted.
    bool GetDirty() const { return m_dirty; }
    void SetDirty(bool dirty) { m_dirty = dirty; }
    /// The catalogue id of the chosen colour; -1 when the slot is empty.
    int GetColorId() const { return m_colorId; }
    IColorBase::ECOLOR GetColorRoleId() const { return m_role; }
    /// Null when the row is in no SortListView.
    SortListView* GetListView() const;

    /// Chooses an entry of the catalogue; an unknown id empties the row. The row is dirty then.
    void SetColorId(int id);
    /// Shows a colour that was redefined in the catalogue.
    void Refresh();

Q_SIGNALS:
    /// Another colour was chosen with the picker.
    void colorChosen(int formerId, int id);

public Q_SLOTS:
    /// The picker's choice becomes that of the row.
    void slotEndEdit();
    void slotColorChanged(int index);

protected:
    void activate() override;
    /// Opens the picker in the row; shows the chosen colour.
    void Edit();
    void UpdateDisplay();

private:
    void readDefinition(int id);

    QPointer<SortListView> m_list;
    QPointer<ColorSelect> m_picker;
    QString m_colorString;
    QString m_colorName;
    bool m_dirty = false;
    IColorBase::ECOLOR m_role = IColorBase::Slot0;
    int m_colorId = -1;
};
