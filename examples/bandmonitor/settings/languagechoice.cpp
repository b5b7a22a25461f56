// SPDX-License-Identifier: MIT
#include "settings/languagechoice.h"

#include <trovappstartup/translationcenter.h>

#include <QCoreApplication>
#include <QLocale>

namespace bandmonitor {

namespace {

const QString systemLanguage = QStringLiteral("system");

/// As the speakers of the language call it.
QString nameOf(const QString& language)
{
    if (language == systemLanguage)
        return QCoreApplication::translate("bandmonitor::LanguageChoice", "As the system",
                                           "Language");
    return language == QLatin1String("en") ? QStringLiteral("English")
                                           : QLocale(language).nativeLanguageName();
}

/// What the configuration names, which need not be one of the choice.
QString keptLanguage()
{
    const QString language = TranslationCenter::GetLanguageFromCfg();
    return language.isEmpty() ? systemLanguage : language;
}

} // namespace

LanguageChoice::LanguageChoice()
    : m_languages(QStringList{systemLanguage, QStringLiteral("en")} +
                  TranslationCenter::GetLanguages(QStringLiteral("bandmonitor")))
    , m_selection(QStringLiteral("language"))
{
    for (int index = 0; index < m_languages.size(); ++index)
        m_selection.AddItem(SelectionItem(nameOf(m_languages[index]), false, index));
    m_selection.SetCurrentIndex(static_cast<int>(m_languages.indexOf(keptLanguage())));
}

bool LanguageChoice::keep()
{
    const QString chosen = m_languages.value(m_selection.GetCurrentIndex());
    if (chosen.isEmpty() || chosen == keptLanguage())
        return false;
    TranslationCenter::SetLanguage2Cfg(chosen);
    return true;
}

} // namespace bandmonitor
