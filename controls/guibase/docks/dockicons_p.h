// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// The pictures of this folder's actions. A new one is an enumerator here and a row of the table in
/// dockicons.cpp.
enum class DockIcon {
    TabifyLeft,
    TabifyRight,
    TabifyTop,
    TabifyBottom,
    TileLeft,
    TileRight,
    TileTop,
    TileBottom,
    AutoHideDisabled,
    AutoHideEnabled,
    PopupOnHover,
    Float,
    Dock,
    Close,
    More,
};

/// An icon that is drawn when it is needed, in the size that is needed and in the text colour of
/// the application's palette as it is then.
QIcon makeDockIcon(DockIcon kind);
/// The same with different pictures for the Off and On states of an action.
QIcon makeDockIcon(DockIcon off, DockIcon on);
