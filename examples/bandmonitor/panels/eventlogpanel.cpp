// SPDX-License-Identifier: MIT
#include "panels/eventlogpanel.h"

#include "model/textfile.h"
#include "panels/emptyhint.h"
#include "panels/listtext.h"
#include "panels/panelactions.h"
#include "panels/wrappingrow.h"
#include "settings/settings.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <valueframework/undorecording.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

namespace bandmonitor {

namespace {

constexpr std::chrono::milliseconds standardInterval{200};
constexpr int cellPadding = 24;
constexpr int smallestRows = 3; // with the header

constexpr const char* columnTitles[EventLogPanel::ColumnCount] = {
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Time"),
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Recorded"),
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Kind"),
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Event"),
};

/// By EventKind.
constexpr const char* kindTexts[] = {
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Recording"),
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Signal"),
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Job"),
    QT_TRANSLATE_NOOP("bandmonitor::EventLogPanel", "Mode"),
};

QString kindText(EventKind kind)
{
    return EventLogPanel::tr(kindTexts[static_cast<std::size_t>(kind)]);
}

class ClearStep : public QUndoCommand
{
public:
    explicit ClearStep(EventLog* log)
        : QUndoCommand(EventLogPanel::tr("Clear the event log"))
        , m_log(log)
        , m_begin(log->begin())
    {}
    void redo() override
    {
        if (m_log)
            m_log->clear();
    }
    void undo() override
    {
        if (m_log)
            m_log->restore(m_begin);
    }

private:
    QPointer<EventLog> m_log;
    const quint64 m_begin;
};

QString timeText(quint64 timeUs)
{
    return GuiBase::Instance().TimeString(timeUs, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

QString timeText(const EventPlace& place)
{
    return place.sweep < 0 ? QString() : timeText(place.timeUs);
}

} // namespace

EventLogPanel::EventLogPanel(EventLog* log, QWidget* parent)
    : Panel(parent)
    , m_log(log)
    , m_list(new SortListView(this, "events"))
    , m_filter(new QLineEdit(this))
    , m_count(new QLabel(this))
{
    setAccessibleName(tr("Event log"));
    setFocusProxy(m_list);
    m_filter->setObjectName(QStringLiteral("eventFilter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter of the events"));
    m_filter->installEventFilter(this);
    m_count->setMargin(2); // from the edge of the window
    buildList();
    buildActions();

    WrappingRow* buttons = makeButtonRow(this, m_actions.first(3));
    buttons->addWidget(m_count);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(m_filter);
    column->addWidget(m_list, 1);
    column->addLayout(buttons);

    m_rest.setSingleShot(true);
    m_rest.setInterval(standardInterval);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        if (m_isStale && isVisible())
            update();
    });
    connect(log, &EventLog::changed, this, &EventLogPanel::refresh);
    connect(log, &QObject::destroyed, this, &EventLogPanel::rebuild);
    connect(m_filter, &QLineEdit::textChanged, this, &EventLogPanel::rebuild);
    rebuild();
}

EventLogPanel::~EventLogPanel()
{
    m_list->verticalScrollBar()->disconnect(this); // it outlives this part of the pane
}

void EventLogPanel::buildList()
{
    m_list->setAccessibleName(tr("Events"));
    m_list->setMinimumHeight(smallestRows * m_list->fontMetrics().height());
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setPlacingArrivals(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->SetCompareFunctionLength(ColumnCount);
    for (int column = 0; column < ColumnCount; ++column) {
        m_list->addColumn(tr(columnTitles[column]));
        m_list->SetCompareFunction(column, SortListView::_compStandardString);
    }
    for (const Column column : {Time, Recorded})
        m_list->SetCompareFunction(column, SortListView::_compStandardNumeric);
    // Events come in their order: nothing to sort until the user chooses a column.
    m_list->setSorting(-1, Qt::AscendingOrder);
    m_list->setShowSortIndicator(true);
    m_list->header()->setSortIndicator(-1, Qt::AscendingOrder);
    const auto fit = [this](Column column, QString widest) {
        const QFontMetrics metrics = m_list->fontMetrics();
        m_list->setColumnWidth(column, metrics.horizontalAdvance(widest) + cellPadding);
    };
    fit(Time, timeText(0));
    fit(Recorded, timeText(0));
    QString widest = tr(columnTitles[Kind]);
    for (const char* text : kindTexts) {
        if (tr(text).size() > widest.size())
            widest = tr(text);
    }
    fit(Kind, widest);
    m_list->header()->setStretchLastSection(true);
    QScrollBar* bar = m_list->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar](int value) { m_followsEnd = value >= bar->maximum(); });
    // Also when the list becomes smaller, or its other scroll bar comes up.
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar] {
        if (m_followsEnd)
            bar->setValue(bar->maximum());
    });
    new EmptyHint(tr("No events to show. What happens to recordings, signals, jobs and modes "
                     "appears here."),
                  m_list);
}

void EventLogPanel::buildActions()
{
    m_actions = {
        addPanelAction(this, tr("&Copy"), QKeySequence::Copy,
                       tr("Copies the selected events, or all when none is selected")),
        addPanelAction(this, tr("S&ave as text…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S,
                       tr("Writes the shown events to a file")),
        addPanelAction(this, tr("C&lear"), Qt::CTRL | Qt::SHIFT | Qt::Key_D,
                       tr("Deletes all events")),
    };
    connect(m_actions[0], &QAction::triggered, this, &EventLogPanel::copy);
    connect(m_actions[1], &QAction::triggered, this, &EventLogPanel::save);
    connect(m_actions[2], &QAction::triggered, this, [this] {
        if (m_log && m_log->size() > 0)
            UndoRecording::Instance().stack()->push(new ClearStep(m_log));
    });
    QAction* goToSweep = addPanelAction(this, tr("&Go to the sweep"), Qt::CTRL | Qt::Key_G,
                                        tr("Shows the sweep that was shown at the event"));
    connect(goToSweep, &QAction::triggered, this, [this] { goTo(m_list->currentItem()); });
    connect(m_list, &QTreeWidget::itemActivated, this, &EventLogPanel::goTo);
    auto* menu = new QMenu(this);
    menu->addAction(goToSweep);
    menu->addActions(m_actions);
    m_actions << goToSweep;
    m_list->setContextMenu(menu);
    QAction* find =
        addPanelAction(this, tr("&Filter"), QKeySequence::Find, tr("Goes to the filter"));
    connect(find, &QAction::triggered, m_filter, [this] {
        m_filter->setFocus(Qt::ShortcutFocusReason);
        m_filter->selectAll();
    });
    const auto showTip = [this, find] { m_filter->setToolTip(find->toolTip()); };
    connect(find, &QAction::changed, m_filter, showTip);
    showTip();
}

bool EventLogPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape && !m_filter->text().isEmpty()) {
            m_filter->clear();
            return true;
        }
        if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_list->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return Panel::eventFilter(watched, event);
}

void EventLogPanel::setUpdateInterval(std::chrono::milliseconds interval)
{
    m_rest.setInterval(interval);
}

void EventLogPanel::setFilter(const QString& text)
{
    m_filter->setText(text);
}

// --- Rows ----------------------------------------------------------------------------------------

void EventLogPanel::showEvent(QShowEvent* event)
{
    Panel::showEvent(event);
    if (m_isStale)
        update();
}

void EventLogPanel::refresh()
{
    m_isStale = true;
    if (isVisible() && !m_rest.isActive())
        m_rest.start();
}

void EventLogPanel::update()
{
    if (m_log && m_log->begin() < m_first) { // a step back
        rebuild();
        return;
    }
    m_isStale = false;
    const bool follows = m_followsEnd;
    // Rows go at the top: what the user looks at stays where it is.
    const QPersistentModelIndex top = m_list->indexAt(QPoint(0, 0));
    removeGone();
    appendNew();
    if (follows)
        m_list->scrollToBottom();
    else if (top.isValid())
        m_list->scrollTo(top, QAbstractItemView::PositionAtTop);
    m_followsEnd = follows;
    showCount();
}

void EventLogPanel::rebuild()
{
    m_isStale = false;
    m_rows.clear();
    m_list->clear();
    m_next = 0;
    appendNew();
    if (isVisible())
        m_list->scrollToBottom(); // otherwise once the list knows its height
    m_followsEnd = true;
    showCount();
}

void EventLogPanel::refreshTexts()
{
    rebuild();
}

void EventLogPanel::removeGone()
{
    const quint64 first = m_log ? m_log->begin() : m_next;
    if (!m_rows.empty() && m_rows.back().number < first) {
        m_rows.clear();
        m_list->clear();
    }
    for (; !m_rows.empty() && m_rows.front().number < first; m_rows.pop_front())
        delete m_rows.front().item;
}

bool EventLogPanel::matches(const Event& event) const
{
    const QString& wanted = m_filter->text();
    return wanted.isEmpty() || event.text.contains(wanted, Qt::CaseInsensitive) ||
           kindText(event.kind).contains(wanted, Qt::CaseInsensitive) ||
           timeText(event.timeUs).contains(wanted, Qt::CaseInsensitive) ||
           timeText(event.place).contains(wanted, Qt::CaseInsensitive);
}

SortListViewItem* EventLogPanel::makeItem(const Event& event) const
{
    auto* item = new SortListViewItem(
        static_cast<QTreeWidget*>(nullptr),
        {timeText(event.timeUs), timeText(event.place), kindText(event.kind), event.text});
    item->SetColCount(ColumnCount);
    // By number: the clock may have been put back.
    item->SetSortKey(Time, QString::number(event.number));
    item->SetSortKey(Recorded, QString::number(event.place.timeUs));
    item->setToolTip(Text, event.text);
    return item;
}

void EventLogPanel::appendNew()
{
    if (!m_log)
        return;
    m_first = m_log->begin();
    QList<QTreeWidgetItem*> added;
    for (quint64 number = std::max(m_next, m_log->begin()); number < m_log->end(); ++number) {
        const Event& event = m_log->event(number);
        if (!matches(event))
            continue;
        m_rows.push_back({number, makeItem(event)});
        added << m_rows.back().item;
    }
    m_next = m_log->end();
    m_list->addTopLevelItems(added);
}

void EventLogPanel::showCount()
{
    const QLocale locale;
    const auto shown = locale.toString(static_cast<qulonglong>(m_rows.size()));
    const std::size_t all = m_log ? m_log->size() : 0;
    m_count->setText(
        all == m_rows.size()
            ? tr("Events: %1").arg(shown)
            : tr("Events: %1 of %2").arg(shown, locale.toString(static_cast<qulonglong>(all))));
}

// --- Commands ------------------------------------------------------------------------------------

QString EventLogPanel::text() const
{
    const bool onlySelected = !m_list->selectedItems().isEmpty();
    return listText(*m_list, onlySelected ? ListRows::Selected : ListRows::All);
}

QString EventLogPanel::shownText()
{
    if (m_isStale)
        update();
    return listText(*m_list, ListRows::All);
}

void EventLogPanel::goTo(const QTreeWidgetItem* row)
{
    const auto found =
        std::ranges::find_if(m_rows, [row](const Row& each) { return each.item == row; });
    if (found != m_rows.end() && m_log && found->number >= m_log->begin())
        Q_EMIT placeWanted(m_log->event(found->number).place);
}

void EventLogPanel::copy() const
{
    QApplication::clipboard()->setText(text());
}

std::optional<QString> EventLogPanel::saveTo(const QString& path)
{
    const std::optional<QString> problem =
        writeTextFile(path, shownText().toUtf8(), QIODevice::Text);
    return problem ? tr("The events cannot be written to %1: %2").arg(path, *problem) : problem;
}

void EventLogPanel::save()
{
    const QString path =
        ModalDialogs::askForFile(this, {QFileDialog::AcceptSave, tr("Save the events"),
                                        Settings::lastFolder(), tr("Text files (*.txt)")});
    if (path.isEmpty())
        return;
    if (const std::optional<QString> problem = saveTo(path))
        QMessageBox::warning(this, tr("Save the events"), *problem);
    else
        Settings::setLastFolder(QFileInfo(path).absolutePath());
}

} // namespace bandmonitor
