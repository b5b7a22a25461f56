// SPDX-License-Identifier: MIT
#pragma once

/// The steps of preparing an application object that belong to no other duty.
namespace ApplicationSetup {

/// Installs the language that is configured or set; false without one.
bool installLanguage();
/// Replaces the error handler's message dialog, when it has one, by the family's own with the same
/// settings.
void replaceMessageDialog();

} // namespace ApplicationSetup
