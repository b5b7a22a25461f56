// SPDX-License-Identifier: MIT
#include <valueframework/valuefollower.h>

#include <utility>

ValueFollower::ValueFollower(ValueBase* value, std::function<void()> operation)
    : m_operation(std::move(operation))
{
    if (value != nullptr)
        value->Attach(this);
}

ValueFollower::~ValueFollower() = default;

void ValueFollower::Update(Observable*, TChangeCode code)
{
    if (code != ChangeCode::CurrentValue)
        return;
    const auto operation = m_operation; // It may destroy this object.
    operation();
}
