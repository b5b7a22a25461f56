// SPDX-License-Identifier: MIT
#include "widgettable.h"

#include <guibase/colors/editor/colorcircle.h>
#include <guibase/colors/editor/colorselect.h>
#include <guibase/docks/enhanceddockwidget.h>
#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/controllers/controllerdial.h>
#include <guibase/inputs/controllers/controllerslider.h>
#include <guibase/inputs/coordinates/coordinateedit.h>
#include <guibase/inputs/coordinates/maskedlineedit.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/inputs/spinboxes/spinboxes.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/lists/sortrowtable.h>
#include <guibase/splitters/splitter.h>
#include <guibase/widgets/animationwidget.h>
#include <guibase/widgets/closabletabwidget.h>
#include <radiopanes/bearings/bearingrose.h>
#include <radiopanes/panes/levelpanes.h>

namespace {

constexpr const char* inputs = "Radio Inputs";
constexpr const char* lists = "Radio Lists";
constexpr const char* containers = "Radio Containers";
constexpr const char* panes = "Radio Panes";
constexpr QSize fieldSize(120, 26);

template <typename Widget>
WidgetRow row(const char* group, const char* header, const char* toolTip, DesignerPicture picture,
              QSize size, WidgetRow::Content content = WidgetRow::NoContent, const char* badge = "")
{
    return {Widget::staticMetaObject.className(),
            group,
            header,
            toolTip,
            picture,
            badge,
            size,
            content,
            [](QWidget* parent) -> QWidget* { return new Widget(parent); }};
}

template <typename Widget>
WidgetRow spinBox(const char* badge, const char* toolTip,
                  const char* header = "guibase/inputs/spinboxes/spinboxes.h")
{
    return row<Widget>(inputs, header, toolTip, DesignerPicture::SpinBox, fieldSize,
                       WidgetRow::NoContent, badge);
}

template <typename Widget>
WidgetRow comboBox(const char* badge, const char* toolTip)
{
    return row<Widget>(inputs, "guibase/inputs/comboboxes/comboboxes.h", toolTip,
                       DesignerPicture::ComboBox, fieldSize, WidgetRow::NoContent, badge);
}

// clang-format off
const WidgetRow table[] = {
    spinBox<SpinBoxes::FrequencySpinBox>("Hz", "Enters a frequency: 14.225 MHz, 14225k, 1,2 GHz",
        "guibase/inputs/spinboxes/frequencyspinbox.h"),
    spinBox<SpinBoxes::QDateTimeSpinBox>("t", "Enters a point in time, in the time zone of the application",
        "guibase/inputs/spinboxes/qdatetimespinbox.h"),
    spinBox<SpinBoxes::DoubleSpinBox>("1.5", "Enters a real number"),
    spinBox<SpinBoxes::Int8SpinBox>("8", "Enters -128 to 127"),
    spinBox<SpinBoxes::UInt8SpinBox>("u8", "Enters 0 to 255"),
    spinBox<SpinBoxes::Int16SpinBox>("16", "Enters 16 bits with a sign"),
    spinBox<SpinBoxes::UInt16SpinBox>("u16", "Enters 16 bits"),
    spinBox<SpinBoxes::Int32SpinBox>("32", "Enters 32 bits with a sign"),
    spinBox<SpinBoxes::UInt32SpinBox>("u32", "Enters 32 bits"),
    spinBox<SpinBoxes::Int64SpinBox>("64", "Enters 64 bits with a sign"),
    spinBox<SpinBoxes::UInt64SpinBox>("u64", "Enters 64 bits"),
    comboBox<ComboBoxes::DoubleComboBox>("1.5", "Chooses or enters a real number"),
    comboBox<ComboBoxes::Int8ComboBox>("8", "Chooses or enters -128 to 127"),
    comboBox<ComboBoxes::UInt8ComboBox>("u8", "Chooses or enters 0 to 255"),
    comboBox<ComboBoxes::Int16ComboBox>("16", "Chooses or enters 16 bits with a sign"),
    comboBox<ComboBoxes::UInt16ComboBox>("u16", "Chooses or enters 16 bits"),
    comboBox<ComboBoxes::Int32ComboBox>("32", "Chooses or enters 32 bits with a sign"),
    comboBox<ComboBoxes::UInt32ComboBox>("u32", "Chooses or enters 32 bits"),
    comboBox<ComboBoxes::Int64ComboBox>("64", "Chooses or enters 64 bits with a sign"),
    comboBox<ComboBoxes::UInt64ComboBox>("u64", "Chooses or enters 64 bits"),
    spinBox<CoordinateEdit>("N E", "Enters a position in any of the position formats",
        "guibase/inputs/coordinates/coordinateedit.h"),
    row<MaskedLineEdit>(inputs, "guibase/inputs/coordinates/maskedlineedit.h",
        "Enters a text with fixed separators", DesignerPicture::Field, fieldSize,
        WidgetRow::NoContent, "9.9"),
    row<ControllerSlider>(inputs, "guibase/inputs/controllers/controllerslider.h",
        "Drags a real number, finely with Ctrl", DesignerPicture::Slider, {160, 26}),
    row<ControllerDial>(inputs, "guibase/inputs/controllers/controllerdial.h",
        "Turns a real number, finely with Ctrl", DesignerPicture::Dial, {90, 90}),
    row<ColorCircle>(inputs, "guibase/colors/editor/colorcircle.h",
        "Chooses a colour by hue, saturation and brightness", DesignerPicture::ColorCircle,
        {180, 180}),
    row<ClosableTabWidget>(containers, "guibase/widgets/closabletabwidget.h",
        "Tabs that the user closes and reopens", DesignerPicture::Tabs, {240, 160},
        WidgetRow::ManyWidgets),
    row<AnimationWidget>(inputs, "guibase/widgets/animationwidget.h",
        "A ring that turns while something is going on", DesignerPicture::Busy, {24, 24}),
    row<ColorSelect>(inputs, "guibase/colors/editor/colorselect.h",
        "Chooses a colour of the catalogue", DesignerPicture::Colors, {160, 26}),
    row<SortListView>(lists, "guibase/lists/sortlistview.h",
        "A list that sorts, with columns that hide and come back", DesignerPicture::List, {256, 160}),
    row<SortRowTable>(lists, "guibase/lists/sortrowtable.h",
        "A table of frequencies and levels that the user fills", DesignerPicture::Table, {256, 160}),
    row<Splitter>(containers, "guibase/splitters/splitter.h",
        "A splitter that keeps its positions under its storage name", DesignerPicture::Splitter,
        {240, 120}, WidgetRow::ManyWidgets),
    row<EnhancedDockWidget>(containers, "guibase/docks/enhanceddockwidget.h",
        "A dock with the title bar that hides, maximizes and minimizes it", DesignerPicture::Dock,
        {200, 160}, WidgetRow::OneWidget),
    row<RadioPanes::LevelPanes>(panes, "radiopanes/panes/levelpanes.h",
        "Spectrum and waterfall of a live source", DesignerPicture::Spectrum, {480, 320}),
    row<RadioPanes::BearingRose>(panes, "radiopanes/bearings/bearingrose.h",
        "A compass rose with the bearings of signals", DesignerPicture::Rose, {240, 240}),
};
// clang-format on

} // namespace

std::span<const WidgetRow> widgetTable()
{
    return table;
}
