// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/observable.h>

#include <functional>

/// An observer that does what it is told.
class Probe : public IObserver
{
public:
    using Reaction = std::function<void(Probe*, Observable*, TChangeCode)>;

    explicit Probe(Reaction reaction)
        : m_reaction(std::move(reaction))
    {}
    void Update(Observable* observable, TChangeCode code) override
    {
        const Reaction reaction = m_reaction; // the reaction may destroy this object
        reaction(this, observable, code);
    }

private:
    Reaction m_reaction;
};
