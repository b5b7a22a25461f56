// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QString>

/// Questions to the user that survive the death of their parent while they are open, which the
/// toolkit's static functions do not: there the dying parent deletes a dialog on the stack.
///
/// Without a widget application there is nobody to ask: boxes are answered with NoButton and file
/// dialogs with an empty name, as they are when the parent dies.
namespace ModalDialogs {

struct Box
{
    QMessageBox::Icon icon = QMessageBox::Information;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
};

/// Shows the box and waits for the answer. The text is shown as it is, without markup.
QMessageBox::StandardButton show(QWidget* parent, const Box& box);

/// What a file dialog is opened with; the options come from GuiBase::UseNativeDialogs().
struct FileQuestion
{
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    QString title;
    QString startAt; ///< A folder, or a file that is proposed.
    QString filter;
    /// What a new name gets that has no '.', before the user is asked whether to replace a file.
    QString defaultSuffix = {};
};

/// The name that the user chose, or an empty text.
QString askForFile(QWidget* parent, const FileQuestion& question);

} // namespace ModalDialogs
