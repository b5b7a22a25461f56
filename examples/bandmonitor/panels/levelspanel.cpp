// SPDX-License-Identifier: MIT
#include "panels/levelspanel.h"

#include "panels/emptyhint.h"
#include "panels/panelactions.h"
#include "panels/referencelevels.h"
#include "panels/wrappingrow.h"

#include <guibase/lists/sortrowtable.h>
#include <valueframework/undorecording.h>

#include <QAction>
#include <QHeaderView>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace bandmonitor {

namespace {

constexpr int frequencyColumn = 0;
constexpr int levelColumn = 1;
constexpr int frequencyDigits = 18; // the width of their column
constexpr int rowPadding = 6;
/// What the text of a cell was read as; no data when it cannot be read.
constexpr int valueRole = Qt::UserRole;
/// The text that was read, to know whether it is another one now.
constexpr int readTextRole = Qt::UserRole + 1;

} // namespace

LevelsPanel::LevelsPanel(std::shared_ptr<SessionValues> values, QWidget* parent)
    : Panel(parent)
    , m_values(std::move(values))
    , m_table(new SortRowTable(this, "referenceLevels"))
{
    setAccessibleName(tr("Reference levels"));
    setFocusProxy(m_table);
    m_table->setAccessibleName(tr("Reference levels"));
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setColumnWidth(frequencyColumn,
                            frequencyDigits * fontMetrics().horizontalAdvance(QLatin1Char('0')));
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowPadding);
    m_table->sortByColumn(frequencyColumn, Qt::AscendingOrder);
    m_actions = {
        addPanelAction(this, tr("&New"), Qt::CTRL | Qt::Key_N, tr("Adds a reference level")),
        addPanelAction(this, tr("&Delete"), Qt::CTRL | Qt::Key_D, tr("Deletes the selected rows")),
        addPanelAction(this, tr("C&lear"), Qt::CTRL | Qt::SHIFT | Qt::Key_D,
                       tr("Deletes all reference levels"))};
    connect(m_actions[0], &QAction::triggered, m_table, &SortRowTable::slotNew);
    connect(m_actions[1], &QAction::triggered, m_table, &SortRowTable::slotDelete);
    connect(m_actions[2], &QAction::triggered, this, &LevelsPanel::clearAll);
    buildLayout();
    new EmptyHint(tr("Reference levels appear here, and as a line in the spectrum."), m_table);
    m_readLater.setSingleShot(true);
    connect(&m_readLater, &QTimer::timeout, this, &LevelsPanel::readRows);
    showRows();
    m_followers = SessionValues::follow({&m_values->referenceLevels}, [this] { showRows(); });
    const QAbstractItemModel* model = m_table->model();
    connect(model, &QAbstractItemModel::dataChanged, this, &LevelsPanel::scheduleRead);
    connect(model, &QAbstractItemModel::rowsInserted, this, &LevelsPanel::scheduleRead);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &LevelsPanel::scheduleRead);
    connect(model, &QAbstractItemModel::modelReset, this, &LevelsPanel::scheduleRead);
}

LevelsPanel::~LevelsPanel()
{
    blockSignals(true); // the rows are only kept
    if (m_readLater.isActive())
        readRows();
    m_table->model()->disconnect(this); // it outlives this part of the pane
}

void LevelsPanel::buildLayout()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(m_table, 1);
    column->addLayout(makeButtonRow(this, m_actions));
}

void LevelsPanel::showRows()
{
    const QString text = m_values->referenceLevels.GetValue();
    if (text == rowsText())
        return;
    m_table->setRowCount(0);
    m_table->addRows(SortRowTable::parseRows(text));
    readRows();
}

/// Rows without any text do not count: they are about to be filled.
QString LevelsPanel::rowsText() const
{
    QString text;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QTableWidgetItem* frequency = m_table->item(row, frequencyColumn);
        const QTableWidgetItem* level = m_table->item(row, levelColumn);
        const QVariant hertz = frequency != nullptr ? frequency->data(valueRole) : QVariant();
        QString first = frequency != nullptr ? frequency->text() : QString();
        if (hertz.isValid())
            first = ReferenceLevels::writeFrequency(hertz.toDouble());
        const QString second = level != nullptr ? level->text() : QString();
        if (!first.isEmpty() || !second.isEmpty())
            text += first + QLatin1Char('\t') + second + QLatin1Char('\n');
    }
    return text;
}

void LevelsPanel::storeRows()
{
    const QString text = rowsText();
    Value<QString>& kept = m_values->referenceLevels;
    const auto difference =
        text.count(QLatin1Char('\n')) - kept.GetValue().count(QLatin1Char('\n'));
    const SessionValues::Step step =
        m_values->step(difference > 0   ? tr("Add reference level")
                       : difference < 0 ? tr("Delete reference level")
                                        : tr("Change reference level"));
    kept.SetValue(text);
}

void LevelsPanel::clearAll()
{
    if (m_table->rowCount() > 0 &&
        QMessageBox::question(this, tr("Clear"), tr("Delete all reference levels?")) ==
            QMessageBox::Yes)
        m_table->slotClearAll();
}

void LevelsPanel::scheduleRead()
{
    if (!m_isReading)
        m_readLater.start(0);
}

void LevelsPanel::mark(QTableWidgetItem& cell, bool readable)
{
    if (cell.icon().isNull() == readable)
        return;
    cell.setIcon(readable ? QIcon() : style()->standardIcon(QStyle::SP_MessageBoxWarning));
    cell.setToolTip(readable ? QString() : tr("This cannot be read; the row is not drawn."));
}

bool LevelsPanel::readCell(QTableWidgetItem& cell, Reader reader)
{
    const QVariant readText = cell.data(readTextRole);
    if (!readText.isValid() || readText.toString() != cell.text()) {
        const std::optional<double> value = reader(cell.text());
        cell.setData(valueRole, value ? QVariant(*value) : QVariant());
        if (value && cell.column() == frequencyColumn)
            cell.setText(m_text.full(*value));
        cell.setData(readTextRole, cell.text());
    }
    const bool readable = cell.data(valueRole).isValid();
    mark(cell, readable);
    return readable;
}

void LevelsPanel::readRows()
{
    m_readLater.stop();
    const QScopedValueRollback reading(m_isReading, true);
    // A row must not move to its new place while it is read.
    m_table->setSortingEnabled(false);
    std::vector<LevelPoint> points;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QTableWidgetItem* frequency = m_table->item(row, frequencyColumn);
        QTableWidgetItem* level = m_table->item(row, levelColumn);
        const bool hasFrequency =
            frequency != nullptr && readCell(*frequency, ReferenceLevels::readFrequency);
        const bool hasLevel = level != nullptr && readCell(*level, ReferenceLevels::readLevel);
        if (hasFrequency && hasLevel)
            points.push_back(
                {frequency->data(valueRole).toDouble(), level->data(valueRole).toDouble()});
    }
    m_table->setSortingEnabled(true);
    storeRows();
    std::stable_sort(points.begin(), points.end(),
                     [](const LevelPoint& a, const LevelPoint& b) { return a.hertz < b.hertz; });
    if (points == m_points)
        return;
    m_points = std::move(points);
    Q_EMIT pointsChanged();
}

void LevelsPanel::refreshTexts()
{
    m_text.refresh();
    const QScopedValueRollback reading(m_isReading, true);
    m_table->setSortingEnabled(false);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QTableWidgetItem* cell = m_table->item(row, frequencyColumn);
        if (cell == nullptr || !cell->data(valueRole).isValid())
            continue;
        cell->setText(m_text.full(cell->data(valueRole).toDouble()));
        cell->setData(readTextRole, cell->text());
    }
    m_table->setSortingEnabled(true);
}

} // namespace bandmonitor
