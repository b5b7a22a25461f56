// SPDX-License-Identifier: MIT
#include "translationcenter.h"

#include "cfgcenter.h"

#include <jtbase/errorhandler.h>

#include <QCoreApplication>
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

/// The endings of file names for the language, the most special one first; none when it is no
/// language.
QStringList fileEndings(const QString& language)
{
    const QLocale locale(language);
    if (locale.language() == QLocale::C)
        return {};
    QStringList endings{locale.name(), locale.name().section(u'_', 0, 0)};
    endings.removeDuplicates();
    return endings;
}

} // namespace

class TranslationCenterPrivate
{
public:
    QStringList folders() const;
    void load(const QString& catalogue, const QStringList& endings);
    bool loadFile(const QString& file);
    void clear();
    static void releaseApplication();

    QStringList catalogues{QStringLiteral("qtbase"), QStringLiteral("guibase")};
    QStringList addedFolders;
    QStringList loadedFiles;
    std::vector<std::unique_ptr<QTranslator>> translators;
};

QStringList TranslationCenterPrivate::folders() const
{
    QStringList all = addedFolders;
    all << QStringLiteral(":/i18n")
        << QCoreApplication::applicationDirPath() + QStringLiteral("/translations")
        << QLibraryInfo::path(QLibraryInfo::TranslationsPath);
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
    return setting(QStringLiteral("Language"));
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
    const QString language = GetLanguageFromCfg();
    const QStringList endings = fileEndings(language);
    if (endings.isEmpty()) {
        if (!language.isEmpty()) {
            ErrorHandler::Trace(ErrorHandler::TracePlatform, module, __LINE__,
                                QStringLiteral("\"%1\" is no language").arg(language));
        }
        QLocale::setDefault(QLocale::system());
        return 0;
    }
    QLocale::setDefault(QLocale(language));
    for (const QString& catalogue : std::as_const(d->catalogues))
        d->load(catalogue, endings);
    qRemovePostRoutine(&TranslationCenterPrivate::releaseApplication);
    qAddPostRoutine(&TranslationCenterPrivate::releaseApplication);
    return static_cast<int>(d->translators.size());
}

QStringList TranslationCenter::GetLoadedFiles() const
{
    return d->loadedFiles;
}
