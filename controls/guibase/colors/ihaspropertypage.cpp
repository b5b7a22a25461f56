// SPDX-License-Identifier: MIT
#include <guibase/colors/ihaspropertypage.h>

IHasPropertyPage::~IHasPropertyPage() = default;
