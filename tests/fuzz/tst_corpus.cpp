// SPDX-License-Identifier: MIT
#include "readers.h"
#include "support/files.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <jtbase/errorhandler.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
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
    void everyReaderHasFiles()
    {
        QStringList names;
        for (const Fuzz::Reader& reader : Fuzz::readers())
            names << QString::fromLatin1(reader.name);
        names.sort();
        QCOMPARE(
            QDir(QStringLiteral(CORPUS)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
            names);
    }
    void file_data()
    {
        const QDir corpus(QStringLiteral(CORPUS));
        Files row;
        QDirIterator files(corpus.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            row(corpus.relativeFilePath(path).toUtf8().constData(), path, files.fileName());
        }
    }
    void file()
    {
        const auto& [path, name] = Files::fetch();
        ErrorHandler::SetTraceFlags(0); // damage is reported; here there is nobody to read it
        const Fuzz::Reader* const reader =
            Fuzz::findReader(QFileInfo(path).dir().dirName().toLatin1().constData());
        QVERIFY(reader != nullptr);
        const QByteArray bytes = readFile(path);
        QCOMPARE(reader->read(bytes), !name.startsWith(QStringLiteral("bad-")));
        // Neither what is cut off nor what is damaged stops it.
        for (qsizetype i = 0; i < bytes.size(); i += 1 + bytes.size() / 16)
            reader->read(bytes.first(i));
        RandomBytes random("corpus");
        const QDeadlineTimer enough(500); // for those that write files
        for (int round = RandomBytes::rounds(100); round > 0 && !enough.hasExpired(); --round)
            reader->read(round % 8 == 0 ? random.bytes(300) : random.mutated(bytes));
        ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags);
    }
};

QTEST_MAIN(tst_Corpus)
#include "tst_corpus.moc"
