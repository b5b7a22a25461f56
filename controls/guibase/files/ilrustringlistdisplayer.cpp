// SPDX-License-Identifier: MIT
#include "ilrustringlistdisplayer.h"

ILruStringListDisplayer::~ILruStringListDisplayer() = default;
