// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/colorsetcodec.h>

#include <QString>

#include <optional>
#include <span>

/// The colour sets that come with the library beside the factory assignment, one for dark desktops,
/// and one that tells apart by lightness, blue and yellow what others tell by red and green. Their
/// names cannot be opened as files, so that saving one asks for a file.
namespace ColorSetBuiltIn {

struct Set
{
    const char* name; ///< To be translated in the context "ColorSet".
    ColorSetCodec::Ids ids;
};

/// The names of all sets.
std::span<const char* const> names();
/// The set with this name, also translated; nothing for another name.
std::optional<Set> find(const QString& name);

/// What the user reads for the name of a set; the names of files are the same in every language.
QString shownName(const QString& name, bool isChanged);

} // namespace ColorSetBuiltIn
