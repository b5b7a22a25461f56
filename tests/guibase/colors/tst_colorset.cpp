// SPDX-License-Identifier: MIT
#include "support/dialogscript.h"
#include "support/files.h"
#include "support/filesizelimit.h"
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorsetcodec.h>
#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>

#include <QComboBox>
#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <memory>

using enum IColorBase::ECOLOR;

namespace {

const QString factoryName = QString::fromLatin1(ColorSet::factoryDefaultName);
const QString saveTitle = QStringLiteral("Save current ColorSet");
const QString readTitle = QStringLiteral("Read ColorSet");
const QString writeError = QStringLiteral("File Error: Cannot open file for writing! Continue?");
const QString readError =
    QStringLiteral("File Error: Cannot open Color Definition File! Continue?");
const QString saveQuestion =
    QStringLiteral("Load ColorSet: Current ColorSet was changed. Do you want to save now?");

ColorSet& colors()
{
    return ColorSet::Instance();
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(u' ');
}

int idOf(int slot)
{
    const auto* definition = colors().GetColorDefinition(static_cast<IColorBase::ECOLOR>(slot));
    return definition ? definition->GetId() : -1;
}

void makeDirty()
{
    colors().SetColor(AxisText, Colors::Instance().GetColorDefinition(1012), false);
}

} // namespace

class tst_ColorSet : public GuardedTest
{
    Q_OBJECT
    using Dialogs = TestRows<QString, QString, QStringList, QString>;

private Q_SLOTS:
    void answersForMissingColors()
    {
        const QString trace = path("trace.txt");
        ErrorHandler::SetTraceFlags(ErrorHandler::TraceGuiBase);
        QVERIFY(ErrorHandler::SetTraceFile(trace));
        colors().SetColor(Slot9, nullptr, false);
        const QColor& red = colors().GetColor(static_cast<IColorBase::ECOLOR>(150));
        QCOMPARE(colors().GetColor(Slot9), QColor(Qt::cyan));
        QCOMPARE(red, QColor(Qt::red)); // a reference that was got before does not change
        QCOMPARE(colors()[static_cast<IColorBase::ECOLOR>(-1)], QColor(Qt::red));
        ErrorHandler::SetTraceFlags(~quint32(ErrorHandler::TraceGuiBase));
        colors().GetColor(Slot9);
        QVERIFY(ErrorHandler::SetTraceFile(QString()));

        const QStringList lines =
            QString::fromUtf8(readFile(trace)).split(u'\n', Qt::SkipEmptyParts);
        const QStringList ends{
            QStringLiteral("ColorSet::GetColor(150) called with an index out of range"),
            QStringLiteral("ColorSet::GetColor(9) no color found at this position!"),
            QStringLiteral("ColorSet::GetColor(-1) called with an index out of range")};
        QCOMPARE(lines.size(), ends.size());
        for (qsizetype i = 0; i < ends.size(); ++i) {
            QVERIFY2(lines[i].endsWith(ends[i]), qPrintable(lines[i]));
            QVERIFY(lines[i].contains(QLatin1String("controls/guibase/colorset(")));
        }
    }
    void namesSignalTypes()
    {
        for (const auto& [letter, index] :
             {std::pair('b', 1), {'B', 1}, {'Z', 25}, {'[', -6}, {'0', -17}, {'\xe9', -88}}) {
            QCOMPARE(int(ColorSet::Type2Index(letter)), index);
            const QColor expected =
                index < 0 ? QColor(Qt::red) : colors()[IColorBase::ECOLOR(index)];
            QCOMPARE(colors().GetSignalTypeColor(letter), expected);
        }
        QCOMPARE(ColorSet::Index2Type(static_cast<IColorBase::ECOLOR>(1)), 'b');
    }
    void setsColors()
    {
        colors().SetColor(Slot66, nullptr, false);
        colors().slotRestoreSystemColors();
        QCOMPARE(idOf(66), 0);
        QVERIFY(!colors().GetDirty());
        colors().SetColor(static_cast<IColorBase::ECOLOR>(150), QColor(Qt::red), true);
        ColorDefinition same = *colors().GetColorDefinition(AxisText);
        colors().SetColor(AxisText, &same, true);
        QVERIFY(!colors().GetDirty());
        QCOMPARE(m_changes->size(), 0);

        colors().SetColor(AxisText, QColor(Qt::white), true); // a user colour
        QCOMPARE(idOf(1), 2000);
        QVERIFY(colors().GetDirty());
        colors().SetColor(AxisText, QColor(0x63, 0xb8, 0xff), false);
        QCOMPARE(idOf(1), 1085);
        QCOMPARE(m_changes->size(), 1);
        colors().SetColor(AxisText, QColor(1, 2, 3), false);
        QCOMPARE(colors().GetColorDefinition(AxisText), nullptr);
        colors().SetColor(AxisText, Colors::Instance().GetColorDefinition(1097), true);
        QCOMPARE(idOf(1), 1097);
        QCOMPARE(m_changes->size(), 2);
    }
    void findsRelativeNamesFromOtherFolders()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        colors().Save(nullptr, QStringLiteral("a.cst"));
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(colors().GetName(), path("a.cst"));
    }
    void asksNobodyWhenUnattended()
    {
        ModalDialogs::setUnattended(true);
        expectTrace("nobody is there to answer \"File Error");
        colors().Load(nullptr, path("none.cst"));
        ModalDialogs::setUnattended(false);
        QCOMPARE(colors().GetName(), factoryName);
    }
    void backsUp()
    {
        colors().SetColor(AxisText, nullptr, false);
        colors().Backup();
        colors().Save(nullptr, path("other.cst"));
        makeDirty();
        colors().Restore();
        QCOMPARE(idOf(1), 0); // an empty slot comes back as the system background
        QCOMPARE(idOf(2), 1007);
        QCOMPARE(colors().GetName(), factoryName);
        QVERIFY(colors().GetDirty());
        QCOMPARE(m_changes->size(), 1);
    }
    void savesAndLoads()
    {
        const QString file = path("a.set");
        colors().SetColor(AxisText, nullptr, false);
        colors().SetColor(AxisOutOfZoom, Colors::Instance().GetColorDefinition(2003), false);
        colors().Save(nullptr, file);
        QVERIFY(!colors().GetDirty());
        QCOMPARE(m_changes->size(), 0);
        QCOMPARE(readFile(file).size(), 600);

        colors().Load(nullptr, factoryName);
        QCOMPARE(idOf(2), 1007);
        QCOMPARE(m_changes->size(), 0);
        colors().Load(nullptr, file);
        QCOMPARE(idOf(1), 0);
        QCOMPARE(idOf(2), 2003);
        QCOMPARE(m_changes->size(), 1);
        QCOMPARE(colors().GetName(), file);

        makeDirty();
        colors().Load(nullptr, file); // the current file: no question, no loading
        QCOMPARE(idOf(1), 1012);
        colors().Save(nullptr, QStringLiteral("x"));
        QCOMPARE(colors().GetName(), file);
        QVERIFY(!colors().GetDirty());
    }
    void savesByDialog_data()
    {
        Dialogs row; // name, answers, dialogs, file that is written
        const QStringList asked{saveTitle};
        row("always ask", "**", "%1/New", asked, "new.cst");
        row("factory", "", "%1/My.Cst.Old", asked, "my.cst.old");
        row("cancelled", "**", "Escape", asked, "");
        row("folder", "%1", "%1/b", asked, "b.cst");
        row("missing", "%1/none/x", "%1/c.cst", asked, "c.cst");
        row("another", "", "%1/none/x Enter %1/d", {saveTitle, writeError, saveTitle}, "d.cst");
        row("given up", "", "%1/none/x Escape", {saveTitle, writeError}, "");
        const QString replace = QStringLiteral("Save current ColorSet: old.cst already exists. "
                                               "Do you want to replace it?");
        row("existing", "**", "%1/Old No %1/Old Yes", {saveTitle, replace, saveTitle, replace},
            "old.cst");
    }
    void savesByDialog()
    {
        const auto& [name, answers, shown, written] = Dialogs::fetch();
        makeDirty();
        if (written == QLatin1String("old.cst"))
            QVERIFY(writeFile(path("old.cst"), "old"));
        QWidget parent;
        DialogScript script(inFolder(answers).split(u' '));
        colors().Save(&parent, inFolder(name));
        QCOMPARE(script.shown(), shown);
        QCOMPARE(colors().GetDirty(), written.isEmpty());
        if (!written.isEmpty())
            QCOMPARE(colors().GetName(), m_folder->filePath(written));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).join(u' '), written);
        QVERIFY(!QFile::exists(QStringLiteral("**")) && !QFile::exists(factoryName));
    }
    void keepsTheFileWhenWritingFails()
    {
        QVERIFY(writeFile(path("old.cst"), QByteArray(600, 'x')));
        makeDirty();
        {
            FileSizeLimit limit(100);
            for (const char* name : {"old.cst", "new.cst"}) {
                DialogScript script(words("No"));
                colors().Save(nullptr, path(name));
                QCOMPARE(script.shown(), QStringList{writeError});
                QVERIFY(colors().GetDirty());
            }
        }
        QCOMPARE(readFile(path("old.cst")), QByteArray(600, 'x'));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), words("old.cst"));
    }
    void replacesTheWholeFile()
    {
        const QString file = path("long.cst"), link = path("link.cst");
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(writeFile(file, QByteArray(5000, 'x')));
        QVERIFY(QFile::setPermissions(file, permissions));
        QVERIFY(QFile::link(file, link));
        colors().Save(nullptr, link);
        QCOMPARE(readFile(file).size(), 600);
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(QFile::permissions(file) & QFile::Permissions(0x7077),
                 permissions & QFile::Permissions(0x7077));
    }
    void loadsByDialog_data()
    {
        Dialogs row; // name, answers, dialogs, file that is current then
        row("asked", "", "%1/GOOD.cst", {readTitle}, "%1/good.cst");
        row("cancelled", "", "Escape Escape", {readTitle, readError}, factoryName);
        row("missing, another", "%1/none.cst", "Enter %1/GOOD.cst", {readError, readTitle},
            "%1/good.cst");
        row("missing, given up", "%1/none.cst", "No", {readError}, factoryName);
        row("folder", "%1", "No", {readError}, factoryName);
        row("asterisks", "**", "No", {readError}, factoryName);
    }
    void loadsByDialog()
    {
        const auto& [name, answers, shown, current] = Dialogs::fetch();
        const bool loaded = current != factoryName;
        QVERIFY(writeFile(path("good.cst"), QByteArray(600, '\0')));
        QVERIFY(writeFile(path("GOOD.cst"),
                          QByteArray(600, '\1'))); // is not what the lower-case name means
        colors().Save(nullptr, path("before.cst"));
        DialogScript script(inFolder(answers).split(u' '));
        colors().Load(nullptr, inFolder(name));
        QCOMPARE(script.shown(), shown);
        QCOMPARE(colors().GetName(), inFolder(current));
        QCOMPARE(idOf(2), loaded ? 0 : 1007);
        QCOMPARE(m_changes->size(), loaded ? 1 : 0);
        QVERIFY(!colors().GetDirty());
    }
    void asksBeforeChangesAreLost()
    {
        QVERIFY(writeFile(path("good.cst"), QByteArray(600, '\0')));
        colors().Save(nullptr, path("mine.cst"));
        const QByteArray saved = readFile(path("mine.cst"));
        makeDirty();
        {
            DialogScript script(words("Enter"));
            colors().Load(nullptr, path("good.cst"));
            QCOMPARE(script.shown(), QStringList{saveQuestion});
        }
        QVERIFY(readFile(path("mine.cst")) != saved);
        makeDirty();
        DialogScript script(words("Escape"));
        colors().Load(nullptr, path("mine.cst"));
        QCOMPARE(script.shown(), QStringList{saveQuestion});
        QCOMPARE(readFile(path("good.cst")), QByteArray(600, '\0'));
        QCOMPARE(colors().GetName(), path("mine.cst"));
    }
    void listsFiles()
    {
        for (const char* name : {"b.cst", "A.cst", "Sprinter.cst", "print.txt"})
            QVERIFY(writeFile(path(name), QByteArray(600, '\0')));
        colors().Save(nullptr, path("b.cst"));
        makeDirty();
        QWidget parent;
        QComboBox* box = colors().GetColorSetsComboBox(&parent);
        const auto texts = [box] {
            QStringList all;
            for (int i = 0; i < box->count(); ++i)
                all << box->itemText(i).replace(u' ', u'_');
            return all;
        };
        QCOMPARE(texts(), words("***_Factory_Default_*** A.cst b.cst_[changed] Sprinter.cst "
                                "***_Dark_Desktop_*** ***_Color_Blind_***"));
        QCOMPARE(box->currentIndex(), 2);

        colors().Save(nullptr, QString());
        colors().Load(1);
        QCOMPARE(colors().GetName(), path("A.cst"));
        colors().Load(6);
        colors().Load(-1);
        QCOMPARE(m_changes->size(), 1);
        QSignalSpy indexChanges(box, &QComboBox::currentIndexChanged);
        colors().UpdateComboBox(box);
        QCOMPARE(box->currentText(), QStringLiteral("A.cst"));
        QCOMPARE(indexChanges.size(), 0);

        QVERIFY(colors().LoadPrinterSet());
        QCOMPARE(colors().GetName(), path("Sprinter.cst"));
        colors().Load(0);
        QCOMPARE(colors().GetName(), factoryName);
        QCOMPARE(m_changes->size(), 3);
        colors().Load(0);
        QCOMPARE(m_changes->size(), 3);
        QVERIFY(QFile::remove(path("Sprinter.cst")));
        QVERIFY(!colors().LoadPrinterSet());
    }
    void readsNoMoreThanNeeded()
    {
        QFile file(path("huge.cst"));
        QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        QVERIFY(file.resize(Q_INT64_C(1) << 34)); // sparse
        ColorSetCodec::read(file);
        QCOMPARE(file.pos(), 600);
    }
    void readsAnyBytes()
    {
        RandomBytes random("colour-set files");
        colors().Save(nullptr, path("seed.cst"));
        const QByteArray seed = readFile(path("seed.cst"));
        const QString names[] = {path("even.cst"),
                                 path("odd.cst")}; // the current file is not reread
        for (int round = RandomBytes::rounds(1000); round > 0; --round) {
            const QString& name = names[round % 2];
            const QByteArray bytes = round % 4 < 2 ? random.mutated(seed) : random.bytes(700);
            QVERIFY(writeFile(name, bytes));
            colors().Load(nullptr, name);
            QCOMPARE(colors().GetName(), name);
            const QByteArray filled = bytes.left(600).leftJustified(600, '\0');
            QCOMPARE(ColorSetCodec::encode(ColorSetCodec::decode(bytes)), filled);
            for (int slot = 0; slot < IColorBase::slotCount; ++slot) {
                const int id = qFromLittleEndian<qint32>(filled.constData() + 4 * slot);
                const bool known =
                    (id >= 0 && id < 6) || (id >= 1000 && id < 1098) || (id >= 2000 && id < 2016);
                QCOMPARE(idOf(slot), known ? id : -1);
                QVERIFY(colors().GetColor(static_cast<IColorBase::ECOLOR>(slot)).isValid());
            }
        }
    }

private:
    void prepare() override
    {
        m_folder =
            std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/Colors-XXXXXX"));
        colors().slotRestoreFactoryColors();
        m_changes =
            std::make_unique<QSignalSpy>(&GuiBase::Instance(), &GuiBase::signalColorsChanged);
    }
    void tidy() override { ErrorHandler::SetTraceFlags(ErrorHandler::defaultTraceFlags); }
    QString inFolder(QString text) const
    {
        return text.replace(QStringLiteral("%1"), m_folder->path());
    }
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSignalSpy> m_changes;
};

QTEST_MAIN(tst_ColorSet)
#include "tst_colorset.moc"
