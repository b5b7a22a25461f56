// SPDX-License-Identifier: MIT
#pragma once

#include <trovappstartup/trovappstartup_export.h>

#include <QString>
#include <QStringList>

#include <memory>

class TranslationCenterPrivate;

/// Installs the translations of the configured language, and tells the configured fonts.
///
/// The application configuration, settings view, holds "Language" (a locale name such as "de" or
/// "de_AT"), "Font" and "WindowsFont" (font families). Translation files are named
/// "<catalogue>_<language>.qm" and looked up in the folders added, then in ":/i18n", then in
/// "translations" beside the program, then in Qt's own folder.
class TROVAPPSTARTUP_EXPORT TranslationCenter
{
public:
    /// Made by the first call.
    static TranslationCenter& Instance();

    /// What the configuration holds; empty without.
    static QString GetLanguageFromCfg();
    static QString GetFontFromCfg();
    static QString GetWindowsFontFromCfg();

    /// Adds a catalogue ("qtbase" and "guibase" are there from the start) or a folder to look in.
    void AddCatalogue(const QString& name);
    void AddFolder(const QString& folder);

    /// Makes the configured language the default locale and installs its translators on the
    /// application, replacing those of an earlier call. Without a configured language it removes
    /// them and goes back to the system's locale. Returns the number of catalogues found; a
    /// missing file is no error (English texts are in the code). Needs the application object.
    int Init();
    QStringList GetLoadedFiles() const;

private:
    friend class TranslationCenterPrivate;

    TranslationCenter();
    ~TranslationCenter();

    std::unique_ptr<TranslationCenterPrivate> d;
};
