// SPDX-License-Identifier: MIT
#include "persistentwidgetregistry_p.h"

#include "persistentwidget_p.h"

#include <QScopedValueRollback>

#include <algorithm>

PersistentWidgetRegistry::PersistentWidgetRegistry() = default;

PersistentWidgetRegistry::~PersistentWidgetRegistry() = default;

void PersistentWidgetRegistry::registerWidget(QWidget* widget, const QString& recordName)
{
    const bool known = std::any_of(m_widgets.cbegin(), m_widgets.cend(),
                                   [widget](const auto& entry) { return entry->watches(widget); });
    if (widget == nullptr || known)
        return;
    connect(widget, &QObject::destroyed, this, &PersistentWidgetRegistry::dropDestroyed,
            Qt::UniqueConnection);
    // Entered before it is read: reading shows the widget, whose handlers may come back here.
    const auto entry = std::make_shared<PersistentWidget>(widget, recordName);
    m_widgets.push_back(entry);
    entry->read();
}

void PersistentWidgetRegistry::unregisterWidget(const QObject* widget)
{
    if (widget == nullptr)
        return;
    std::erase_if(m_widgets, [widget](const auto& entry) {
        return entry->watches(widget) || entry->widget() == nullptr;
    });
}

void PersistentWidgetRegistry::dropDestroyed(const QObject* widget)
{
    for (const auto& entry : m_widgets) {
        if (entry->watches(widget))
            entry->writeLast();
    }
    unregisterWidget(widget);
}

void PersistentWidgetRegistry::clear()
{
    m_widgets.clear();
}

void PersistentWidgetRegistry::forEachWidget(void (PersistentWidget::*operation)())
{
    const auto widgets = m_widgets;
    for (const auto& entry : widgets)
        (entry.get()->*operation)();
}

void PersistentWidgetRegistry::capture()
{
    forEachWidget(&PersistentWidget::capture);
}

void PersistentWidgetRegistry::write()
{
    forEachWidget(&PersistentWidget::write);
}

bool PersistentWidgetRegistry::restore(void (PersistentWidget::*operation)())
{
    if (m_restoring)
        return false;
    const QScopedValueRollback<bool> restoring(m_restoring, true);
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
    return m_restoring;
}
