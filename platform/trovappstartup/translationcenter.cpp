// SPDX-License-Identifier: MIT
#include "translationcenter.h"

#include "cfgcenter.h"

#include <jtbase/errorhandler.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <vector>

namespace {

constexpr char module[] = "trovappstartup/translationcenter";

QString setting(const QString& key)
{
    return CfgCenter::GetAppCfg(SettingsView)->GetString(key).trimmed();
}

const QString systemLanguage = QStringLiteral("system");
const QString embeddedFolder = QStringLiteral(":/i18n");
const QString languageKey = QStringLiteral("Language");

/// The locale of the language. The desktop may show texts in another language than numbers.
QLocale localeOf(const QString& language)
{
    return QLocale(language == systemLanguage ? QLocale::system().uiLanguages().value(0)
                                              : language);
}

/// The endings of file names for the language, the most special one first; none when it is no
/// language.
QStringList fileEndings(const QString& language)
{
    const QLocale locale = localeOf(language);
    if (locale.language() == QLocale::C)
        return {};
    QStringList endings{locale.name(), locale.name().section(u'_', 0, 0)};
    endings.removeDuplicates();
    return endings;
}

/// What stands before `ending` and after `beginning` in the names of the embedded files.
QStringList embeddedParts(const QString& beginning, const QString& ending)
{
    QStringList parts =
        QDir(embeddedFolder).entryList({beginning + u'*' + ending}, QDir::Files, QDir::Name);
    for (QString& part : parts)
        part = part.mid(beginning.size()).chopped(ending.size());
    return parts;
}

} // namespace

class TranslationCenterPrivate
{
public:
    QStringList folders() const;
    QStringList cataloguesFor(const QStringList& endings) const;
    void load(const QString& catalogue, const QStringList& endings);
    bool loadFile(const QString& file);
    void clear();
    static void releaseApplication();

    QString language;
    QString defaultLanguage;
    QStringList catalogues{QStringLiteral("qtbase")};
    QStringList addedFolders;
    QStringList loadedFiles;
    std::vector<std::unique_ptr<QTranslator>> translators;
};

QStringList TranslationCenterPrivate::folders() const
{
    QStringList all = addedFolders;
    all << embeddedFolder
        << QCoreApplication::applicationDirPath() + QStringLiteral("/translations")
        << QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    return all;
}

QStringList TranslationCenterPrivate::cataloguesFor(const QStringList& endings) const
{
    QStringList all = catalogues;
    for (const QString& ending : endings)
        all << embeddedParts({}, QStringLiteral("_%1.qm").arg(ending));
    all.removeDuplicates();
    return all;
}

void TranslationCenterPrivate::load(const QString& catalogue, const QStringList& endings)
{
    const QStringList all = folders();
    for (const QString& ending : endings) {
        for (const QString& folder : all) {
            const QString file = QStringLiteral("%1/%2_%3.qm").arg(folder, catalogue, ending);
            if (QFileInfo(file).isFile() && loadFile(file))
                return;
        }
    }
}

bool TranslationCenterPrivate::loadFile(const QString& file)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file)) {
        ErrorHandler::Trace(ErrorHandler::TracePlatform, module, __LINE__,
                            QStringLiteral("\"%1\" is no translation file").arg(file));
        return false;
    }
    QCoreApplication::installTranslator(translator.get());
    translators.push_back(std::move(translator));
    loadedFiles << file;
    return true;
}

void TranslationCenterPrivate::clear()
{
    // A translator takes itself off the application when it dies.
    translators.clear();
    loadedFiles.clear();
}

void TranslationCenterPrivate::releaseApplication()
{
    TranslationCenter::Instance().d->clear();
}

TranslationCenter::TranslationCenter()
    : d(std::make_unique<TranslationCenterPrivate>())
{}

TranslationCenter::~TranslationCenter() = default;

TranslationCenter& TranslationCenter::Instance()
{
    // Never destroyed, so that objects with static storage can use it until the end.
    static auto* const instance = new TranslationCenter;
    return *instance;
}

QString TranslationCenter::GetLanguageFromCfg()
{
    return setting(languageKey);
}

void TranslationCenter::SetLanguage2Cfg(const QString& language)
{
    CfgCenter::GetAppCfg(SettingsView)->SetString(languageKey, language);
}

QString TranslationCenter::GetLanguage() const
{
    if (!d->language.isEmpty())
        return d->language;
    const QString configured = GetLanguageFromCfg();
    return configured.isEmpty() ? d->defaultLanguage : configured;
}

void TranslationCenter::SetDefaultLanguage(const QString& language)
{
    d->defaultLanguage = language;
}

void TranslationCenter::SetLanguage(const QString& language)
{
    d->language = language;
}

QStringList TranslationCenter::GetLanguages(const QString& catalogue)
{
    return embeddedParts(catalogue + u'_', QStringLiteral(".qm"));
}

QString TranslationCenter::GetFontFromCfg()
{
    return setting(QStringLiteral("Font"));
}

QString TranslationCenter::GetWindowsFontFromCfg()
{
    return setting(QStringLiteral("WindowsFont"));
}

void TranslationCenter::AddCatalogue(const QString& name)
{
    if (!name.isEmpty() && !d->catalogues.contains(name))
        d->catalogues << name;
}

void TranslationCenter::AddFolder(const QString& folder)
{
    if (!folder.isEmpty() && !d->addedFolders.contains(folder))
        d->addedFolders << folder;
}

int TranslationCenter::Init()
{
    if (!TROV_ASSERT(QCoreApplication::instance() != nullptr, module))
        return 0;
    d->clear();
    const QString language = GetLanguage();
    const QStringList endings = fileEndings(language);
    if (endings.isEmpty()) {
        if (!language.isEmpty() && language != systemLanguage) {
            ErrorHandler::Trace(ErrorHandler::TracePlatform, module, __LINE__,
                                QStringLiteral("\"%1\" is no language").arg(language));
        }
        QLocale::setDefault(QLocale::system());
        return 0;
    }
    QLocale::setDefault(localeOf(language));
    const QStringList catalogues = d->cataloguesFor(endings);
    for (const QString& catalogue : catalogues)
        d->load(catalogue, endings);
    qRemovePostRoutine(&TranslationCenterPrivate::releaseApplication);
    qAddPostRoutine(&TranslationCenterPrivate::releaseApplication);
    return static_cast<int>(d->translators.size());
}

QStringList TranslationCenter::GetLoadedFiles() const
{
    return d->loadedFiles;
}
