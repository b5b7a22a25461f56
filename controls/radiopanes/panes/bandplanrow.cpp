// SPDX-License-Identifier: MIT
#include "bandplanrow.h"

#include "frequencytext.h"
#include "mixedcolor_p.h"
#include "namefield_p.h"
#include "panepainter_p.h"
#include "visibleband.h"

#include <radiopanes/colors/contrast.h>
#include <radiopanes/colors/panecolors.h>

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace RadioPanes {

namespace {

constexpr int margin = 3;
constexpr int flagWidth = 4;        // of a bookmark
constexpr double tintOfParts = 0.2; // of the text colour in the background

} // namespace

class BandPlanRowPrivate
{
public:
    void placeInLanes();
    int laneHeight() const { return q->fontMetrics().height() + 1; }
    /// Where the entry is drawn; empty out of view.
    QRect placeOf(std::size_t number) const;
    QString toolTip(const BandPlan::Entry& entry) const;
    void paintEntry(QPainter& painter, const BandPlan::Entry& entry, const QRect& place,
                    int end) const;

    BandPlanRow* q = nullptr;
    QString caption;
    VisibleBand* band = nullptr;
    const FrequencyText* text = nullptr;
    int indent = 0;
    BandPlan plan;
    std::vector<int> lanes; ///< Beside the entries.
    int laneCount = 0;
    bool isEditable = false;
};

BandPlanRow::BandPlanRow(const QString& caption, VisibleBand* view, const FrequencyText* text,
                         int indent, QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<BandPlanRowPrivate>())
{
    d->q = this;
    d->caption = caption;
    d->band = view;
    d->text = text;
    d->indent = indent;
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(caption);
    hide();
    connect(view, &VisibleBand::rangeChanged, this, qOverload<>(&QWidget::update));
}

BandPlanRow::~BandPlanRow() = default;

void BandPlanRow::setPlan(const BandPlan& plan)
{
    d->plan = plan;
    d->placeInLanes();
    setVisible(!plan.isEmpty());
    updateGeometry();
    update();
}

const BandPlan& BandPlanRow::plan() const
{
    return d->plan;
}

void BandPlanRow::setEditable(bool editable)
{
    d->isEditable = editable;
}

void BandPlanRow::editName(std::size_t number)
{
    const BandPlan::Entry entry = d->plan.entries()[number];
    auto* field = new NameField(
        entry.name,
        [this, entry](const QString& name) {
            BandPlan::Entry named = entry;
            named.name = name;
            replace(entry, &named);
        },
        this);
    field->setFixedHeight(height());
    field->showAt(d->placeOf(number).topRight());
}

/// Null removes the entry. Others may have come or gone meanwhile.
void BandPlanRow::replace(const BandPlan::Entry& entry, const BandPlan::Entry* by)
{
    std::vector<BandPlan::Entry> entries = d->plan.entries();
    const auto found = std::ranges::find(entries, entry);
    if (found == entries.end() || (by != nullptr && *by == entry))
        return;
    entries.erase(found);
    if (by != nullptr)
        entries.push_back(*by);
    setPlan(BandPlan(std::move(entries)));
    Q_EMIT edited();
}

/// Each part into the first lane where it does not cover another one; bookmarks need one lane only.
void BandPlanRowPrivate::placeInLanes()
{
    std::array<double, BandPlanRow::maximumLanes> ends;
    ends.fill(-std::numeric_limits<double>::infinity());
    lanes.clear();
    laneCount = 1;
    for (const BandPlan::Entry& entry : plan.entries()) {
        std::size_t lane = 0;
        while (!entry.isBookmark() && lane + 1 < ends.size() && ends[lane] > entry.startHz)
            ++lane;
        ends[lane] = std::max(ends[lane], entry.stopHz);
        lanes.push_back(static_cast<int>(lane));
        laneCount = std::max(laneCount, static_cast<int>(lane) + 1);
    }
}

QSize BandPlanRow::sizeHint() const
{
    return {d->indent * 4, d->laneCount * d->laneHeight() + 1};
}

QRect BandPlanRowPrivate::placeOf(std::size_t number) const
{
    const BandPlan::Entry& entry = plan.entries()[number];
    if (entry.stopHz < band->low() || entry.startHz > band->high())
        return {};
    const int width = std::max(q->width() - indent, 1);
    const AxisRange range = band->range(width);
    const auto position = [&](double hertz) {
        return indent + static_cast<int>(std::clamp(range.positionOf(hertz), 0.0, width * 1.0));
    };
    const int left = position(entry.startHz);
    const int right = entry.isBookmark() ? left + flagWidth : position(entry.stopHz);
    return {left, lanes[number] * laneHeight() + 1, std::max(right - left, 1), laneHeight() - 1};
}

void BandPlanRow::paintEvent(QPaintEvent*)
{
    PanePainter painter(this);
    painter.fillRect(rect(), axisColor(PaneSlot::FrequencyAxisHigh, palette()));
    painter.setPen(axisColor(PaneSlot::FrequencyAxisText, palette()));
    painter.drawText(QRect(0, 0, d->indent - 2 * margin, height()),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(d->caption, Qt::ElideRight, d->indent - 2 * margin));
    painter.setClipRect(d->indent, 0, width() - d->indent, height());
    // From the right: the text of a bookmark ends where the next one begins, and of many in one
    // place one is drawn.
    std::array<int, maximumLanes> next;
    next.fill(width());
    const std::vector<BandPlan::Entry>& entries = d->plan.entries();
    for (std::size_t number = entries.size(); number-- > 0;) {
        const QRect place = d->placeOf(number);
        int& end = next[static_cast<std::size_t>(d->lanes[number])];
        if (place.isEmpty() || (place.left() == end && place.width() <= flagWidth))
            continue;
        d->paintEntry(painter, entries[number], place, end);
        end = place.left();
    }
}

void BandPlanRowPrivate::paintEntry(QPainter& painter, const BandPlan::Entry& entry,
                                    const QRect& place, int end) const
{
    const QColor ground = axisColor(PaneSlot::FrequencyAxisHigh, q->palette());
    const QColor ink = axisColor(PaneSlot::FrequencyAxisText, q->palette());
    QRect label = place;
    QColor background = ground;
    if (entry.isBookmark()) {
        painter.fillRect(place, readableOn(ground, paneColor(PaneSlot::Pin), lineContrast));
        label.setRight(end - margin);
        label.setLeft(place.right() + margin);
    } else {
        background = mixed(ground.rgb(), ink.rgb(), tintOfParts);
        painter.fillRect(place, background);
        painter.setPen(ink);
        painter.drawLine(place.topLeft(), place.bottomLeft());
        label.adjust(margin, 0, -margin, 0);
    }
    if (label.width() < q->fontMetrics().averageCharWidth() * 2)
        return;
    painter.setPen(readableOn(background, ink));
    painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     q->fontMetrics().elidedText(entry.name, Qt::ElideRight, label.width()));
}

std::optional<std::size_t> BandPlanRow::entryAt(const QPoint& position) const
{
    std::optional<std::size_t> found;
    int extent = width() + 1;
    for (std::size_t number = 0; number < d->plan.entries().size(); ++number) {
        QRect place = d->placeOf(number);
        if (place.isEmpty())
            continue;
        if (d->plan.entries()[number].isBookmark())
            place.adjust(-margin, 0, margin, 0);
        if (place.contains(position) && place.width() < extent) {
            extent = place.width();
            found = number;
        }
    }
    return found;
}

QString BandPlanRowPrivate::toolTip(const BandPlan::Entry& entry) const
{
    const QString range =
        entry.isBookmark()
            ? text->full(entry.startHz)
            : QStringLiteral("%1 – %2").arg(text->full(entry.startHz), text->full(entry.stopHz));
    return QStringLiteral("%1\n%2").arg(entry.name, range);
}

bool BandPlanRow::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const std::optional<std::size_t> number = entryAt(help->pos());
    // As plain text: names come from files.
    QToolTip::showText(help->globalPos(),
                       number ? QLatin1String("<qt style='white-space:pre'>") +
                                    d->toolTip(d->plan.entries()[*number]).toHtmlEscaped()
                              : QString(),
                       this);
    return true;
}

void BandPlanRow::contextMenuEvent(QContextMenuEvent* event)
{
    const std::optional<std::size_t> number = entryAt(event->pos());
    if (!number || !d->isEditable)
        return;
    const BandPlan::Entry entry = d->plan.entries()[*number];
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setLayoutDirection(QGuiApplication::layoutDirection()); // not that of the axes
    menu->addAction(tr("&Name…"), this, [this, number] {
        if (*number < d->plan.entries().size())
            editName(*number);
    });
    menu->addAction(tr("&Remove"), this, [this, entry] { replace(entry, nullptr); });
    menu->popup(event->globalPos());
}

void BandPlanRow::mousePressEvent(QMouseEvent* event)
{
    const std::optional<std::size_t> number = entryAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !number)
        return;
    const BandPlan::Entry& entry = d->plan.entries()[*number];
    d->band->setCursor(entry.isBookmark() ? entry.startHz
                                          : std::clamp((entry.startHz + entry.stopHz) / 2,
                                                       d->band->low(), d->band->high()));
}

void BandPlanRow::mouseDoubleClickEvent(QMouseEvent* event)
{
    const std::optional<std::size_t> number = entryAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !number)
        return;
    const BandPlan::Entry& entry = d->plan.entries()[*number];
    if (d->isEditable)
        editName(*number);
    else if (!entry.isBookmark())
        d->band->setVisible(entry.startHz, entry.stopHz);
}

} // namespace RadioPanes
