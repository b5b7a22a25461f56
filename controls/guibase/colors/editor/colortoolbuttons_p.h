// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QToolButton;
class QWidget;

/// The small buttons of the colour editor's tool bar, with icons in the colour of the texts.
namespace ColorToolButtons {

/// The text is the button's tool tip and object name.
QToolButton* makeOpen(const QString& text, QWidget* parent);
QToolButton* makeSave(const QString& text, QWidget* parent);

} // namespace ColorToolButtons
