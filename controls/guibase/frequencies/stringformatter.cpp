// SPDX-License-Identifier: MIT
#include "stringformatter.h"

IStringFormatter::~IStringFormatter() = default;
