// SPDX-License-Identifier: MIT
#include <guibase/colors/editor/colorseteditor.h>

namespace ColorSetEditor {

static constinit Maker currentMaker = nullptr;

void setMaker(Maker maker)
{
    currentMaker = maker;
}

QWidget* make(QWidget* parent)
{
    return currentMaker ? currentMaker(parent) : nullptr;
}

} // namespace ColorSetEditor
