// SPDX-License-Identifier: MIT
#include "frequencyspinbox.h"

#include <guibase/formats/frequencydisplayformat.h>
#include <guibase/services/guibase.h>

#include <valueframework/valuefollower.h>
#include <valueframework/valueselection.h>

#include <QPointer>

namespace SpinBoxes {

struct FrequencySpinBox::Private
{
    std::unique_ptr<ValueFollower> follower;
    bool isUnitPending = false;
};

FrequencySpinBox::FrequencySpinBox(QWidget* parent)
    : Int64SpinBox(parent)
    , m_d(std::make_unique<Private>())
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

bool FrequencySpinBox::isFollowingFrequencyUnit() const
{
    return m_d->follower != nullptr;
}

void FrequencySpinBox::setFollowingFrequencyUnit(bool follow)
{
    m_d->follower.reset();
    if (!follow)
        return;
    m_d->follower = std::make_unique<ValueFollower>(GuiBase::Instance().GetFrequencyUnit(),
                                                    [this] { adoptFrequencyUnit(); });
    adoptFrequencyUnit();
}

void FrequencySpinBox::interpret()
{
    const QPointer<QObject> guard(this);
    Int64SpinBox::interpret();
    if (guard && m_d->isUnitPending && isFollowingFrequencyUnit())
        adoptFrequencyUnit();
}

void FrequencySpinBox::adoptFrequencyUnit()
{
    // What is being typed counts in the unit that is shown.
    m_d->isUnitPending = isTextChanged();
    if (m_d->isUnitPending)
        return;
    const double unit = GuiBase::Instance().GetFrequencyUnit()->GetValue();
    setCurrentDisplayFormatIndex(static_cast<int>(unit) - UnitPrefix::BaseUnit);
}

} // namespace SpinBoxes
