// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QColor>

/// The 16 colours of the catalogue that the user can redefine. Redefined ones are kept in the
/// configuration under "UserColors", by their ids.
namespace UserColors {

/// Takes the kept colours over into the catalogue. A text that is no colour counts as not there; it
/// is kept aside under its name followed by "_damaged".
GUIBASE_EXPORT void read();
/// Redefines the user colour with this id (see Colors), everywhere where it is used, and keeps it.
/// The caller announces it by GuiBase::emit_signalColorsChanged(). False for an id of no user
/// colour, and for an invalid colour.
GUIBASE_EXPORT bool redefine(int id, const QColor& color);

} // namespace UserColors
