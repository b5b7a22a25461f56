// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The translated name of the signal type with this number (0 for 'a'); "Unknown" for others.
QString signalTypeName(int index);
