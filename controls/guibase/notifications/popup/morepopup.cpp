// SPDX-License-Identifier: MIT
#include "morepopup_p.h"

MorePopup::MorePopup()
{
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(fixedSize);
}

MorePopup::~MorePopup() = default;

void MorePopup::setCount(qsizetype count)
{
    const QString text = tr("%n more", "Pop-ups that do not fit", static_cast<int>(count));
    setText(text);
    setWindowTitle(text);
}
