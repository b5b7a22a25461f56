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
/// "de_AT", or "system" for that of the desktop), "Font" and "WindowsFont" (font families).
/// Translation files are named "<catalogue>_<language>.qm" and looked up in the folders added, then
/// in ":/i18n", then in "translations" beside the program, then in Qt's own folder. Whatever a
/// program or a library has embedded in ":/i18n" is found without being named.
class TROVAPPSTARTUP_EXPORT TranslationCenter
{
public:
    /// Made by the first call.
    static TranslationCenter& Instance();

    /// What the configuration holds; empty without.
    static QString GetLanguageFromCfg();
    /// Keeps the language in the configuration, for the next Init().
    static void SetLanguage2Cfg(const QString& language);
    static QString GetFontFromCfg();
    static QString GetWindowsFontFromCfg();

    /// The language of Init(): that of SetLanguage(), else the configured one, else that of
    /// SetDefaultLanguage(). Empty when none of them names one.
    QString GetLanguage() const;
    /// Counts while the configuration names none; empty at first.
    void SetDefaultLanguage(const QString& language);
    /// Counts whatever the configuration says, and leaves it as it is; empty at first. For a
    /// language on the command line.
    void SetLanguage(const QString& language);

    /// The languages that the catalogue is embedded in, in alphabetical order.
    static QStringList GetLanguages(const QString& catalogue);

    /// Adds a catalogue that is not embedded ("qtbase" is there from the start), or a folder to
    /// look in.
    void AddCatalogue(const QString& name);
    void AddFolder(const QString& folder);

    /// Makes the language the default locale and installs its translators on the application,
    /// replacing those of an earlier call. Without a language it removes them and goes back to the
    /// system's locale. Returns the number of catalogues found; a missing file is no error (English
    /// texts are in the code). Needs the application object.
    int Init();
    QStringList GetLoadedFiles() const;

private:
    friend class TranslationCenterPrivate;

    TranslationCenter();
    ~TranslationCenter();

    std::unique_ptr<TranslationCenterPrivate> d;
};
