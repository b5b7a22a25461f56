// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/frequencies/unitprefix.h>
#include <jtbase/geoposition.h>

#include <QString>

namespace bandmonitor {

/// What the application itself keeps in its configuration; written at once, stored with the rest.
/// SessionValues keeps what the user can undo. Zone, position format, colours and window layout are
/// kept by the services.
namespace Settings {

UnitPrefix::ESuffix frequencyUnit();
void setFrequencyUnit(UnitPrefix::ESuffix unit);
UnitPrefix::ESuffix frequencyResolution();
void setFrequencyResolution(UnitPrefix::ESuffix resolution);
/// The folder of the file that was opened last; empty at first.
QString lastFolder();
void setLastFolder(const QString& folder);

/// The mode of the window, and whether a mode shows the waterfall; the defaults when nothing was
/// kept.
int mode(int standard);
void setMode(int mode);
bool isWaterfallShown(const QString& mode, bool standard);
void setWaterfallShown(const QString& mode, bool shown);
/// Whether the program goes on in the tray without its window; false at first.
bool isStayingInTray();
void setStayingInTray(bool stays);

/// Where the receiver stands; a sample position at first. Not valid where the configuration has no
/// numbers.
GeoPosition receiverPosition();
/// One that is not valid leaves no numbers.
void setReceiverPosition(const GeoPosition& position);

} // namespace Settings

} // namespace bandmonitor
