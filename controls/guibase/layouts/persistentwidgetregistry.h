// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/recordstore.h>

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class PersistentWidget;
class QWidget;
class ScreenWatch;

/// The widgets whose layout is kept from run to run, in the order of their registration.
///
/// Widgets are not owned. One that is destroyed has its last layout written; its entry goes with
/// the next registration or unregistration. While the event loop runs, layouts are written a while
/// after they have changed.
class PersistentWidgetRegistry : public QObject
{
    Q_OBJECT
public:
    PersistentWidgetRegistry();
    ~PersistentWidgetRegistry() override;

    /// Nothing for a null widget and for one that is registered.
    void registerWidget(QWidget* widget, const QString& recordName);
    /// What has changed is written. Also drops what watches a widget that is gone.
    void unregisterWidget(const QObject* widget);
    void clear();

    void write();
    void setMode(quint32 mode);
    void storeFactory(quint32 mode);
    bool hasLayout(quint32 mode) const;
    /// False, and nothing done, when called while one of the two is at work.
    bool restoreProgramStart();
    bool restoreFactory();
    bool isRestoring() const;

    /// Sees the application's request to end before the windows close.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Time from a change to its writing in milliseconds; negative switches writing off.
    void setWriteDelay(int milliseconds);

private:
    /// Calls the operation for every widget, also when an application's handler registers or
    /// unregisters widgets meanwhile.
    void forEachWidget(const std::function<void(PersistentWidget&)>& operation);
    bool restore(void (PersistentWidget::*operation)());
    void writeChanges();
    void beginEnd();
    void awaitEnd(int loopLevel);

    std::vector<std::shared_ptr<PersistentWidget>> m_widgets;
    std::unique_ptr<ScreenWatch> m_screens; ///< While there is an application object.
    bool m_isRestoring = false;
    bool m_awaitsEnd = false;
    RecordStore m_store{SettingsView, QString(), [this] { writeChanges(); }};
};
