// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the services need of the application's colour set.
namespace ApplicationColors {

/// Makes sure that the colour set is there.
void ensure();
/// Takes the system colours from the application's palette: the colour set may have been made
/// before there was one.
void readSystemColors();
/// The user colours as the configuration has them.
void readUserColors();
/// The set for dark desktops when the desktop is dark, unless the user has a set of his own.
void chooseByDesktop();
/// The desktop's colours have changed: takes the system colours anew, and the other one of the two
/// sets for light and dark desktops if one of them is active and unchanged. The caller announces
/// it.
void followDesktop();
void restoreFactoryColors();
/// Loads the colour set from the file; an empty name changes nothing. Returns the name of the set
/// that is active then.
QString load(const QString& fileName);
QString activeName();
/// The number of the signal type with this letter, from 0 for 'a'; any letter is taken.
int signalTypeIndex(char letter);

} // namespace ApplicationColors
