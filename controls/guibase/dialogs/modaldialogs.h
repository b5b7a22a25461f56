// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QColor>
#include <QFileDialog>
#include <QMessageBox>
#include <QString>

#include <functional>

/// Questions to the user that survive the death of their parent while they are open, which the
/// toolkit's static functions do not: there the dying parent deletes a dialog on the stack.
///
/// Without a widget application, and in an unattended program, there is nobody to ask: boxes are
/// answered with NoButton and file dialogs with an empty name, as they are when the parent dies.
namespace ModalDialogs {

/// Says that nobody sits at the program, as when it runs from a script; false at start. From then
/// on no question of the library waits for an answer. Its text goes to the trace instead.
GUIBASE_EXPORT void setUnattended(bool unattended);
GUIBASE_EXPORT bool isUnattended();

/// What a message box shows and offers.
struct Box
{
    /// As in QMessageBox.
    QMessageBox::Icon icon = QMessageBox::Information;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    /// Stands below the text, smaller; plain text, empty for none.
    QString more = {};
};

/// Shows the box and waits for the answer. The text is shown as it is, without markup.
GUIBASE_EXPORT QMessageBox::StandardButton show(QWidget* parent, const Box& box);

/// What a file dialog is opened with; the options come from GuiBase::UseNativeDialogs().
struct FileQuestion
{
    /// As in QFileDialog.
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    QString title;
    QString startAt; ///< A folder, or a file that is proposed.
    /// As QFileDialog takes it: "Notes (*.txt)".
    QString filter;
    /// Makes the name of the file from what the user chose. When none is set, names of files to
    /// save get what withExtension() adds.
    std::function<QString(const QString& chosen)> fileName = {};
};

/// The name of the file to open or to save, or an empty text. The user is asked before a file that
/// exists is named for saving, also when that is not the very name that was typed.
GUIBASE_EXPORT QString askForFile(QWidget* parent, const FileQuestion& question);

/// The name with the first extension of the filter (".cst" for "*.cst") when its last part has no
/// '.'. Parts are separated by '/' only.
GUIBASE_EXPORT QString withExtension(const QString& name, const QString& filter);

/// The color that the user chose; an invalid one when there is none.
QColor askForColor(QWidget* parent, const QColor& initial, const QString& title);

} // namespace ModalDialogs
