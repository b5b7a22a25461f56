// SPDX-License-Identifier: MIT
#include <valueframework/observable.h>

#include <algorithm>
#include <cstddef>
#include <utility>

IObserver::IObserver() = default;

IObserver::IObserver(const IObserver& /*other*/) {}

IObserver& IObserver::operator=(const IObserver& /*other*/)
{
    return *this;
}

IObserver::~IObserver()
{
    for (Observable* observable : m_observed)
        observable->forget(this);
}

Observable::Observable() = default;

Observable::~Observable()
{
    announceGone();
    for (IObserver* observer : m_observers) {
        if (observer != nullptr)
            std::erase(observer->m_observed, this);
    }
    if (m_destroyedFlag != nullptr)
        *m_destroyedFlag = true;
}

void Observable::Attach(IObserver* observer)
{
    if (observer == nullptr || m_state == Gone)
        return;
    if (std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end())
        return;
    m_observers.push_back(observer);
    observer->m_observed.push_back(this);
}

void Observable::Detach(IObserver* observer)
{
    if (observer != nullptr && forget(observer))
        std::erase(observer->m_observed, this);
}

int Observable::GetObserverCount() const
{
    const auto holes = std::count(m_observers.begin(), m_observers.end(), nullptr);
    return static_cast<int>(m_observers.size()) - static_cast<int>(holes);
}

Observable::State Observable::GetState() const
{
    return m_state;
}

void Observable::SetState(State state)
{
    if (state == m_state || m_state == Gone || (state != Enabled && state != Disabled))
        return;
    m_state = state;
    Notify(ChangeCode::State);
}

bool Observable::Notify(TChangeCode code)
{
    bool destroyed = false;
    bool* const outerFlag = std::exchange(m_destroyedFlag, &destroyed);
    // While this runs the list only grows: who leaves becomes null, who comes stands behind
    // `count`.
    const std::size_t count = m_observers.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (m_observers[i] == nullptr)
            continue;
        m_observers[i]->Update(this, code);
        if (destroyed) {
            if (outerFlag != nullptr)
                *outerFlag = true;
            return false;
        }
    }
    m_destroyedFlag = outerFlag;
    if (m_hasHoles && outerFlag == nullptr) {
        std::erase(m_observers, nullptr);
        m_hasHoles = false;
    }
    return true;
}

void Observable::announceGone()
{
    if (m_state == Gone)
        return;
    m_state = Gone;
    Notify(ChangeCode::State);
}

bool Observable::forget(IObserver* observer)
{
    const auto found = std::find(m_observers.begin(), m_observers.end(), observer);
    if (found == m_observers.end())
        return false;
    if (m_destroyedFlag != nullptr) {
        *found = nullptr;
        m_hasHoles = true;
    } else {
        m_observers.erase(found);
    }
    return true;
}
