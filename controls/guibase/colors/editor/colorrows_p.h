// SPDX-License-Identifier: MIT
#pragma once

#include "colorselectlistviewitem.h"

#include <guibase/colors/icolorbase.h>
#include <guibase/lists/sortlistview.h>

#include <QPointer>

#include <map>
#include <optional>

struct ColorSlotGroup;
struct ColorSlotRow;

/// The rows of the colour editor, in groups, with the colours that are not accepted yet.
class ColorRows : public SortListView
{
    Q_OBJECT
public:
    explicit ColorRows(QWidget* parent);

    /// Makes the rows of the groups that the mask shows anew, with the colours of the colour set.
    void populate(quint32 mask);
    /// Hides the rows whose texts do not hold the text, in any case; a group stays whole when its
    /// heading does. An empty text shows everything.
    void filter(const QString& text);
    /// The colours of the catalogue or of the set have changed; rows that the user has changed keep
    /// their choice.
    void refresh();
    /// Writes the changed rows into the colour set, without a signal.
    void accept();

    /// Nothing for a slot without row.
    void setColorId(IColorBase::ECOLOR role, int id);
    /// The chosen colour; that of the colour set for a slot without row.
    QColor colorOf(IColorBase::ECOLOR slot) const;

    /// Puts a warning sign on every row that stands out too little.
    void markContrasts();
    /// See ColorContrast::ratioOf(); nothing without a current row.
    std::optional<double> currentContrast() const;

Q_SIGNALS:
    /// The user has chosen another colour, given by its catalogue id, for a slot.
    void colorChosen(int role, int formerId, int id);

protected:
    /// Return opens the picker, and does not press the default button of a dialog as well.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addGroup(const ColorSlotGroup& group);
    void addRow(SortListViewItem* heading, const ColorSlotRow& row);

    /// Rows may go without this list being told.
    std::map<IColorBase::ECOLOR, QPointer<ColorSelectListViewItem>> m_rows;
};
