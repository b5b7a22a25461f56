// SPDX-License-Identifier: MIT
#include "selectionfollower.h"

SelectionFollower::SelectionFollower(ValueSelection* selection, std::function<void()> operation)
    : m_operation(std::move(operation))
{
    selection->Attach(this);
}

SelectionFollower::~SelectionFollower() = default;

void SelectionFollower::Update(Observable*, TChangeCode code)
{
    if (code == ChangeCode::CurrentValue)
        m_operation();
}
