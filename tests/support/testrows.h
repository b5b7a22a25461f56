// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <tuple>
#include <type_traits>

/// A text in a table of rows: may be written as a plain literal, in UTF-8.
class RowText : public QString
{
public:
    RowText(const char* utf8)
        : QString(QString::fromUtf8(utf8))
    {}
    RowText(const QString& text)
        : QString(text)
    {}
};

/// The rows of a data-driven test, with the types of their cells. In name_data():
///     Rows row; row("tag", 1, "text"); row.add(2, "tagged with its number");
/// and in name():
///     const auto [number, text] = Rows::fetch();
template <typename... Cells>
class TestRows
{
public:
    using Row = std::tuple<Cells...>;
    template <typename Cell>
    using Given = std::conditional_t<std::is_same_v<Cell, QString>, RowText, Cell>;

    TestRows() { QTest::addColumn<Row>("row"); }

    void operator()(const char* tag, const Given<Cells>&... cells)
    {
        ++m_count;
        QTest::newRow(tag) << Row(cells...);
    }
    void add(const Given<Cells>&... cells) { QTest::addRow("%d", ++m_count) << Row(cells...); }
    static const Row& fetch()
    {
        return *static_cast<const Row*>(QTest::qData("row", qMetaTypeId<Row>()));
    }

private:
    int m_count = 0;
};
