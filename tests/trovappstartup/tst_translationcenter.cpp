// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/guardedtest.h"

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/translationcenter.h>

#include <QCoreApplication>
#include <QLocale>

namespace {

// Compiled translation files: "Hello" of the context "Test" is "Hallo" or "Servus".
const QByteArray germanFile = QByteArray::fromBase64(
    "PLhkGMrvnJXNIRy/YKG93UIAAAAIAE7DLwAAAABpAAAAIwMAAAAKAEgAYQBsAGwAbwYAAAAFSGVsbG8H"
    "AAAABFRlc3QB");
const QByteArray austrianFile = QByteArray::fromBase64(
    "PLhkGMrvnJXNIRy/YKG93UIAAAAIAE7DLwAAAABpAAAAJQMAAAAMAFMAZQByAHYAdQBzBgAAAAVIZWxs"
    "bwcAAAAEVGVzdAE=");

} // namespace

class tst_TranslationCenter : public GuardedTest
{
    Q_OBJECT
    using Languages = TestRows<QString, QString, QString, const char*>;

private Q_SLOTS:
    void installsTheConfiguredLanguage_data()
    {
        Languages row;
        row.add("de_AT", "Servus", "de_AT", "");
        row.add("de-CH", "Hallo", "de_CH", "");
        row.add("fr", "Hello", "fr_FR", "is no translation file");
        row.add("it", "Hello", "it_IT", "");
        row.add("../de", "Hello", "", "is no language");
        row.add("system", "Hello", "", "");
        row.add("", "Hello", "", "");
    }
    /// The centre lives as long as the process: each row replaces what the row before installed.
    void installsTheConfiguredLanguage()
    {
        const auto& [language, translation, localeName, trace] = Languages::fetch();
        for (const auto& [name, bytes] :
             {std::pair("own_de.qm", germanFile), std::pair("own_de_AT.qm", austrianFile),
              std::pair("own_fr.qm", QByteArray("no translations"))})
            QVERIFY(writeFile(filePath(QString::fromLatin1(name)), bytes));
        TranslationCenter& center = TranslationCenter::Instance();
        center.AddCatalogue(QStringLiteral("own"));
        center.AddFolder(folder());
        CfgCenter::GetAppCfg(SettingsView)->SetString(QStringLiteral("Language"), language);
        if (*trace != 0)
            expectTrace(trace);

        const int found = center.Init();
        QCOMPARE(QCoreApplication::translate("Test", "Hello"), translation);
        QCOMPARE(found, center.GetLoadedFiles().size());
        QCOMPARE(QLocale().name(), localeName.isEmpty() ? QLocale::system().name() : localeName);
    }

    /// A command line goes before the configuration, and a program's own default after it.
    void takesTheFirstLanguageThatIsNamed()
    {
        TranslationCenter& center = TranslationCenter::Instance();
        QCOMPARE(center.GetLanguage(), QString());
        center.SetDefaultLanguage(QStringLiteral("it"));
        QCOMPARE(center.GetLanguage(), QStringLiteral("it"));
        TranslationCenter::SetLanguage2Cfg(QStringLiteral("fr"));
        QCOMPARE(center.GetLanguage(), QStringLiteral("fr"));
        center.SetLanguage(QStringLiteral("de"));
        QCOMPARE(center.GetLanguage(), QStringLiteral("de"));
        QCOMPARE(TranslationCenter::GetLanguageFromCfg(), QStringLiteral("fr"));

        // The libraries bring their catalogues with them, where they could be compiled.
        const bool hasGerman = TranslationCenter::GetLanguages(QStringLiteral("jtbase"))
                                   .contains(QStringLiteral("de"));
        QVERIFY(center.Init() >= (hasGerman ? 1 : 0));
        QCOMPARE(QCoreApplication::translate("CoordFormat", "Degrees"),
                 hasGerman ? QStringLiteral("Grad") : QStringLiteral("Degrees"));
        center.SetLanguage({});
        center.SetDefaultLanguage({});
    }
};

QTEST_GUILESS_MAIN(tst_TranslationCenter)
#include "tst_translationcenter.moc"
