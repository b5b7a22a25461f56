// SPDX-License-Identifier: MIT
#pragma once

class HotKeyRegistry;
class QWidget;

/// The overview of the hot keys for the operator, who can change them there.
///
/// A key that fires two things has a warning sign, and a tool tip that names the others. Activating
/// a row opens the editor. A change acts at once; Cancel takes the changes of this visit back.
namespace HotKeyOverview {

/// A list with one row for each hot key; belongs to the parent. The registry must outlive it.
QWidget* createList(HotKeyRegistry& registry, QWidget* parent);
/// Shows the modal overview dialog, or tells that there are no hot keys, and waits until it is
/// closed.
void exec(HotKeyRegistry& registry, QWidget* parent);

} // namespace HotKeyOverview
