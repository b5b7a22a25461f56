// SPDX-License-Identifier: MIT
#include "icfg.h"

ICfg::~ICfg() = default;
