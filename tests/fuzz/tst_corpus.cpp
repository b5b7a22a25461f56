// SPDX-License-Identifier: MIT
#include "readers.h"
#include "support/guardedtest.h"
#include "support/testrows.h"

#include <jtbase/errorhandler.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

QtMessageHandler testHandler = nullptr;

/// The toolkit warns of texts that do not inflate; here nothing else is to be expected of them.
void dropInflateWarnings(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QStringLiteral("qUncompress")))
        testHandler(type, context, text);
}

} // namespace

/// Every reader with every file of its corpus: what it must read, what it must refuse ("bad-…"),
/// and what once led it astray.
class tst_Corpus : public GuardedTest
{
    Q_OBJECT
    using Files = TestRows<QString, QString>;

protected:
    void prepare() override { testHandler = qInstallMessageHandler(&dropInflateWarnings); }
    void tidy() override { qInstallMessageHandler(testHandler); }

private Q_SLOTS:
    void everyReaderHasFiles();
    void file_data();
    void file();
};

void tst_Corpus::everyReaderHasFiles()
{
    QStringList names;
    for (const Fuzz::Reader& reader : Fuzz::readers())
        names << QString::fromLatin1(reader.name);
    names.sort();
    QCOMPARE(QDir(QStringLiteral(CORPUS)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
             names);
}

void tst_Corpus::file_data()
{
    const QDir corpus(QStringLiteral(CORPUS));
    Files row;
    QDirIterator files(corpus.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        row(corpus.relativeFilePath(path).toUtf8().constData(), path, files.fileName());
    }
}

void tst_Corpus::file()
{
    const auto& [path, name] = Files::fetch();
    ErrorHandler::SetTraceFlags(0); // damage is reported; here there is nobody to read it
    const Fuzz::Reader* const reader =
        Fuzz::findReader(QFileInfo(path).dir().dirName().toLatin1().constData());
    QVERIFY(reader != nullptr);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QCOMPARE(reader->read(bytes), !name.startsWith(QStringLiteral("bad-")));
    // Neither what is cut off nor a byte that has changed stops it.
    for (qsizetype i = 0; i < bytes.size(); i += 1 + bytes.size() / 16) {
        reader->read(bytes.first(i));
        QByteArray changed = bytes;
        changed[i] = static_cast<char>(changed.at(i) ^ 0x55);
        reader->read(changed);
    }
    ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags);
}

QTEST_MAIN(tst_Corpus)
#include "tst_corpus.moc"
