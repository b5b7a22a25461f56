// SPDX-License-Identifier: MIT
#include "usercolors.h"

#include "colorcatalogue_p.h"
#include "colors.h"

#include <guibase/records/recordstore.h>

namespace {

RecordStore makeStore()
{
    return RecordStore(SettingsView, QStringLiteral("UserColors"));
}

std::optional<QColor> parse(const QString& text)
{
    const QColor color(text);
    return color.isValid() ? std::optional(color) : std::nullopt;
}

bool isUserColor(int id)
{
    return id >= ColorCatalogue::firstUserId &&
           Colors::Instance().GetColorDefinition(id) != nullptr;
}

} // namespace

void UserColors::read()
{
    const RecordStore store = makeStore();
    ColorDefinitionSet& colors = Colors::Instance().GetUserColors();
    const int end = ColorCatalogue::firstUserId + colors.GetCount();
    for (int id = ColorCatalogue::firstUserId; id < end; ++id) {
        const auto color =
            store.read(QString::number(id), QStringLiteral("this is no color"), parse);
        if (color)
            colors.Add(*color, id);
    }
}

bool UserColors::redefine(int id, const QColor& color)
{
    if (!isUserColor(id) || !color.isValid())
        return false;
    Colors::Instance().GetUserColors().Add(color, id);
    makeStore().write(QString::number(id), color.name());
    return true;
}
