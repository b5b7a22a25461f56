// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <vector>

class Observable;

/// What has changed; handed to every observer.
using TChangeCode = int;

namespace ChangeCode {
inline constexpr TChangeCode State = 2;        ///< Observable::GetState() has changed.
inline constexpr TChangeCode CurrentValue = 3; ///< The value, or the current item.
inline constexpr TChangeCode Range = 4;        ///< Limits, or the whole item list.
inline constexpr TChangeCode Items = 7;        ///< Several items of a selection.
inline constexpr TChangeCode ItemInserted = 8; ///< One item came.
inline constexpr TChangeCode ItemRemoved = 9;  ///< One item went.
} // namespace ChangeCode

/// Gets told of changes. The destructor detaches from everything that is still observed.
class VALUEFRAMEWORK_EXPORT IObserver
{
public:
    IObserver();
    IObserver(const IObserver& other);            ///< The copy observes nothing.
    IObserver& operator=(const IObserver& other); ///< Keeps its own observations.
    virtual ~IObserver();

    /// The observable has changed; `code` is one of ChangeCode.
    virtual void Update(Observable* observable, TChangeCode code) = 0;

private:
    friend class Observable;
    std::vector<Observable*> m_observed;
};

/// Something whose changes can be observed.
///
/// Observers are called in the order of attachment. While a change is being told, observers may
/// attach, detach and be destroyed, and the observable itself may be destroyed: one that is
/// detached is not called any more, one that is attached is called from the next change on.
class VALUEFRAMEWORK_EXPORT Observable
{
public:
    /// Whether the user may change the value.
    enum State {
        Enabled = 0,  ///< The value can be read and set.
        Gone = 1,     ///< The object is being destroyed; observers must forget it.
        Disabled = 2, ///< The value can be read, but not set by the user.
    };

    Observable();
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    /// Tells the observers the state Gone with ChangeCode::State, then lets go of them.
    virtual ~Observable();

    /// Attaching twice counts once; null is ignored, and so is everyone once the state is Gone.
    void Attach(IObserver* observer);
    void Detach(IObserver* observer);
    int GetObserverCount() const;

    /// Enabled at first.
    State GetState() const;
    /// Enabled or Disabled; tells the observers when it changes.
    void SetState(State state);

    /// False when the observable was destroyed meanwhile: the caller must not touch it any more.
    bool Notify(TChangeCode code);

protected:
    /// Makes the state Gone and tells the observers, once. A derived class that observers may want
    /// to read for the last time calls this first in its destructor, while it is still whole.
    void announceGone();

private:
    bool forget(IObserver* observer);

    friend class IObserver;
    std::vector<IObserver*> m_observers;
    State m_state = Enabled;
    bool m_hasHoles = false;         // observers that left during a notification are null
    bool* m_destroyedFlag = nullptr; // of the innermost running notification
};
