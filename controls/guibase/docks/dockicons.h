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

/// An icon that is drawn when it is needed, in the size that is needed and in the text colour that
/// the widget has then: painted with QIcon::paint(), otherwise that of the application's palette.
QIcon makeDockIcon(DockIcon kind);
/// The same with different pictures for the Off and On states of an action.
QIcon makeDockIcon(DockIcon off, DockIcon on);
/// The shape of an icon of one colour, such as those of a style, in the same ink.
QIcon makeTintedIcon(const QIcon& shape);
