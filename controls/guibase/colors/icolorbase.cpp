// SPDX-License-Identifier: MIT
#include <guibase/colors/icolorbase.h>

IColorBase::~IColorBase() = default;
