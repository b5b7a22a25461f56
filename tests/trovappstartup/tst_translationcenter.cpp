// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/guardedtest.h"
#include "support/testrows.h"

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/translationcenter.h>

#include <QCoreApplication>
#include <QDataStream>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A compiled translation file that translates "Hello" of the context "Test": one message, and the
/// table of hashes (of the source text, as in object files of the ELF format) that leads to it.
QByteArray translationFile(const QString& translation)
{
    enum Tag : quint8 { End = 1, Translation = 3, SourceText = 6, Context = 7 };
    enum Section : quint8 { Hashes = 0x42, Messages = 0x69 };
    const QByteArray source = "Hello";
    quint32 hash = 0;
    for (const char character : source) {
        hash = (hash << 4) + static_cast<quint32>(character);
        const quint32 high = hash & 0xf0000000U;
        hash = (hash ^ (high >> 24)) & ~high;
    }
    QByteArray messages;
    QDataStream message(&messages, QIODevice::WriteOnly);
    message << quint8(Translation) << translation;
    for (const auto& [tag, text] :
         {std::pair(SourceText, source), std::pair(Context, QByteArray("Test"))}) {
        message << quint8(tag) << quint32(text.size());
        message.writeRawData(text.constData(), static_cast<int>(text.size()));
    }
    message << quint8(End);

    const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.writeRawData(magic.constData(), static_cast<int>(magic.size()));
    out << quint8(Hashes) << quint32(8) << hash << quint32(0);
    out << quint8(Messages) << messages; // a byte array is written with its length, as a section is
    return file;
}

} // namespace

class TestTranslationCenter : public GuardedTest
{
    Q_OBJECT
    using Languages = TestRows<QString, QString, QString, const char*>;

private Q_SLOTS:
    void installsTheConfiguredLanguage_data()
    {
        Languages row;
        row.add("de", "Hallo", "de_DE", "");
        row.add("de_AT", "Servus", "de_AT", "");
        row.add("de-CH", "Hallo", "de_CH", "");
        row.add("fr", "Hello", "fr_FR", "is no translation file");
        row.add("it", "Hello", "it_IT", "");
        row.add("../de", "Hello", "", "is no language");
        row.add("", "Hello", "", "");
    }
    /// The centre lives as long as the process: each row replaces what the row before installed.
    void installsTheConfiguredLanguage()
    {
        const auto& [language, translation, localeName, trace] = Languages::fetch();
        QTemporaryDir folder;
        for (const auto& [name, bytes] :
             {std::pair("own_de.qm", translationFile(QStringLiteral("Hallo"))),
              std::pair("own_de_AT.qm", translationFile(QStringLiteral("Servus"))),
              std::pair("own_fr.qm", QByteArray("no translations"))})
            QVERIFY(writeFile(folder.filePath(QString::fromLatin1(name)), bytes));
        TranslationCenter& center = TranslationCenter::Instance();
        center.AddCatalogue(QStringLiteral("own"));
        center.AddFolder(folder.path());
        CfgCenter::GetAppCfg(SettingsView)->SetString(QStringLiteral("Language"), language);
        CfgCenter::GetAppCfg(SettingsView)
            ->SetString(QStringLiteral("Font"), QStringLiteral("Mono"));
        if (*trace != 0)
            expectTrace(trace);

        const int found = center.Init();
        QCOMPARE(QCoreApplication::translate("Test", "Hello"), translation);
        QCOMPARE(found, center.GetLoadedFiles().size());
        QCOMPARE(QLocale().name(), localeName.isEmpty() ? QLocale::system().name() : localeName);
        QCOMPARE(TranslationCenter::GetLanguageFromCfg(), language);
        QCOMPARE(TranslationCenter::GetFontFromCfg(), QStringLiteral("Mono"));
        QCOMPARE(TranslationCenter::GetWindowsFontFromCfg(), QString());
    }
};

QTEST_GUILESS_MAIN(TestTranslationCenter)
#include "tst_translationcenter.moc"
