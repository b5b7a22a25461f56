// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the services need of the application's colour set.
namespace ApplicationColors {

/// Makes sure that the colour set is there.
void ensure();
void restoreFactoryColors();
/// Loads the colour set from the file; an empty name changes nothing. Returns the name of the set
/// that is active then.
QString load(const QString& fileName);
QString activeName();

} // namespace ApplicationColors
