// SPDX-License-Identifier: MIT
#pragma once

#include "designericons.h"

#include <QSize>

#include <span>

class QWidget;

/// A widget that forms can use.
struct WidgetRow
{
    enum Content {
        NoContent,
        OneWidget,   ///< Dropped with a widget in it, which holds the others.
        ManyWidgets, ///< The user drops widgets on it.
    };

    const char* className;
    const char* group; ///< In Designer's box of widgets.
    const char* header;
    const char* toolTip;
    DesignerPicture picture;
    const char* badge; ///< A few letters on the picture; may be empty.
    QSize size;        ///< When it is dropped, in pixels.
    Content content;
    QWidget* (*create)(QWidget* parent);
};

/// In the order of the box.
std::span<const WidgetRow> widgetTable();
