// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueselection.h>

#include <functional>

/// Calls an operation whenever another item of a selection becomes current, until the selection or
/// the follower dies. The operation may destroy both.
class VALUEFRAMEWORK_EXPORT SelectionFollower : public IObserver
{
public:
    /// The selection is not owned; null is never followed.
    SelectionFollower(ValueSelection* selection, std::function<void()> operation);
    ~SelectionFollower() override;
    SelectionFollower(const SelectionFollower&) = delete;
    SelectionFollower& operator=(const SelectionFollower&) = delete;

    void Update(Observable* observable, TChangeCode code) override;

private:
    std::function<void()> m_operation;
};
