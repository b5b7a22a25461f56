// SPDX-License-Identifier: MIT
#include "panels/headingspinbox.h"

#include "model/bearings.h"

#include <guibase/formats/integralnumberdisplayformat.h>

namespace bandmonitor {

namespace {

constexpr int lastDegree = 359;

int turned(double degrees)
{
    return static_cast<int>(normalizedDegrees(degrees));
}

} // namespace

HeadingSpinBox::HeadingSpinBox(QWidget* parent)
    : Int32SpinBox(parent)
{
    auto degrees = std::make_unique<IntegralNumberDisplayFormat<int>>();
    degrees->setSuffix(QStringLiteral("°"));
    addDisplayFormat(std::move(degrees));
    setCurrentDisplayFormatIndex(0);
    setRange(0, lastDegree);
    setWrapping(true);
}

HeadingSpinBox::~HeadingSpinBox() = default;

void HeadingSpinBox::stepBy(int steps)
{
    interpretIfTextChanged();
    setValue(turned(static_cast<double>(value()) +
                    static_cast<double>(steps) * static_cast<double>(singleStep())));
}

void HeadingSpinBox::fixup(QString& text) const
{
    bool ok = false;
    const int degrees = currentDisplayFormat()->valueFromFullText(text, &ok);
    if (ok)
        text = textFromValue(turned(degrees));
}

} // namespace bandmonitor
