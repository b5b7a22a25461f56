// SPDX-License-Identifier: MIT
#pragma once

#include "callbackregistry_p.h"

class IAbstractTerminationTarget;

/// The termination targets of the process. Stays until the process has ended, since targets with
/// static storage unregister themselves then.
CallbackRegistry<IAbstractTerminationTarget>& terminationTargets();
