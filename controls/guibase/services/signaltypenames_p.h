// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The translated name of the signal type with this letter; "Unknown" for a letter without a type.
/// Every character up to 'Z' counts as its successor by 32, which makes upper-case letters lower.
QString signalTypeName(char letter);
