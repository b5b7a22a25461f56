// SPDX-License-Identifier: MIT
#include "sortrowtable.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

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
#include <map>
#include <optional>
#include <set>
#include <utility>

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

/// Words between blanks, where a word behind a number that is no number itself is its unit:
/// "100.5 MHz -30 dBm" holds the values "100.5 MHz" and "-30 dBm".
QStringList valuesBetweenBlanks(QStringView line)
{
    QStringList values;
    bool mayHaveUnit = false;
    const QStringList words = line.toString().simplified().split(u' ', Qt::SkipEmptyParts);
    for (const QString& word : words) {
        const bool isNumber = leadingNumber(word).has_value();
        if (mayHaveUnit && !isNumber)
            values.last() += u' ' + word;
        else
            values.append(word);
        mayHaveUnit = isNumber;
    }
    return values;
}

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

struct SortRowTable::Private
{
    /// Insert or Delete from its press with modifiers, which may be let go first, to its release.
    int modifiedKey = 0;
};

SortRowTable::SortRowTable(QWidget* parent, const char* name)
    : SortRowTable(0, 2, parent, name)
{}

SortRowTable::SortRowTable(int rows, int columns, QWidget* parent, const char* name)
    : QTableWidget(std::max(rows, 0), std::max(columns, 0), parent)
    , d(std::make_unique<Private>())
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
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setSortingEnabled(true);
    setHorizontalHeaderLabels({tr("Frequency"), tr("Level")});
    installEventFilter(this);
    viewport()->installEventFilter(this);
    connect(&GuiBase::Instance(), &GuiBase::endEdit, this, [this](QWidget* edited) {
        if (!viewport()->isAncestorOf(edited))
            return;
        commitData(edited);
        closeEditor(edited, QAbstractItemDelegate::NoHint);
    });
}

QTableWidgetItem* SortRowTable::appendRow(const QString& frequency, const QString& level)
{
    const int row = rowCount();
    insertRow(row);
    const QString texts[] = {frequency, level};
    for (int column = frequencyColumn; column <= levelColumn && column < columnCount(); ++column)
        setItem(row, column, new NumberItem(texts[column]));
    return item(row, frequencyColumn);
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
    if (item == nullptr)
        return;
    scrollToItem(item);
    setCurrentItem(item);
    QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier));
}

QList<int> SortRowTable::rowsToDelete() const
{
    std::set<int> rows;
    // Not the selected items: a cell without text may have none.
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    for (const QModelIndex& cell : selected)
        rows.insert(cell.row());
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
    while (!rows.isEmpty()) {
        const QPersistentModelIndex index = rows.first();
        if (!index.isValid()) {
            rows.removeFirst();
            continue;
        }
        const auto answer = ModalDialogs::show(
            this,
            {QMessageBox::Warning, tr("Delete"),
             tr("Do you want to delete item \"%1, %2\"?")
                 .arg(textAt(index.row(), frequencyColumn), textAt(index.row(), levelColumn)),
             QMessageBox::Yes | QMessageBox::No | QMessageBox::YesToAll | QMessageBox::NoToAll,
             QMessageBox::Yes});
        if (!self || answer == QMessageBox::NoToAll)
            return;
        if (answer == QMessageBox::YesToAll) {
            removeRows(std::exchange(rows, {}));
            return;
        }
        rows.removeFirst();
        if (answer == QMessageBox::Yes && index.isValid())
            removeRow(index.row());
    }
}

/// Removes neighbours together: one by one, many rows would take minutes.
void SortRowTable::removeRows(QList<QPersistentModelIndex> rows)
{
    std::set<int> numbers;
    for (const QPersistentModelIndex& row : std::as_const(rows)) {
        if (row.isValid())
            numbers.insert(row.row());
    }
    rows.clear(); // each of them would have to follow every removal
    QList<QPair<QPersistentModelIndex, QPersistentModelIndex>> blocks;
    int previous = -1;
    for (const int row : numbers) {
        const QPersistentModelIndex index(model()->index(row, frequencyColumn));
        if (!blocks.isEmpty() && row == previous + 1)
            blocks.last().second = index;
        else
            blocks.append({index, index});
        previous = row;
    }
    for (const auto& [first, last] : std::as_const(blocks)) {
        if (first.isValid() && last.isValid())
            model()->removeRows(first.row(), last.row() - first.row() + 1);
    }
}

void SortRowTable::slotClearAll()
{
    clearContents();
    setRowCount(0);
}

QList<QPair<QString, QString>> SortRowTable::parseRows(const QString& text, qsizetype* left)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\n|\r"));
    const auto unquoted = [](QStringView value) {
        value = value.trimmed();
        const bool quoted = value.size() > 1 && value.front() == u'"' && value.back() == u'"';
        return (quoted ? value.sliced(1, value.size() - 2) : value).toString();
    };
    QList<QPair<QString, QString>> rows;
    qsizetype leftRows = 0;
    const QStringView all(text);
    const QList<QStringView> lines = all.split(lineEnd, Qt::SkipEmptyParts);
    for (const QStringView line : lines) {
        QStringList values;
        if (line.contains(u'\t') || line.contains(u';')) {
            for (const QStringView value : line.split(line.contains(u'\t') ? u'\t' : u';'))
                values.append(unquoted(value));
        } else {
            values = valuesBetweenBlanks(line);
        }
        const QPair<QString, QString> row(values.value(frequencyColumn), values.value(levelColumn));
        if (row.first.isEmpty() && row.second.isEmpty())
            continue;
        if (rows.size() < maximumPastedRows)
            rows.append(row);
        else
            ++leftRows;
    }
    if (left != nullptr)
        *left = leftRows;
    return rows;
}

QString SortRowTable::selectionAsText() const
{
    std::map<int, std::map<int, QString>> rows; // by row and shown column
    int first = columnCount();
    int last = -1;
    const QModelIndexList cells = selectionModel()->selectedIndexes();
    for (const QModelIndex& cell : cells) {
        const int column = visualColumn(cell.column());
        rows[cell.row()][column] = cell.data().toString();
        first = std::min(first, column);
        last = std::max(last, column);
    }
    if (cells.size() > 1)
        first = 0;
    QStringList lines;
    for (auto& [row, texts] : rows) {
        QStringList line;
        for (int column = first; column <= last; ++column)
            line.append(texts[column]);
        lines.append(line.join(u'\t'));
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
    qsizetype left = 0;
    const QList<QPair<QString, QString>> rows =
        parseRows(QGuiApplication::clipboard()->text(), &left);
    const bool isSingleValue = rows.size() == 1 && rows.first().second.isEmpty();
    if (isSingleValue && currentIndex().isValid())
        model()->setData(currentIndex(), rows.first().first);
    else
        addRows(rows);
    if (left > 0)
        ModalDialogs::show(this, {QMessageBox::Warning, tr("Paste"),
                                  tr("%1 rows were added. %2 more rows on the clipboard were left "
                                     "out; paste them in smaller blocks.")
                                      .arg(rows.size())
                                      .arg(left),
                                  QMessageBox::Ok, QMessageBox::Ok});
}

void SortRowTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        slotCopy();
    else if (event->matches(QKeySequence::Paste))
        slotPaste();
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
             (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
             state() != QAbstractItemView::EditingState && currentIndex().isValid())
        edit(currentIndex());
    else
        QTableWidget::keyPressEvent(event);
}

bool SortRowTable::eventFilter(QObject* object, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::KeyRelease && type != QEvent::KeyPress && type != QEvent::ShortcutOverride)
        return QTableWidget::eventFilter(object, event);
    const auto* const keyEvent = static_cast<QKeyEvent*>(event);
    const int key = keyEvent->key();
    const bool isOurs = key == Qt::Key_Delete || key == Qt::Key_Insert;
    const bool isModified = (keyEvent->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier;
    if (isOurs && type != QEvent::KeyRelease)
        d->modifiedKey = isModified ? key : 0;
    if (!isOurs || type != QEvent::KeyRelease || keyEvent->isAutoRepeat())
        return QTableWidget::eventFilter(object, event);
    const bool wasModified = std::exchange(d->modifiedKey, 0) == key;
    if (isModified || wasModified || state() == QAbstractItemView::EditingState)
        return QTableWidget::eventFilter(object, event);
    if (key == Qt::Key_Delete)
        slotDelete();
    else
        slotNew();
    return true;
}
