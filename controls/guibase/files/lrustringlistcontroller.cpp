// SPDX-License-Identifier: MIT
#include "lrustringlistcontroller.h"

#include "ilrustringlistdisplayer.h"
#include "lrustringliststore_p.h"

#include <QPointer>
#include <QTimer>

using Operation = LruStringListStore::Operation;

LruStringListController::LruStringListController(ILruStringListDisplayer* displayer, int limit,
                                                 ICfg* cfg, const QString& keyPrefix)
    : m_displayer(displayer)
    , m_list(std::make_unique<LruStringList>(limit))
    , m_store(std::make_unique<LruStringListStore>(cfg, keyPrefix))
{}

LruStringListController::~LruStringListController()
{
    m_store->saveFinally(*m_list);
}

void LruStringListController::Init()
{
    m_store->read(*m_list);
    DisplayList();
}

QString LruStringListController::Select(const QString& text)
{
    const QString selected = text;
    m_store->apply(*m_list, Operation::Select, selected);
    DisplayList();
    return selected;
}

QString LruStringListController::Select(int index)
{
    return Select(m_list->At(index));
}

void LruStringListController::Erase(const QString& text)
{
    m_store->apply(*m_list, Operation::Erase, text);
    DisplayList();
}

void LruStringListController::Erase(int index)
{
    Erase(m_list->At(index));
}

int LruStringListController::GetCount() const
{
    return m_list->GetCount();
}

QString LruStringListController::GetDisplayed(int index) const
{
    return m_displayed.value(index, m_list->At(index));
}

void LruStringListController::DisplayList()
{
    if (m_isScheduled)
        return;
    m_isScheduled = true;
    QTimer::singleShot(displayDelay, this, &LruStringListController::SlotDisplayList);
}

void LruStringListController::Save()
{
    constexpr int patience = 100;
    if (!m_store->hasChanges() || m_store->save(*m_list, patience) || m_isRetryScheduled)
        return;
    m_isRetryScheduled = true;
    QTimer::singleShot(retryDelay, this, [this] {
        m_isRetryScheduled = false;
        Save();
    });
}

void LruStringListController::SlotDisplayList()
{
    m_isScheduled = false;
    Save();
    if (m_displayer == nullptr)
        return;
    // What the displayer does may reach the application, which may end the controller.
    const QPointer<LruStringListController> guard(this);
    const auto shown = static_cast<int>(m_displayed.size());
    const QStringList entries = m_displayed = m_list->GetStrings();
    for (int i = shown - 1; i >= 0 && guard; --i)
        m_displayer->RemoveItem(i);
    for (int i = 0; i < static_cast<int>(entries.size()) && guard; ++i)
        m_displayer->InsertItem(i, entries.at(i));
}
