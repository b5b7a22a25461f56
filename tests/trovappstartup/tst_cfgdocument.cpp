// SPDX-License-Identifier: MIT
#include "support/randombytes.h"

#include <trovappstartup/cfgdocument_p.h>

#include <QTest>

namespace {

CfgDocument documentOf(const QByteArray& text)
{
    QString reason;
    auto document = CfgDocument::fromText(text, &reason);
    if (!document)
        qFatal("%s", qPrintable(reason));
    return std::move(*document);
}

/// One of few names, so that values and sub-configurations often meet under the same one.
QString someName(RandomBytes& random)
{
    static const QStringList names{QStringLiteral("a"), QStringLiteral("b"),
                                   QString(QChar(0xD800)) + QChar(0),
                                   QStringLiteral("\u00e4 \"\\/")};
    return names.at(random.below(static_cast<int>(names.size())));
}

QStringList somePath(RandomBytes& random)
{
    QStringList path;
    for (int levels = random.below(4); levels > 0; --levels)
        path << someName(random);
    return path;
}

void changeSomething(RandomBytes& random, CfgDocument& document)
{
    const QStringList path = somePath(random);
    const int action = random.below(8);
    if (action == 0)
        document.removeSub(path);
    else if (action < 3)
        document.setValue(path, someName(random), QJsonValue(QJsonValue::Undefined));
    else if (action == 3)
        document.setValue(path, someName(random), QString::fromUtf8(random.bytes(8)));
    else
        document.setValue(path, someName(random), random.below(100));
}

} // namespace

class tst_CfgDocument : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void refusesWhatIsNoConfiguration()
    {
        const QByteArray tooDeep =
            QByteArray("{\"a\":").repeated(201) + "{}" + QByteArray(201, '}');
        const QByteArray endless = QByteArray("{\"a\":").repeated(100000);
        const QByteArray huge = "{\"a\":\"" + QByteArray(CfgDocument::maximumTextSize, 'x') + "\"}";
        for (const QByteArray& text :
             {QByteArray(), QByteArray("[1]"), QByteArray("{\"a\": \"\xff\"}"),
              QByteArray(4096, '\0'), tooDeep, endless, QByteArray("{\"\": 1}"), huge}) {
            QString reason;
            QVERIFY2(!CfgDocument::fromText(text, &reason), text.left(20));
            QVERIFY(!reason.isEmpty());
        }
    }
    // Whatever was done to a document, its changes applied to what it was read from give the
    // document.
    void changesMakeTheSameTreeAgain()
    {
        RandomBytes random("changesMakeTheSameTreeAgain");
        for (int round = RandomBytes::rounds(2000); round > 0; --round) {
            CfgDocument start;
            for (int i = random.below(20); i > 0; --i)
                changeSomething(random, start);
            const QByteArray text = start.toText();
            CfgDocument document = documentOf(text);
            QCOMPARE(document.toText(), text);
            for (int i = random.below(20); i > 0; --i)
                changeSomething(random, document);
            const QByteArray changed = document.toText();
            QVERIFY(document.isChanged() || changed == text);
            document.rebase(documentOf(text));
            QCOMPARE(document.toText(), changed);
        }
    }
    void survivesAnyBytes()
    {
        RandomBytes random("survivesAnyBytes");
        CfgDocument seed;
        for (int i = 0; i < 40; ++i)
            changeSomething(random, seed);
        const QByteArray good = seed.toText();
        int read = 0;
        for (int round = RandomBytes::rounds(3000); round > 0; --round) {
            QByteArray text = round % 4 == 0 ? random.bytes(300) : good;
            if (round % 4 == 1)
                text = random.mutated(good);
            for (int i = round % 4 - 1; i > 0; --i)
                text[random.below(int(text.size()))] = "{}[]\\\",: aun-.eE019"[random.below(19)];
            QString reason;
            const auto document = CfgDocument::fromText(text, &reason);
            QCOMPARE(reason.isEmpty(), document.has_value());
            if (!document)
                continue;
            ++read;
            const QByteArray written = document->toText();
            QCOMPARE(documentOf(written).toText(), written);
        }
        qInfo("%d texts were configurations", read);
        QVERIFY(read > 0);
    }
};

QTEST_GUILESS_MAIN(tst_CfgDocument)
#include "tst_cfgdocument.moc"
