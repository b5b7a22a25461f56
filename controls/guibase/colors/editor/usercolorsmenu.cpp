// SPDX-License-Identifier: MIT
#include "usercolorsmenu_p.h"

#include "colorswatch_p.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/usercolors.h>
#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

UserColorsMenu::UserColorsMenu(QWidget* parent)
    : QMenu(parent)
{
    populate();
    connect(this, &QMenu::aboutToShow, this, &UserColorsMenu::populate);
}

void UserColorsMenu::populate()
{
    clear();
    ColorDefinitionSet& colors = Colors::Instance().GetUserColors();
    for (int position = 0; position < colors.GetCount(); ++position) {
        const ColorDefinition& color = *colors.At(position);
        QAction* entry = addAction(colorSwatch(color.GetColor()), tr("%1...").arg(color.GetName()));
        connect(entry, &QAction::triggered, this, [this, id = color.GetId()] { redefine(id); });
    }
}

void UserColorsMenu::redefine(int id)
{
    const ColorDefinition* color = Colors::Instance().GetColorDefinition(id);
    const QColor chosen =
        ModalDialogs::askForColor(parentWidget(), color->GetColor(), color->GetName());
    if (chosen != color->GetColor() && UserColors::redefine(id, chosen))
        GuiBase::Instance().emit_signalColorsChanged();
}
