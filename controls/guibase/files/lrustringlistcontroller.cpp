// SPDX-License-Identifier: MIT
#include "lrustringlistcontroller.h"

#include "ilrustringlistdisplayer.h"
#include "lrustringliststore_p.h"

#include <QPointer>
#include <QTimer>

using Operation = LruStringListStore::Operation;

struct LruStringListController::Private
{
    ILruStringListDisplayer* displayer; ///< Not owned.
    LruStringList list;
    LruStringListStore store;
    QStringList displayed{};
    bool isScheduled = false;
    bool isRetryScheduled = false;
};

LruStringListController::LruStringListController(ILruStringListDisplayer* displayer, int limit,
                                                 ICfg* cfg, const QString& keyPrefix)
    : d(std::make_unique<Private>(
          Private{displayer, LruStringList(limit), LruStringListStore(cfg, keyPrefix)}))
{}

LruStringListController::~LruStringListController()
{
    d->store.saveFinally(d->list);
}

void LruStringListController::Init()
{
    d->store.read(d->list);
    DisplayList();
}

QString LruStringListController::Select(const QString& text)
{
    // It may be one of the list's own, which changes.
    const QString selected = text; // NOLINT(performance-unnecessary-copy-initialization)
    d->store.apply(d->list, Operation::Select, selected);
    DisplayList();
    return selected;
}

QString LruStringListController::Select(int index)
{
    return Select(d->list.At(index));
}

void LruStringListController::Erase(const QString& text)
{
    d->store.apply(d->list, Operation::Erase, text);
    DisplayList();
}

void LruStringListController::Erase(int index)
{
    Erase(d->list.At(index));
}

int LruStringListController::GetCount() const
{
    return d->list.GetCount();
}

QString LruStringListController::GetDisplayed(int index) const
{
    return d->displayed.value(index, d->list.At(index));
}

void LruStringListController::DisplayList()
{
    if (d->isScheduled)
        return;
    d->isScheduled = true;
    QTimer::singleShot(displayDelay, this, &LruStringListController::SlotDisplayList);
}

void LruStringListController::Save()
{
    constexpr int patience = 100;
    if (!d->store.hasChanges() || d->store.save(d->list, patience) || d->isRetryScheduled)
        return;
    d->isRetryScheduled = true;
    QTimer::singleShot(retryDelay, this, [this] {
        d->isRetryScheduled = false;
        Save();
    });
}

void LruStringListController::SlotDisplayList()
{
    d->isScheduled = false;
    Save();
    if (d->displayer == nullptr)
        return;
    // What the displayer does may reach the application, which may end the controller.
    const QPointer<LruStringListController> guard(this);
    const auto shown = static_cast<int>(d->displayed.size());
    const QStringList entries = d->displayed = d->list.GetStrings();
    for (int i = shown - 1; i >= 0 && guard; --i)
        d->displayer->RemoveItem(i);
    for (int i = 0; i < static_cast<int>(entries.size()) && guard; ++i)
        d->displayer->InsertItem(i, entries.at(i));
}
