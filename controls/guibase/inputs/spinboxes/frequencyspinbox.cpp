// SPDX-License-Identifier: MIT
#include "frequencyspinbox.h"

#include <guibase/formats/frequencydisplayformat.h>
#include <guibase/services/guibase.h>

#include <valueframework/selectionfollower.h>

#include <QPointer>

namespace SpinBoxes {

FrequencySpinBox::FrequencySpinBox(QWidget* parent)
    : Int64SpinBox(parent)
{
    using enum UnitPrefix::ESuffix;
    for (const UnitPrefix::ESuffix unit : {BaseUnit, Kilo, Mega, Giga})
        addDisplayFormat(std::make_unique<FrequencyDisplayFormat>(unit));
    connect(this, &AbstractSpinBox::currentDisplayFormatIndexChanged, this, [this](int current) {
        for (int index = 0; index < countDisplayFormats(); ++index)
            displayFormatAt(index)->setSuffixRequired(index != current);
    });
    setRange(0, defaultMaximum);
    setSingleStep(defaultStep);
    setFollowingFrequencyUnit(true);
}

FrequencySpinBox::~FrequencySpinBox() = default;

void FrequencySpinBox::setFollowingFrequencyUnit(bool follow)
{
    m_follower.reset();
    if (!follow)
        return;
    m_follower = std::make_unique<SelectionFollower>(GuiBase::Instance().GetFrequencyUnit(),
                                                     [this] { adoptFrequencyUnit(); });
    adoptFrequencyUnit();
}

void FrequencySpinBox::interpret()
{
    const QPointer<QObject> guard(this);
    Int64SpinBox::interpret();
    if (guard && m_isUnitPending && isFollowingFrequencyUnit())
        adoptFrequencyUnit();
}

void FrequencySpinBox::adoptFrequencyUnit()
{
    // What is being typed counts in the unit that is shown.
    m_isUnitPending = isTextChanged();
    if (m_isUnitPending)
        return;
    const double unit = GuiBase::Instance().GetFrequencyUnit()->GetValue();
    setCurrentDisplayFormatIndex(static_cast<int>(unit) - UnitPrefix::BaseUnit);
}

} // namespace SpinBoxes
