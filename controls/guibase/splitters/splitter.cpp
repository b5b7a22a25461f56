// SPDX-License-Identifier: MIT
#include "splitter.h"

#include "splitterhandle.h"

#include <guibase/records/splitterstatecheck.h>
#include <guibase/services/guibase.h>

#include <jtbase/qtimerhelpers.h>

#include <QChildEvent>
#include <QShowEvent>

#include <algorithm>
#include <utility>

/// The indices of the shown widgets before and after a handle, -1 where there is none.
struct Splitter::Neighbours
{
    int before = -1;
    int after = -1;
    bool isComplete() const { return before >= 0 && after >= 0; }
};

struct Splitter::Private
{
    QString name;
    QString variant;
    QList<int> awaitedSizes; ///< For widgets that are added next.
    QList<int> sizesBeforeMove;
    int placedWidgets = 0;
};

Splitter::Splitter(QWidget* parent)
    : Splitter(Qt::Horizontal, parent)
{}

Splitter::Splitter(Qt::Orientation orientation, QWidget* parent)
    : Splitter(orientation, parent, {}, {})
{}

Splitter::Splitter(Qt::Orientation orientation, QWidget* parent, const QString& objectName,
                   const QString& name)
    : QSplitter(orientation, parent)
    , d(std::make_unique<Private>())
{
    d->name = name;
    setObjectName(objectName);
    init();
}

Splitter::~Splitter() = default;

void Splitter::init()
{
    applyStored();
    connect(this, &QSplitter::splitterMoved, this, &Splitter::slotKeepSettings);
    setOpaqueResize(false);
}

QString Splitter::storageName() const
{
    return d->name;
}

void Splitter::setStorageName(const QString& name)
{
    d->name = name;
    applyStored();
}

void Splitter::setSizes(const QList<int>& sizes)
{
    d->awaitedSizes = sizes.size() > count() ? sizes : QList<int>();
    QSplitter::setSizes(withHints(sizes));
}

QList<int> Splitter::withHints(QList<int> sizes) const
{
    sizes.resize(std::min<qsizetype>(sizes.size(), count()));
    for (int i = 0; i < count(); ++i) {
        if (i < sizes.size() && sizes.at(i) >= 0)
            continue;
        const QSize hint = widget(i)->sizeHint();
        const int size =
            std::max(1, orientation() == Qt::Horizontal ? hint.width() : hint.height());
        if (i < sizes.size())
            sizes[i] = size;
        else
            sizes.append(size);
    }
    return sizes;
}

void Splitter::addWidget(QWidget* widget)
{
    QSplitter::addWidget(widget);
    placeNewWidgets();
}

void Splitter::insertWidget(int index, QWidget* widget)
{
    QSplitter::insertWidget(index, widget);
    placeNewWidgets();
}

void Splitter::childEvent(QChildEvent* event)
{
    QSplitter::childEvent(event);
    if (event->removed())
        d->placedWidgets = std::min(d->placedWidgets, count());
    else if (event->added() && event->child()->isWidgetType())
        QTimerHelpers::singleShot(0, this, [this] { placeNewWidgets(); });
    else if (event->polished())
        refresh(); // shows its handle, which takes room too
}

void Splitter::placeNewWidgets()
{
    if (count() <= d->placedWidgets)
        return;
    const bool isFirst = d->placedWidgets == 0;
    d->placedWidgets = count();
    if (isFirst)
        applyStored();
    else if (!d->awaitedSizes.isEmpty())
        setSizes(QList<int>(d->awaitedSizes));
}

void Splitter::setVariant(const QString& variant)
{
    d->variant = variant;
    const QObjectList all = children();
    for (QObject* child : all) {
        if (auto* splitter = qobject_cast<Splitter*>(child))
            splitter->setVariant(variant);
    }
    applyStored();
}

void Splitter::forgetSettings()
{
    if (!d->name.isEmpty())
        GuiBase::Instance().ForgetSplitterSizes4(d->name + d->variant);
}

void Splitter::applyStored()
{
    if (d->name.isEmpty())
        return;
    GuiBase::Instance().ApplySplitterSizes4(d->name + d->variant, this);
    // Stored states tell how they were resized, too.
    setOpaqueResize(false);
}

void Splitter::beginMove()
{
    d->sizesBeforeMove = SplitterStateCheck::sizes(saveState()).value_or(QList<int>());
}

/// The toolkit takes hidden widgets for collapsed ones when the mouse moves a handle.
void Splitter::keepHiddenSizes()
{
    const QList<int> before = std::exchange(d->sizesBeforeMove, {});
    QList<int> all = sizes();
    bool isChanged = false;
    for (int i = 0; i < std::min(before.size(), all.size()); ++i) {
        if (!widget(i)->isHidden())
            continue;
        all[i] = before.at(i);
        isChanged = true;
    }
    if (isChanged)
        QSplitter::setSizes(withHints(all));
}

void Splitter::slotKeepSettings(int, int)
{
    d->awaitedSizes.clear();
    keepHiddenSizes();
    if (!d->name.isEmpty())
        GuiBase::Instance().StoreSplitterSizes4(d->name + d->variant, this);
}

void Splitter::showEvent(QShowEvent* event)
{
    QSplitter::showEvent(event);
    if (!event->spontaneous())
        applyStored();
}

QSplitterHandle* Splitter::createHandle()
{
    return new SplitterHandle(orientation(), this);
}

Splitter::Neighbours Splitter::neighbours(int index) const
{
    Neighbours result;
    for (int i = 0; i < count(); ++i) {
        if (widget(i)->isHidden())
            continue;
        if (i < index)
            result.before = i;
        else if (result.after < 0)
            result.after = i;
    }
    return result;
}

int Splitter::minimumSizeOf(int widgetIndex) const
{
    const QWidget& one = *widget(widgetIndex);
    const QSize size = one.minimumSizeHint().expandedTo(one.minimumSize());
    return std::max(1, orientation() == Qt::Horizontal ? size.width() : size.height());
}

void Splitter::moveBorder(const Neighbours& border, qint64 sizeBefore, int index)
{
    QList<int> all = SplitterStateCheck::withHidden(
        sizes(), SplitterStateCheck::sizes(saveState()).value_or(QList<int>()));
    const int total = all.at(border.before) + all.at(border.after);
    const int lowest = std::min(minimumSizeOf(border.before), total);
    const int highest = std::max(lowest, total - minimumSizeOf(border.after));
    all[border.before] = static_cast<int>(std::clamp<qint64>(sizeBefore, lowest, highest));
    all[border.after] = total - all.at(border.before);
    QSplitter::setSizes(withHints(all));
    const QPoint position = handle(index)->pos();
    Q_EMIT splitterMoved(orientation() == Qt::Horizontal ? position.x() : position.y(), index);
}

void Splitter::shiftHandle(int index, int pixels)
{
    refresh(); // What has changed just now may not be laid out yet.
    const Neighbours border = neighbours(index);
    if (border.isComplete())
        moveBorder(border, qint64{sizes().at(border.before)} + pixels, index);
}

void Splitter::equalizeNeighbours(int index)
{
    refresh();
    const Neighbours border = neighbours(index);
    if (border.isComplete())
        moveBorder(border, (sizes().at(border.before) + sizes().at(border.after)) / 2, index);
}
