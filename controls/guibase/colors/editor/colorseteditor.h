// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// How the colour set comes to its editor without knowing it: the editor registers a maker.
namespace ColorSetEditor {

/// Makes an editor under `parent`, which owns it. The editor has a slot "slotAcceptChanges()".
using Maker = QWidget* (*)(QWidget* parent);

/// The last one counts; null takes the editor away. May be called before main().
void setMaker(Maker maker);

/// A new editor; null while no maker is registered.
QWidget* make(QWidget* parent);

} // namespace ColorSetEditor
