// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valuebase.h>

#include <functional>

/// Calls an operation whenever a value has changed, or another item of a selection has become
/// current, until the value or the follower dies. The operation may destroy both.
class VALUEFRAMEWORK_EXPORT ValueFollower : public IObserver
{
public:
    /// The value is not owned; null is never followed.
    ValueFollower(ValueBase* value, std::function<void()> operation);
    ~ValueFollower() override;
    ValueFollower(const ValueFollower&) = delete;
    ValueFollower& operator=(const ValueFollower&) = delete;

    void Update(Observable* observable, TChangeCode code) override;

private:
    std::function<void()> m_operation;
};
