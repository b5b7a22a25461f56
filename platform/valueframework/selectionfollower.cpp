// SPDX-License-Identifier: MIT
#include <valueframework/selectionfollower.h>

#include <utility>

SelectionFollower::SelectionFollower(ValueSelection* selection, std::function<void()> operation)
    : m_operation(std::move(operation))
{
    if (selection != nullptr)
        selection->Attach(this);
}

SelectionFollower::~SelectionFollower() = default;

void SelectionFollower::Update(Observable*, TChangeCode code)
{
    if (code != ChangeCode::CurrentValue)
        return;
    const auto operation = m_operation; // It may destroy this object.
    operation();
}
