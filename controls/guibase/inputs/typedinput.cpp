// SPDX-License-Identifier: MIT
#include "typedinput.h"

TypedInput::~TypedInput() = default;
