// SPDX-License-Identifier: MIT
#include <guibase/lists/sortrowtable.h>

#include "support/dialogscript.h"
#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"

#include <guibase/services/guibase.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <memory>
#include <optional>

namespace {

QString rowsOf(const QTableWidget& table)
{
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row)
        rows << table.item(row, 0)->text() + u'/' + table.item(row, 1)->text();
    return rows.join(u' ');
}

} // namespace

class tst_SortRowTable : public GuardedTest
{
    Q_OBJECT
    using Deletions = TestRows<QStringList, int, QString>;
    using Texts = TestRows<QString, QString>;

private Q_SLOTS:
    void newRow()
    {
        QTest::keyClick(m_table.get(), Qt::Key_Insert);
        QCOMPARE(rowsOf(*m_table), QStringLiteral("/0"));
        QTRY_VERIFY(m_table->findChild<QLineEdit*>() != nullptr);
        auto* const editor = m_table->findChild<QLineEdit*>();
        QTest::keyClicks(editor, QStringLiteral("12"));
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(rowsOf(*m_table), QStringLiteral("12/0"));
        // Only Return, F2 and a double click edit.
        QTRY_VERIFY(m_table->findChild<QLineEdit*>() == nullptr);
        QTest::keyClick(m_table.get(), Qt::Key_7);
        QVERIFY(m_table->findChild<QLineEdit*>() == nullptr);
        QTest::keyClick(m_table.get(), Qt::Key_Return);
        QTRY_VERIFY(m_table->findChild<QLineEdit*>() != nullptr);
        QTest::keyClicks(m_table->findChild<QLineEdit*>(), QStringLiteral("7"));
        QTest::keyClick(m_table->findChild<QLineEdit*>(), Qt::Key_Escape);
        QCOMPARE(rowsOf(*m_table), QStringLiteral("12/0"));
        // Nor does a text that the program wants to have wait for a key.
        QTRY_VERIFY(m_table->findChild<QLineEdit*>() == nullptr);
        QTest::keyClick(m_table.get(), Qt::Key_F2);
        QTRY_COMPARE(QApplication::focusWidget(), m_table->findChild<QLineEdit*>());
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("9"));
        GuiBase::Instance().ForceFinishEditing();
        QCOMPARE(rowsOf(*m_table), QStringLiteral("9/0"));
        m_table->slotClearAll();
        QCOMPARE(m_table->rowCount(), 0);
        SortRowTable(0, 1).slotNew(); // without the second column
    }
    void sorting()
    {
        fill({"b", "100", "9.5 MHz", "a", "-3"});
        QCOMPARE(rowsOf(*m_table), QStringLiteral("-3/0 9.5 MHz/0 100/0 a/0 b/0"));
        m_table->sortByColumn(0, Qt::DescendingOrder);
        QCOMPARE(m_table->item(0, 0)->text(), QStringLiteral("b"));
    }
    void deleting_data()
    {
        // The answers, the number of questions, and the rows that are left.
        Deletions row;
        const QString yes = QStringLiteral("Yes"), no = QStringLiteral("No");
        row("by default", QStringList(3, QStringLiteral("Enter")), 3, "4/0");
        row("no", {yes, no, yes}, 3, "2/0 4/0");
        row("yes to all", {no, QStringLiteral("YesToAll")}, 2, "1/0 4/0");
        row("no to all", {yes, QStringLiteral("NoToAll")}, 2, "2/0 3/0 4/0");
    }
    void deleting()
    {
        const auto& [answers, questions, left] = Deletions::fetch();
        fill({"1", "2", "3", "4"});
        m_table->setRangeSelected(QTableWidgetSelectionRange(0, 0, 2, 1), true);
        const DialogScript script(answers);
        QTest::keyRelease(m_table.get(), Qt::Key_Delete);
        QCOMPARE(rowsOf(*m_table), left);
        QCOMPARE(script.shown().size(), questions);
        QVERIFY(script.shown().first().endsWith(
            QStringLiteral("Do you want to delete item \"1, 0\"?")));
    }
    void tableDiesInQuestion()
    {
        m_table->setRowCount(2); // rows without items
        m_table->selectAll();
        std::optional<ModalDialogCloser> second;
        const ModalDialogCloser first([&](QDialog& question) {
            second.emplace([this](QDialog&) { m_table.reset(); });
            static_cast<QMessageBox&>(question).button(QMessageBox::Yes)->click();
        });
        m_table->slotDelete();
        QVERIFY(!m_table);
    }
    void parsing_data()
    {
        Texts row;
        row("tabs", "1\t2\n3\t\n", "1/2 3/");
        row("semicolons, line ends", "1;2\r\n;4\r\r5", "1/2 /4 5/");
        row("quoted", "\"a b\"\t\"c\"", "a b/c");
        row("blanks", "  1   2  3 ", "1/2");
        row("units", "100.5 MHz\n101,5  MHz -30 dBm\n102 -40 dBm\na b",
            "100.5 MHz/ 101,5 MHz/-30 dBm 102/-40 dBm a/b");
        row("nothing", " \n\t\n;;", "");
    }
    void parsing()
    {
        const auto& [text, expected] = Texts::fetch();
        QStringList rows;
        for (const auto& [frequency, level] : SortRowTable::parseRows(text))
            rows << frequency + u'/' + level;
        QCOMPARE(rows.join(u' '), expected);
    }
    void copyAndPaste()
    {
        fill({"3", "1"});
        QClipboard* const clipboard = QGuiApplication::clipboard();
        m_table->selectAll();
        QTest::keySequence(m_table.get(), QKeySequence::Copy);
        QCOMPARE(clipboard->text(), QStringLiteral("1\t0\n3\t0"));
        clipboard->setText(QStringLiteral("2\t7\n4;8"));
        QTest::keySequence(m_table.get(), QKeySequence::Paste);
        QCOMPARE(rowsOf(*m_table), QStringLiteral("1/0 2/7 3/0 4/8"));
        QTest::keyPress(m_table.get(), Qt::Key_Insert, Qt::ShiftModifier); // pastes
        QTest::keyRelease(m_table.get(), Qt::Key_Insert, Qt::NoModifier);
        QTest::keyClick(m_table.get(), Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(m_table->rowCount(), 6);
        m_table->setRowCount(4);
        m_table->setCurrentCell(0, 1);
        delete m_table->takeItem(0, 1); // a cell without item is one, too
        clipboard->setText(QStringLiteral("55"));
        m_table->slotPaste();
        QVERIFY(rowsOf(*m_table).startsWith(QStringLiteral("1/55 2/7 ")));
        // Values go back into the columns they came from.
        m_table->clearSelection();
        m_table->item(0, 0)->setSelected(true);
        m_table->item(2, 1)->setSelected(true);
        QCOMPARE(m_table->selectionAsText(), QStringLiteral("1\t\n\t7"));
        m_table->item(0, 0)->setSelected(false);
        QCOMPARE(m_table->selectionAsText(), QStringLiteral("7"));
    }
    void tooManyLines()
    {
        const QString line = QStringLiteral("1\n");
        QGuiApplication::clipboard()->setText(line.repeated(SortRowTable::maximumPastedRows + 2));
        const DialogScript script({QStringLiteral("Ok"), QStringLiteral("YesToAll")});
        m_table->slotPaste();
        QCOMPARE(m_table->rowCount(), SortRowTable::maximumPastedRows);
        QVERIFY(script.shown().value(0).contains(QStringLiteral(" 2 more rows")));
        m_table->selectAll();
        m_table->slotDelete(); // row by row it would take minutes
        QCOMPARE(m_table->rowCount(), 0);
    }

private:
    void prepare() override
    {
        m_table = std::make_unique<SortRowTable>(nullptr, "Table");
        m_table->sortByColumn(0, Qt::AscendingOrder);
        m_table->show();
    }
    void tidy() override { m_table.reset(); }
    void fill(std::initializer_list<const char*> frequencies)
    {
        QList<QPair<QString, QString>> rows;
        for (const char* frequency : frequencies)
            rows.append({QString::fromLatin1(frequency), QStringLiteral("0")});
        m_table->addRows(rows);
    }

    std::unique_ptr<SortRowTable> m_table;
};

QTEST_MAIN(tst_SortRowTable)
#include "tst_sortrowtable.moc"
