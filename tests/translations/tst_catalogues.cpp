// SPDX-License-Identifier: MIT
#include "support/files.h"
#include "support/guardedtest.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

constexpr int updateTimeoutMs = 60000;

struct Entry
{
    QString source;
    QStringList translations; ///< One, or one for each plural form.
    bool hasPluralForms = false;
    QString type; ///< Of an entry that needs work: unfinished, vanished or obsolete.
};

QList<Entry> entriesOf(const QByteArray& catalogue)
{
    QList<Entry> entries;
    QXmlStreamReader xml(catalogue);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"message") {
            entries << Entry();
            entries.last().hasPluralForms = xml.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (xml.name() == u"source") {
            entries.last().source = xml.readElementText();
        } else if (xml.name() == u"translation" || xml.name() == u"numerusform") {
            if (xml.name() == u"translation")
                entries.last().type = xml.attributes().value(QLatin1String("type")).toString();
            if (xml.name() == u"numerusform" || !entries.last().hasPluralForms)
                entries.last().translations << xml.readElementText();
        }
    }
    return entries;
}

/// Placeholders and file patterns, in order.
QStringList marksIn(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("%(?:L?\\d|n|p)|\\*\\.\\w+"));
    QStringList marks;
    for (const QRegularExpressionMatch& match : mark.globalMatch(text))
        marks << match.captured();
    marks.sort();
    return marks;
}

/// What a text must share with its translation: marks, whether it has a mnemonic, and how it ends.
QStringList frameOf(const QString& text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&[^\\s&]"));
    static const QRegularExpression ending(QStringLiteral("(?:…|\\.\\.\\.|:|\\.|\\s)$"));
    return marksIn(text) << (text.contains(mnemonic) ? QStringLiteral("&") : QString())
                         << ending.match(text).captured();
}

} // namespace

class tst_Catalogues : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    /// The code and the catalogues have the same texts, and all of them are translated.
    void areComplete()
    {
        const QTemporaryDir folder;
        QProcess update;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LUPDATE"), QStringLiteral(LUPDATE));
        update.setProcessEnvironment(environment);
        update.start(QStringLiteral(PROJECT_DIR "/scripts/translations"), {folder.path()});
        QVERIFY(update.waitForFinished(updateTimeoutMs));
        // A text whose context cannot be told would be looked up in another one.
        QCOMPARE(update.readAllStandardError(), QByteArray());
        QCOMPARE(update.exitCode(), 0);

        QStringList faults;
        int count = 0;
        QDirIterator files(folder.path(), {QStringLiteral("*.ts")});
        while (files.hasNext()) {
            const QString file = files.next();
            const QList<Entry> entries = entriesOf(readFile(file));
            for (const Entry& entry : entries) {
                const QString place = files.fileName() + QStringLiteral(": ") + entry.source;
                if (!entry.type.isEmpty())
                    faults << place + QStringLiteral(" is ") + entry.type;
                for (const QString& translation : entry.translations) {
                    if (frameOf(translation) != frameOf(entry.source))
                        faults << place + QStringLiteral(" != ") + translation;
                }
            }
            count += static_cast<int>(entries.size());
        }
        QVERIFY(count > 900);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    /// No widget gets a text with words that bypasses the catalogues.
    void textsOfWidgetsAreTranslated()
    {
        static const QRegularExpression text(QStringLiteral(
            "\\b(?:set(?:Text|WindowTitle|Title|ToolTip|StatusTip|WhatsThis|PlaceholderText|"
            "AccessibleName|AccessibleDescription|SpecialValueText)|add(?:Action|Menu|Item|Tab|Row|"
            "Column|Section)|showMessage|Q(?:Action|Label|CheckBox|PushButton|GroupBox))"
            "\\(\\s*QStringLiteral\\(\\s*\"([^\"]*[a-z]{3}[^\"]*)\""));
        // Names and commands, the same in every language.
        const QStringList names{QStringLiteral("bandmonitor"),
                                QStringLiteral("rtl_power -f 88M:108M:25k -i 1 -")};
        QStringList found;
        int count = 0;
        for (const char* tree : {"platform", "controls", "examples/bandmonitor"}) {
            QDirIterator files(QStringLiteral(PROJECT_DIR "/") + QString::fromLatin1(tree),
                               {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString code = QString::fromUtf8(readFile(files.next()));
                ++count;
                for (const QRegularExpressionMatch& match : text.globalMatch(code)) {
                    if (!names.contains(match.captured(1)))
                        found << files.filePath() + QStringLiteral(": ") + match.captured(1);
                }
            }
        }
        QVERIFY(count > 500);
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
