// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

enum class DesignerPicture {
    SpinBox,
    ComboBox,
    Field,
    Slider,
    Dial,
    ColorCircle,
    Colors,
    List,
    Table,
    Splitter,
    Dock,
    Tabs,
    Busy,
    Spectrum,
    Rose,
};

/// A picture of the widget for Designer's box, drawn for light and dark desktops alike, with a few
/// letters on it.
QIcon makeDesignerIcon(DesignerPicture picture, const QString& badge);
