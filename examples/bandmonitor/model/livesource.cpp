// SPDX-License-Identifier: MIT
#include "livesource.h"

namespace bandmonitor {

LiveSource::~LiveSource() = default;

} // namespace bandmonitor
