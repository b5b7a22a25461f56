// SPDX-License-Identifier: MIT
#include "imessagedlg.h"

IMessageSuppressionStore::~IMessageSuppressionStore() = default;

IMessageDlg::~IMessageDlg() = default;
