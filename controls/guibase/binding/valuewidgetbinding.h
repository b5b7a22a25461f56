// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <valueframework/observable.h>

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class QWidget;
class ValueBase;

namespace ValueWidgetBinding {

class ValueWidgetBinding;

/// While it is open, what the widget tells is not taken for input, and the widget does not repaint.
/// It may outlive the binding and the widget. Transactions may nest.
class GUIBASE_EXPORT WidgetUpdateTransaction
{
public:
    ~WidgetUpdateTransaction();
    WidgetUpdateTransaction(const WidgetUpdateTransaction&) = delete;
    WidgetUpdateTransaction& operator=(const WidgetUpdateTransaction&) = delete;

    /// False once the binding is gone.
    bool isBindingAlive() const { return m_binding != nullptr; }

private:
    friend class ValueWidgetBinding;
    explicit WidgetUpdateTransaction(ValueWidgetBinding& binding);

    void bindingDies(const QPointer<QWidget>& widget);

    // Guarded pointers would be a good part of what it costs to show a value.
    ValueWidgetBinding* m_binding;
    WidgetUpdateTransaction* m_outer; ///< Of the same binding.
    QPointer<QWidget> m_orphan;       ///< The widget once the binding is gone.
    bool m_hadUpdates;
};

/// Keeps a value and a widget in step, until the widget or the parent is destroyed, or the value is
/// gone; the widget is then disabled, and the binding does nothing any more. A change of the value
/// is shown at once and never written back. An input is written at once or after a delay, as an
/// undo step where an undo base path applies to the widget (see GuiUndoRecordingHelper).
class GUIBASE_EXPORT ValueWidgetBinding : public QObject, public IObserver
{
    Q_OBJECT
    /// See setDelay().
    Q_PROPERTY(int delay READ delay WRITE setDelay)
    /// See setBurstTime().
    Q_PROPERTY(int burstTime READ burstTime WRITE setBurstTime)
    /// See setUndoText().
    Q_PROPERTY(QString undoText READ undoText WRITE setUndoText)
public:
    /// Writes nothing.
    ~ValueWidgetBinding() override;

    /// In milliseconds; negative, as at first, writes at once. An input is written earlier when the
    /// user leaves the widget, the widget is hidden or destroyed, values are stored, or the
    /// application ends.
    int delay() const;
    void setDelay(int milliseconds);
    /// Inputs with no more than this time in between, and those of one drag, are one undo step. In
    /// milliseconds, 1000 at first; 0 makes every input but those of a drag a step of its own.
    int burstTime() const;
    void setBurstTime(int milliseconds);
    /// The text of the undo steps; empty, as at first, for the helper's own.
    QString undoText() const;
    void setUndoText(const QString& text);

    /// Writes now what waits for the end of the delay.
    void writePending();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// Neither is owned. The binding is a child of the parent, which may be null.
    ValueWidgetBinding(ValueBase& value, QWidget& widget, QObject* parent);

    /// Only while isWidgetAlive().
    QWidget& GetWidget() const;
    /// False, too, while the widget is in its destructor and is no longer of its class.
    bool isWidgetAlive() const;
    /// The class that the widget must be of.
    virtual const QMetaObject& widgetClass() const;
    /// Null once the value is gone.
    ValueBase* boundValue() const;
    /// To be called when the derived object is complete: shows state, range and value.
    void Init();
    WidgetUpdateTransaction openWidgetUpdateTransaction();
    /// Takes the write of an input to the value, in place of one that still waits.
    void scheduleUpdate(const std::function<void()>& update);
    bool hasPendingUpdate() const;
    bool isUpdatingWidget() const;
    /// Tells the user that the widget cannot show its value, which has this text; an empty one
    /// takes that back, and a refusal.
    void setUnshownValue(const QString& text);
    /// Has a spin box tell a number when it is complete, instead of at every key.
    void tellOnlyCompleteInput();
    /// Tells the user why an input was not taken.
    void showRefusal(const QString& reason);
    /// Whether the widget is marked with an unshown value or a refusal.
    bool isMarked() const;

    void Update(Observable* observable, TChangeCode code) override;
    void timerEvent(QTimerEvent* event) override;

    /// Shows what the code (ChangeCode) stands for. Called only with value and widget alive.
    virtual void UpdateWidget(TChangeCode code) = 0;
    /// The write has run; the value may not have become what was entered.
    virtual void afterWrite() = 0;

private:
    friend class WidgetUpdateTransaction;

    bool adoptState();
    void watchLeaving(bool watch);
    void forgetPending();
    void widgetDestroyed();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ValueWidgetBinding
