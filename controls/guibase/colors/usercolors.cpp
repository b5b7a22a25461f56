// SPDX-License-Identifier: MIT
#include "usercolors.h"

#include "colorcatalogue_p.h"
#include "colors.h"

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>

namespace {

constexpr char module[] = "controls/guibase/usercolors";

std::unique_ptr<ICfg> place()
{
    return CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("UserColors"));
}

bool isUserColor(int id)
{
    return id >= ColorCatalogue::firstUserId &&
           Colors::Instance().GetColorDefinition(id) != nullptr;
}

} // namespace

void UserColors::read()
{
    const std::unique_ptr<ICfg> kept = place();
    const int count = Colors::Instance().GetUserColors().GetCount();
    for (int id = ColorCatalogue::firstUserId; id < ColorCatalogue::firstUserId + count; ++id) {
        const QString text = kept->GetString(QString::number(id));
        if (text.isEmpty())
            continue;
        const QColor color(text);
        if (color.isValid())
            Colors::Instance().GetUserColors().Add(color, id);
        else
            ErrorHandler::Trace(ErrorHandler::TraceGuiBase, module, __LINE__,
                                QStringLiteral("Stored user color %1: \"%2\" is no color")
                                    .arg(QString::number(id), text.left(80)));
    }
}

bool UserColors::redefine(int id, const QColor& color)
{
    if (!isUserColor(id) || !color.isValid())
        return false;
    Colors::Instance().GetUserColors().Add(color, id);
    place()->SetString(QString::number(id), color.name());
    return true;
}
