// SPDX-License-Identifier: MIT
#include "signaltypenames.h"

#include <guibase/services/guibase.h>

#include <array>

namespace {

constexpr std::array<const char*, 17> names{
    QT_TRANSLATE_NOOP("GuiBase", "Unidentified"),
    QT_TRANSLATE_NOOP("GuiBase", "Unidentified - probably important"),
    QT_TRANSLATE_NOOP("GuiBase", "Unidentified - probably not important"),
    QT_TRANSLATE_NOOP("GuiBase", "Known - not important - Info"),
    QT_TRANSLATE_NOOP("GuiBase", "Known - friend"),
    QT_TRANSLATE_NOOP("GuiBase", "Known - important"),
    QT_TRANSLATE_NOOP("GuiBase", "Known - very important - critical"),
    QT_TRANSLATE_NOOP("GuiBase", "Unidentified - Fixed"),
    QT_TRANSLATE_NOOP("GuiBase", "Unidentified - Chirp"),
    QT_TRANSLATE_NOOP("GuiBase", "Unidentified - Hopper"),
    QT_TRANSLATE_NOOP("GuiBase", "Unidentified - Burst"),
    QT_TRANSLATE_NOOP("GuiBase", "Type_L"),
    QT_TRANSLATE_NOOP("GuiBase", "Type_M"),
    QT_TRANSLATE_NOOP("GuiBase", "Type_N"),
    QT_TRANSLATE_NOOP("GuiBase", "Type_O"),
    QT_TRANSLATE_NOOP("GuiBase", "Type_P"),
    QT_TRANSLATE_NOOP("GuiBase", "Type_Q"),
};

} // namespace

QString signalTypeName(int index)
{
    if (index < 0 || index >= static_cast<int>(names.size()))
        return GuiBase::tr("Unknown");
    return GuiBase::tr(names[static_cast<std::size_t>(index)]);
}
