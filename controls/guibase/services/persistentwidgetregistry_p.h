// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class PersistentWidget;
class QWidget;

/// The widgets whose layout is kept from run to run, in the order of their registration.
///
/// Widgets are not owned. One that is destroyed drops out after its last layout was written.
class PersistentWidgetRegistry : public QObject
{
    Q_OBJECT
public:
    PersistentWidgetRegistry();
    ~PersistentWidgetRegistry() override;

    /// Nothing for a null widget and for one that is registered.
    void registerWidget(QWidget* widget, const QString& recordName);
    /// Also drops what watches a widget that is gone.
    void unregisterWidget(const QObject* widget);
    /// Writes how the widget looked last and drops it. To be called, once or more, when the widget
    /// tells that it is destroyed.
    void dropDestroyed(const QObject* widget);
    void clear();

    /// Captures the layout of every widget.
    void capture();
    void write();
    /// False, and nothing done, when called while one of the two is at work.
    bool restoreProgramStart();
    bool restoreFactory();
    bool isRestoring() const;

private:
    /// Calls the operation for every widget, also when an application's handler registers or
    /// unregisters widgets meanwhile.
    void forEachWidget(void (PersistentWidget::*operation)());
    bool restore(void (PersistentWidget::*operation)());

    std::vector<std::shared_ptr<PersistentWidget>> m_widgets;
    bool m_restoring = false;
};
