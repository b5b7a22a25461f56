// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/colorsetcodec.h>

#include <QString>

#include <optional>

class QWidget;

/// The colour set's way to the disk and the questions about it.
namespace ColorSetFile {

enum class WriteResult { Written, CannotOpen, WriteFailed };

/// Whether it makes sense to open the name: not empty, not one of the names that stand for "no file
/// yet" (they begin with two asterisks), and not the name of a folder, a pipe or a device.
bool isOpenable(const QString& name);

/// The whole path of a relative name, so that it means the same file in another current folder. A
/// name that is not openable stays as it is.
QString absoluteName(const QString& name);

/// What is stored for a name that the user chose: its last part in lower case, with ".cst" at the
/// end when that part does not hold it. The folders stay as they are, else a file in a folder with
/// capitals could not be reached where capitals count. An empty name stays empty.
QString storedName(const QString& chosen);

/// Writes the ids so that the file holds them and nothing else, whatever it held before. A file
/// that exists is replaced as a whole or, on failure, left as it was; its permissions stay. Only
/// where its folder admits no second file it is written in place.
WriteResult write(const QString& name, const ColorSetCodec::Ids& ids);

/// Without value when the file cannot be opened.
std::optional<ColorSetCodec::Ids> read(const QString& name);

/// Shows an information box with Yes (default) and No (Escape); true for Yes. False when there is
/// nobody to ask.
bool ask(QWidget* parent, const QString& title, const QString& text);

/// The stored name of the file that the user chose in a file dialog; empty when the dialog was
/// cancelled, or when there is nobody to ask.
QString chooseForSaving(QWidget* parent, const QString& title);
QString chooseForLoading(QWidget* parent, const QString& title);

} // namespace ColorSetFile
