// SPDX-License-Identifier: MIT
#include "savecomponentif.h"

#include "cfgcenter.h"
#include "terminationtargets_p.h"

SaveComponentIf::~SaveComponentIf()
{
    CfgCenter::UnregisterSaveComponent(this);
}

CallbackRegistry<IAbstractTerminationTarget>& terminationTargets()
{
    // Never destroyed, see the header.
    static auto* const registry = new CallbackRegistry<IAbstractTerminationTarget>;
    return *registry;
}

IAbstractTerminationTarget::IAbstractTerminationTarget()
{
    terminationTargets().add(this);
}

IAbstractTerminationTarget::~IAbstractTerminationTarget()
{
    terminationTargets().remove(this);
}
