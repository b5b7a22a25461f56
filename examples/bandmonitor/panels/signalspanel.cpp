// SPDX-License-Identifier: MIT
#include "panels/signalspanel.h"

#include "model/panenames.h"
#include "panels/listtext.h"
#include "panels/numberdelegate.h"
#include "panels/panelactions.h"
#include "panels/readableoutline.h"

#include <radiopanes/colors/panecolors.h>

#include <guibase/lists/checksortlistviewitem.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {

constexpr std::chrono::milliseconds standardInterval{200};
constexpr int iconExtent = 12;

struct ColumnLayout
{
    const char* title;
    int digits; ///< Its width.
    Qt::AlignmentFlag alignment;
    SortListView::CompareFunction compare;
};

constexpr ColumnLayout columnLayouts[SignalsPanel::ColumnCount] = {
    {QT_TRANSLATE_NOOP("bandmonitor::SignalsPanel", "Follow"), 8, Qt::AlignLeft,
     SortListView::_compStandardNumeric},
    {QT_TRANSLATE_NOOP("bandmonitor::SignalsPanel", "Frequency"), 15, Qt::AlignRight,
     SortListView::_compStandardNumeric},
    {QT_TRANSLATE_NOOP("bandmonitor::SignalsPanel", "Level"), 10, Qt::AlignRight,
     SortListView::_compNumericWithSuffix},
    {QT_TRANSLATE_NOOP("bandmonitor::SignalsPanel", "Bandwidth"), 11, Qt::AlignRight,
     SortListView::_compStandardNumeric},
    {QT_TRANSLATE_NOOP("bandmonitor::SignalsPanel", "Type"), 21, Qt::AlignLeft,
     SortListView::_compStandardString},
    {QT_TRANSLATE_NOOP("bandmonitor::SignalsPanel", "First seen"), 14, Qt::AlignRight,
     SortListView::_compStandardNumeric},
    {QT_TRANSLATE_NOOP("bandmonitor::SignalsPanel", "Last seen"), 14, Qt::AlignRight,
     SortListView::_compStandardNumeric},
};

QIcon typeIcon(char type)
{
    QPixmap picture(iconExtent, iconExtent);
    picture.fill(paneColor(signalTypeSlot(type)));
    QPainter painter(&picture);
    painter.setPen(Qt::darkGray);
    painter.drawRect(0, 0, iconExtent - 1, iconExtent - 1);
    return QIcon(picture);
}

} // namespace

SignalsPanel::SignalsPanel(const SignalWatch* watch, QWidget* parent)
    : Panel(parent)
    , m_watch(watch)
    , m_list(new SortListView(this, "signals"))
    , m_copy(
          addPanelAction(this, tr("&Copy"), QKeySequence::Copy, tr("Copies all signals as text")))
{
    setAccessibleName(tr("Signals"));
    setFocusProxy(m_list);
    m_list->setAccessibleName(tr("Signals"));
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setPlacingArrivals(true);
    m_list->installEventFilter(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_list);
    buildColumns();
    connect(m_copy, &QAction::triggered, this,
            [this] { QApplication::clipboard()->setText(text()); });
    auto* menu = new QMenu(this);
    menu->addAction(m_copy);
    m_list->setContextMenu(menu);
    m_rest.setSingleShot(true);
    m_rest.setInterval(standardInterval);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        if (m_isStale && isVisible())
            update();
    });
    connect(m_list, qOverload<SortListViewItem*>(&SortListView::selectionChanged), this,
            &SignalsPanel::choose);
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, &SignalsPanel::refreshTexts);
}

SignalsPanel::~SignalsPanel() = default;

void SignalsPanel::buildColumns()
{
    m_list->SetCompareFunctionLength(ColumnCount);
    const int digitWidth = m_list->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (int column = 0; column < ColumnCount; ++column) {
        const ColumnLayout& layout = columnLayouts[column];
        m_list->addColumn(tr(layout.title));
        m_list->setColumnAlignment(static_cast<unsigned>(column),
                                   layout.alignment | Qt::AlignVCenter);
        m_list->headerItem()->setTextAlignment(column, layout.alignment | Qt::AlignVCenter);
        m_list->SetCompareFunction(column, layout.compare);
        m_list->setColumnWidth(column, layout.digits * digitWidth);
    }
    // Names of types differ in length from language to language.
    int widest = columnLayouts[Type].digits * digitWidth;
    for (const char type : SignalTracker::types) {
        const QString name = GuiBase::Instance().GetSignalType(type);
        widest = std::max(widest, fontMetrics().horizontalAdvance(name) + 2 * iconExtent);
    }
    m_list->setColumnWidth(Type, widest);
    auto* numbers = new NumberDelegate(this);
    for (const Column column : {Frequency, Level, Bandwidth})
        m_list->setItemDelegateForColumn(column, numbers);
    m_list->header()->setStretchLastSection(false);
    m_list->setSorting(Frequency, Qt::AscendingOrder);
    m_list->setShowSortIndicator(true);
    m_list->header()->setSortIndicator(Frequency, Qt::AscendingOrder);
    m_list->setColumnSelectionMenu(true);
    m_list->SetColumnWidthPersistantName(QStringLiteral("BandmonitorSignals"));
}

void SignalsPanel::setUpdateInterval(std::chrono::milliseconds interval)
{
    m_rest.setInterval(interval);
}

void SignalsPanel::showEvent(QShowEvent* event)
{
    Panel::showEvent(event);
    if (m_isStale)
        update();
}

void SignalsPanel::changeEvent(QEvent* event)
{
    Panel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refreshTexts();
}

void SignalsPanel::refresh()
{
    tellFollowed();
    m_isStale = true;
    if (isVisible() && !m_rest.isActive())
        update();
}

void SignalsPanel::refreshTexts()
{
    m_text.refresh();
    m_typeIcons.clear();
    const QScopedValueRollback updating(m_isUpdating, true);
    for (auto& [id, row] : m_rows) {
        showType(row, row.shown.type);
        fillRow(row, SignalTrack(row.shown), true);
    }
}

void SignalsPanel::update()
{
    m_isStale = false;
    m_rest.start();
    const QScopedValueRollback updating(m_isUpdating, true);
    removeGone();
    bool sortingChanged = false;
    // Times of another day have their date.
    quint64 now = m_watch->timeUs();
    const QString day = GuiBase::Instance().TimeString(now, QStringLiteral("yyyy-MM-dd"));
    const bool isAnotherDay = std::exchange(m_day, day) != day;
    for (const SignalTrack& track : m_watch->tracks()) {
        const auto found = m_rows.find(track.id);
        if (found == m_rows.end())
            addRow(track); // the list finds its place by itself
        else
            sortingChanged = fillRow(found->second, track, isAnotherDay) || sortingChanged;
    }
    if (sortingChanged)
        m_list->sort();
    if (!m_rows.contains(m_followed))
        followSuccessor();
}

void SignalsPanel::removeGone()
{
    std::erase_if(m_rows, [this](const auto& entry) {
        const auto& [id, row] = entry;
        if (m_watch->track(id) != nullptr)
            return false;
        // Otherwise the list would choose a neighbour that the user did not mean.
        if (m_list->currentItem() == row.item)
            m_list->setCurrentItem(nullptr);
        delete row.item;
        return true;
    });
}

SignalsPanel::Row& SignalsPanel::addRow(const SignalTrack& track)
{
    Row& row = m_rows[track.id];
    row.item = new CheckSortListViewItem(m_list, QStringList());
    row.item->SetColCount(ColumnCount);
    row.item->SetId(static_cast<int>(track.id));
    row.item->SetSortKey(Follow, QStringLiteral("0"));
    if (auto* box = qobject_cast<QCheckBox*>(m_list->itemWidget(row.item, Follow))) {
        box->setAccessibleName(tr("Follow the signal"));
        new ReadableOutline(box, QPalette::Base);
        connect(box, &QCheckBox::toggled, this,
                [this, id = track.id](bool on) { checkToggled(id, on); });
    }
    showType(row, track.type);
    fillRow(row, track, true);
    return row;
}

bool SignalsPanel::setCell(Row& row, Column column, const QString& text, const QString& key)
{
    if (row.item->text(column) != text)
        row.item->setText(column, text);
    if (key.isNull())
        return m_list->sortColumn() == column;
    row.item->SetSortKey(column, key);
    return m_list->sortColumn() == column;
}

bool SignalsPanel::fillRow(Row& row, const SignalTrack& track, bool anew)
{
    const SignalTrack& shown = row.shown;
    bool sorting = false;
    const auto cell = [&](bool changed, Column column, const auto& text, const QString& key) {
        if (changed || anew)
            sorting = setCell(row, column, text(), key) || sorting;
    };
    const Signal& signal = track.signal;
    cell(
        signal.centreHz != shown.signal.centreHz, Frequency,
        [&] { return m_text.full(signal.centreHz); }, QString::number(signal.centreHz, 'f', 3));
    cell(
        signal.peakDb != shown.signal.peakDb, Level,
        [&] { return tr("%1 dB").arg(signal.peakDb, 0, 'f', 1); }, QString());
    cell(
        signal.bandwidthHz() != shown.signal.bandwidthHz(), Bandwidth,
        [&] { return FrequencyText::width(signal.bandwidthHz()); },
        QString::number(signal.bandwidthHz(), 'f', 3));
    cell(
        track.type != shown.type, Type,
        [&] { return GuiBase::Instance().GetSignalType(track.type); }, QString());
    cell(
        track.firstSeenUs != shown.firstSeenUs, FirstSeen,
        [&] { return recordedTime(track.firstSeenUs, m_watch->timeUs()); },
        QString::number(track.firstSeenUs));
    cell(
        track.lastSeenUs != shown.lastSeenUs, LastSeen,
        [&] { return recordedTime(track.lastSeenUs, m_watch->timeUs()); },
        QString::number(track.lastSeenUs));
    if (track.type != shown.type)
        showType(row, track.type);
    if (anew || track.isPresent() != shown.isPresent()) {
        // What is not there at present steps back, but stays readable: the disabled colour would
        // not contrast enough.
        constexpr float absentOpacity = 0.6F;
        QColor color = palette().color(QPalette::Text); // that of the list may follow later
        if (!track.isPresent())
            color.setAlphaF(absentOpacity);
        for (int column = Frequency; column < ColumnCount; ++column)
            row.item->setForeground(column, color);
    }
    row.shown = track;
    return sorting;
}

void SignalsPanel::showType(Row& row, char type)
{
    QIcon& icon = m_typeIcons[type];
    if (icon.isNull())
        icon = typeIcon(type);
    row.item->setIcon(Type, icon);
}

QString SignalsPanel::text()
{
    if (m_isStale)
        update();
    return listTitles(*m_list, Frequency) + listText(*m_list, ListRows::All, Frequency);
}

/// The focus alone chooses no signal: the toolkit would select the first one, and the cursor of the
/// spectrum would go there. The box of the row, which gets the focus at once, does the same.
bool SignalsPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list && event->type() == QEvent::FocusIn && m_list->currentItem() == nullptr) {
        const QScopedValueRollback updating(m_isUpdating, true);
        m_list->selectionModel()->setCurrentIndex(m_list->model()->index(0, Follow),
                                                  QItemSelectionModel::NoUpdate);
        m_list->clearSelection();
    }
    return Panel::eventFilter(watched, event);
}

void SignalsPanel::choose(SortListViewItem* item)
{
    auto* row = dynamic_cast<CheckSortListViewItem*>(item);
    if (row == nullptr || m_isUpdating)
        return;
    if (const SignalTrack* track = m_watch->track(static_cast<std::uint32_t>(row->GetId())))
        Q_EMIT frequencyWanted(track->signal.centreHz);
}

void SignalsPanel::checkToggled(std::uint32_t id, bool on)
{
    const auto found = m_rows.find(id);
    if (found == m_rows.end())
        return;
    found->second.item->SetSortKey(Follow, on ? QStringLiteral("1") : QStringLiteral("0"));
    if (on)
        follow(id);
    else if (m_followed == id)
        m_followed = 0;
}

void SignalsPanel::follow(std::uint32_t id)
{
    if (id != 0 && !m_rows.contains(id))
        return;
    const std::uint32_t before = std::exchange(m_followed, id);
    for (const std::uint32_t changed : {before, id}) {
        const auto found = m_rows.find(changed);
        if (found != m_rows.end())
            found->second.item->setOn(changed == id);
    }
    tellFollowed();
}

void SignalsPanel::tellFollowed()
{
    const SignalTrack* track = m_followed != 0 ? m_watch->track(m_followed) : nullptr;
    if (track == nullptr || !track->isPresent())
        return;
    m_followedSignal = track->signal;
    Q_EMIT frequencyWanted(track->signal.centreHz);
}

void SignalsPanel::followSuccessor()
{
    if (m_followed == 0)
        return;
    std::uint32_t successor = 0;
    for (const SignalTrack& track : m_watch->tracks()) {
        const double centre = track.signal.centreHz;
        if (centre >= m_followedSignal.lowHz && centre <= m_followedSignal.highHz)
            successor = track.id;
    }
    follow(successor);
}

} // namespace bandmonitor
