// SPDX-License-Identifier: MIT
#include "persistentwidgetregistry.h"

#include "persistentwidget_p.h"
#include "screenwatch_p.h"

#include <jtbase/qtimerhelpers.h>

#include <QCoreApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QThread>

#include <algorithm>
#include <utility>

PersistentWidgetRegistry::PersistentWidgetRegistry() = default;

PersistentWidgetRegistry::~PersistentWidgetRegistry() = default;

void PersistentWidgetRegistry::registerWidget(QWidget* widget, const QString& recordName)
{
    const bool known = std::any_of(m_widgets.cbegin(), m_widgets.cend(),
                                   [widget](const auto& entry) { return entry->watches(widget); });
    if (widget == nullptr || known)
        return;
    // What a gone widget looked like is written; it must not be written over a new one's record.
    std::erase_if(m_widgets, [](const auto& entry) { return entry->widget() == nullptr; });
    // Entered before it is read: reading shows the widget, whose handlers may come back here.
    const auto entry = std::make_shared<PersistentWidget>(widget, recordName);
    connect(entry.get(), &PersistentWidget::changed, this, [this] { m_store.noteChange(); });
    connect(entry.get(), &PersistentWidget::resized, this, [weak = std::weak_ptr(entry)] {
        if (const auto resized = weak.lock())
            resized->applyAwaited();
    });
    m_widgets.push_back(entry);
    QCoreApplication::instance()->installEventFilter(this); // No matter how often.
    if (!m_screens)
        m_screens = std::make_unique<ScreenWatch>(
            [this] { forEachWidget(&PersistentWidget::makeReachable); });
    entry->read();
}

void PersistentWidgetRegistry::unregisterWidget(const QObject* widget)
{
    if (widget == nullptr)
        return;
    std::erase_if(m_widgets, [widget](const auto& entry) {
        if (!entry->watches(widget))
            return entry->widget() == nullptr;
        entry->writeChanges();
        return true;
    });
}

void PersistentWidgetRegistry::clear()
{
    m_store.dropChanges();
    m_screens.reset();
    m_widgets.clear();
}

void PersistentWidgetRegistry::forEachWidget(
    const std::function<void(PersistentWidget&)>& operation)
{
    const auto widgets = m_widgets;
    for (const auto& entry : widgets)
        operation(*entry);
}

// The toolkit's quit closes window by window, floating docks among them, and ends when one of them
// refuses.
bool PersistentWidgetRegistry::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Quit && watched == QCoreApplication::instance())
        beginEnd();
    return false;
}

void PersistentWidgetRegistry::beginEnd()
{
    forEachWidget(&PersistentWidget::beginEnd);
    if (!std::exchange(m_awaitsEnd, true))
        awaitEnd(QThread::currentThread()->loopLevel());
}

/// The application runs on when its loop does. A window that asks whether it may close runs one of
/// its own.
void PersistentWidgetRegistry::awaitEnd(int loopLevel)
{
    constexpr int milliseconds = 50;
    QTimerHelpers::singleShot(milliseconds, this, [this, loopLevel] {
        if (QThread::currentThread()->loopLevel() > loopLevel) {
            awaitEnd(loopLevel);
            return;
        }
        m_awaitsEnd = false;
        forEachWidget(&PersistentWidget::giveUpEnd);
    });
}

void PersistentWidgetRegistry::write()
{
    forEachWidget(&PersistentWidget::write);
}

void PersistentWidgetRegistry::setMode(quint32 mode)
{
    forEachWidget([mode](PersistentWidget& entry) { entry.setMode(mode); });
}

void PersistentWidgetRegistry::storeFactory(quint32 mode)
{
    forEachWidget([mode](PersistentWidget& entry) { entry.storeFactory(mode); });
}

bool PersistentWidgetRegistry::hasLayout(quint32 mode) const
{
    return std::any_of(m_widgets.cbegin(), m_widgets.cend(),
                       [mode](const auto& entry) { return entry->hasLayout(mode); });
}

bool PersistentWidgetRegistry::restore(void (PersistentWidget::*operation)())
{
    if (m_isRestoring)
        return false;
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    forEachWidget(operation);
    return true;
}

bool PersistentWidgetRegistry::restoreProgramStart()
{
    return restore(&PersistentWidget::restoreProgramStart);
}

bool PersistentWidgetRegistry::restoreFactory()
{
    return restore(&PersistentWidget::restoreFactory);
}

bool PersistentWidgetRegistry::isRestoring() const
{
    return m_isRestoring;
}

void PersistentWidgetRegistry::setWriteDelay(int milliseconds)
{
    m_store.setWriteDelay(milliseconds);
}

void PersistentWidgetRegistry::writeChanges()
{
    if (m_isRestoring)
        m_store.noteChange();
    else
        forEachWidget(&PersistentWidget::writeChanges);
}
