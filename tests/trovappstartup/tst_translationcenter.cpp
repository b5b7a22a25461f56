// SPDX-License-Identifier: MIT
#include "support/testguard.h"

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/translationcenter.h>

#include <QCoreApplication>
#include <QDataStream>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

/// A compiled translation file that translates "Hello" of the context "Test": one message, and the
/// table of hashes (of the source text, as in object files of the ELF format) that leads to it.
QByteArray translationFile(const QString& translation)
{
    enum Tag : quint8 {
        End = 1,
        Translation = 3,
        SourceText = 6,
        Context = 7,
        Hashes = 0x42,
        Messages = 0x69
    };
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

QString hello()
{
    return QCoreApplication::translate("Test", "Hello");
}

} // namespace

class TestTranslationCenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(guard->finish(), QString());
        guard.reset();
    }
    void installsTheConfiguredLanguage_data();
    void installsTheConfiguredLanguage();

private:
    std::unique_ptr<TestGuard> guard;
};

void TestTranslationCenter::installsTheConfiguredLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("localeName");
    QTest::addColumn<QString>("trace");
    const auto row = [](const char* language, const char* translation, const char* localeName,
                        const char* trace = "") {
        QTest::newRow(language) << QString::fromLatin1(language) << QString::fromLatin1(translation)
                                << QString::fromLatin1(localeName) << QString::fromLatin1(trace);
    };
    row("de", "Hallo", "de_DE");
    row("de_AT", "Servus", "de_AT");
    row("de-CH", "Hallo", "de_CH");
    row("fr", "Hello", "fr_FR", "is no translation file");
    row("it", "Hello", "it_IT");
    row("../de", "Hello", "", "is no language");
    row("", "Hello", "");
}

// The centre lives as long as the process: each row replaces what the row before it installed.
void TestTranslationCenter::installsTheConfiguredLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, localeName);
    QFETCH(QString, trace);
    QTemporaryDir folder;
    for (const auto& [name, bytes] :
         {std::pair(QStringLiteral("own_de.qm"), translationFile(QStringLiteral("Hallo"))),
          std::pair(QStringLiteral("own_de_AT.qm"), translationFile(QStringLiteral("Servus"))),
          std::pair(QStringLiteral("own_fr.qm"), QByteArray("no translations"))}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    TranslationCenter& center = TranslationCenter::Instance();
    center.AddCatalogue(QStringLiteral("own"));
    center.AddFolder(folder.path());
    CfgCenter::GetAppCfg(SettingsView)->SetString(QStringLiteral("Language"), language);
    CfgCenter::GetAppCfg(SettingsView)->SetString(QStringLiteral("Font"), QStringLiteral("Mono"));
    if (!trace.isEmpty())
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(trace));

    const int found = center.Init();
    QTEST(hello(), "translation");
    QCOMPARE(found, center.GetLoadedFiles().size());
    QCOMPARE(QLocale().name(), localeName.isEmpty() ? QLocale::system().name() : localeName);
    QCOMPARE(TranslationCenter::GetLanguageFromCfg(), language);
    QCOMPARE(TranslationCenter::GetFontFromCfg(), QStringLiteral("Mono"));
    QCOMPARE(TranslationCenter::GetWindowsFontFromCfg(), QString());
}

QTEST_GUILESS_MAIN(TestTranslationCenter)
#include "tst_translationcenter.moc"
