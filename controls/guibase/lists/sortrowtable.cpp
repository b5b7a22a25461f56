// SPDX-License-Identifier: MIT
#include "sortrowtable.h"

#include <guibase/services/modaldialogs_p.h>

#include <jtbase/numberhelpers.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QRegularExpression>
#include <QScopedValueRollback>

#include <algorithm>
#include <optional>
#include <set>

namespace {

constexpr int frequencyColumn = 0;
constexpr int levelColumn = 1;

std::optional<double> leadingNumber(const QString& text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    bool isNumber = false;
    const double number = Trov::toDoubleEx(trimmed.left(trimmed.indexOf(u' ')), &isNumber);
    return isNumber ? std::optional<double>(number) : std::nullopt;
}

/// A cell that sorts as a number when its text is one.
class NumberItem : public QTableWidgetItem
{
public:
    using QTableWidgetItem::QTableWidgetItem;

    QTableWidgetItem* clone() const override { return new NumberItem(*this); }
    bool operator<(const QTableWidgetItem& other) const override
    {
        const std::optional<double> own = leadingNumber(text());
        const std::optional<double> others = leadingNumber(other.text());
        if (own && others)
            return *own < *others;
        if (own || others)
            return own.has_value();
        return text() < other.text();
    }
};

/// Keeps the table from sorting while rows are added.
class SortingPause
{
public:
    explicit SortingPause(QTableWidget& table)
        : m_table(table)
        , m_wasEnabled(table.isSortingEnabled())
    {
        m_table.setSortingEnabled(false);
    }
    ~SortingPause() { m_table.setSortingEnabled(m_wasEnabled); }
    SortingPause(const SortingPause&) = delete;
    SortingPause& operator=(const SortingPause&) = delete;

private:
    QTableWidget& m_table;
    bool m_wasEnabled;
};

} // namespace

SortRowTable::SortRowTable(QWidget* parent, const char* name)
    : SortRowTable(0, 2, parent, name)
{}

SortRowTable::SortRowTable(int rows, int columns, QWidget* parent, const char* name)
    : QTableWidget(std::max(rows, 0), std::max(columns, 0), parent)
{
    init(name);
}

SortRowTable::~SortRowTable() = default;

void SortRowTable::init(const char* name)
{
    if (name != nullptr)
        setObjectName(QString::fromUtf8(name));
    setItemPrototype(new NumberItem);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setShowGrid(false);
    setSortingEnabled(true);
    setHorizontalHeaderLabels({tr("Frequency"), tr("Level")});
    installEventFilter(this);
    viewport()->installEventFilter(this);
}

QTableWidgetItem* SortRowTable::appendRow(const QString& frequency, const QString& level)
{
    const int row = rowCount();
    insertRow(row);
    auto* const item = new NumberItem(frequency);
    setItem(row, frequencyColumn, item);
    setItem(row, levelColumn, new NumberItem(level));
    return item;
}

void SortRowTable::addRows(const QList<QPair<QString, QString>>& rows)
{
    if (rows.isEmpty())
        return;
    const SortingPause pause(*this);
    for (const auto& [frequency, level] : rows)
        appendRow(frequency, level);
}

void SortRowTable::slotNew()
{
    QTableWidgetItem* item = nullptr;
    {
        const SortingPause pause(*this);
        item = appendRow(QStringLiteral(""), QStringLiteral("0"));
    }
    scrollToItem(item);
    setCurrentItem(item);
    QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier));
}

QList<int> SortRowTable::rowsToDelete() const
{
    std::set<int> rows;
    const QList<QTableWidgetItem*> selected = selectedItems();
    for (const QTableWidgetItem* item : selected)
        rows.insert(item->row());
    if (rows.empty() && currentRow() >= 0)
        rows.insert(currentRow());
    return {rows.begin(), rows.end()};
}

void SortRowTable::slotDelete()
{
    // The table may change, or die, while the user thinks about the question.
    QList<QPersistentModelIndex> rows;
    const QList<int> numbers = rowsToDelete();
    for (const int row : numbers)
        rows.append(model()->index(row, frequencyColumn));
    const auto textAt = [this](int row, int column) {
        const QTableWidgetItem* const cell = item(row, column);
        return cell == nullptr ? QString() : cell->text();
    };
    const QPointer<SortRowTable> self(this);
    QMessageBox::StandardButton answer = QMessageBox::Yes;
    for (const QPersistentModelIndex& index : rows) {
        if (!index.isValid())
            continue;
        if (answer != QMessageBox::YesToAll)
            answer = ModalDialogs::show(
                this,
                {QMessageBox::Warning, tr("Delete"),
                 tr("Do you want to delete item \"%1, %2\"?")
                     .arg(textAt(index.row(), frequencyColumn), textAt(index.row(), levelColumn)),
                 QMessageBox::Yes | QMessageBox::No | QMessageBox::YesToAll | QMessageBox::NoToAll,
                 QMessageBox::Yes});
        if (!self || answer == QMessageBox::NoToAll)
            return;
        if ((answer == QMessageBox::Yes || answer == QMessageBox::YesToAll) && index.isValid())
            removeRow(index.row());
    }
}

void SortRowTable::slotClearAll()
{
    clearContents();
    setRowCount(0);
}

QList<QPair<QString, QString>> SortRowTable::parseRows(const QString& text)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\n|\r"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const auto unquoted = [](QStringView value) {
        value = value.trimmed();
        const bool quoted = value.size() > 1 && value.front() == u'"' && value.back() == u'"';
        return (quoted ? value.sliced(1, value.size() - 2) : value).toString();
    };
    QList<QPair<QString, QString>> rows;
    const QStringView all(text);
    const QList<QStringView> lines = all.split(lineEnd, Qt::SkipEmptyParts);
    for (const QStringView line : lines) {
        if (rows.size() >= maximumPastedRows)
            break;
        QList<QStringView> values;
        if (line.contains(u'\t'))
            values = line.split(u'\t');
        else if (line.contains(u';'))
            values = line.split(u';');
        else
            values = line.trimmed().split(blanks);
        const QPair<QString, QString> row(unquoted(values.value(frequencyColumn)),
                                          unquoted(values.value(levelColumn)));
        if (!row.first.isEmpty() || !row.second.isEmpty())
            rows.append(row);
    }
    return rows;
}

QString SortRowTable::selectionAsText() const
{
    QStringList lines;
    int lastRow = -1;
    QModelIndexList cells = selectionModel()->selectedIndexes();
    const auto place = [this](const QModelIndex& cell) {
        return qMakePair(cell.row(), visualColumn(cell.column()));
    };
    std::sort(cells.begin(), cells.end(),
              [&](const QModelIndex& a, const QModelIndex& b) { return place(a) < place(b); });
    for (const QModelIndex& cell : std::as_const(cells)) {
        const QString text = cell.data().toString();
        if (cell.row() == lastRow)
            lines.last() += u'\t' + text;
        else
            lines.append(text);
        lastRow = cell.row();
    }
    return lines.join(u'\n');
}

void SortRowTable::slotCopy()
{
    const QString text = selectionAsText();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void SortRowTable::slotPaste()
{
    const QList<QPair<QString, QString>> rows = parseRows(QGuiApplication::clipboard()->text());
    const bool isSingleValue = rows.size() == 1 && rows.first().second.isEmpty();
    if (isSingleValue && currentItem() != nullptr)
        currentItem()->setText(rows.first().first);
    else
        addRows(rows);
}

void SortRowTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        slotCopy();
    else if (event->matches(QKeySequence::Paste))
        slotPaste();
    else
        QTableWidget::keyPressEvent(event);
}

bool SortRowTable::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyRelease || state() == QAbstractItemView::EditingState)
        return QTableWidget::eventFilter(object, event);
    const auto* const keyEvent = static_cast<QKeyEvent*>(event);
    const bool isDelete = keyEvent->key() == Qt::Key_Delete;
    if ((!isDelete && keyEvent->key() != Qt::Key_Insert) || keyEvent->isAutoRepeat())
        return QTableWidget::eventFilter(object, event);
    if (isDelete)
        slotDelete();
    else
        slotNew();
    return true;
}
