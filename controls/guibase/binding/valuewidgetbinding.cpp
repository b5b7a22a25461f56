// SPDX-License-Identifier: MIT
#include "valuewidgetbinding.h"

#include "inputmark_p.h"

#include <guibase/inputs/controllers/abstractcontroller.h>
#include <guibase/undo/guiundorecordinghelper.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/undoburst.h>
#include <valueframework/value.h>
#include <valueframework/valueselection.h>

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QEvent>
#include <QTimer>
#include <QTimerEvent>
#include <QWidget>

#include <optional>
#include <utility>

namespace ValueWidgetBinding {

namespace {

Observable* observableOf(ValueBase& value)
{
    auto* numeric = dynamic_cast<IValueNumeric*>(&value);
    return numeric != nullptr ? numeric->GetObservable() : &value;
}

bool isDragged(const QWidget& widget)
{
    if (const auto* slider = qobject_cast<const QAbstractSlider*>(&widget))
        return slider->isSliderDown();
    const auto* controller = qobject_cast<const AbstractController*>(&widget);
    return controller != nullptr && controller->isSliderDown();
}

} // namespace

struct ValueWidgetBinding::Private
{
    Private(ValueBase& boundValue, QWidget& boundWidget)
        : value(&boundValue)
        , observable(observableOf(boundValue))
        , widget(&boundWidget)
    {}

    ValueBase* value;
    Observable* observable; ///< Only compared once the value is gone.
    QPointer<QWidget> widget;
    WidgetUpdateTransaction* transaction = nullptr; ///< The innermost that is open.
    int delay = -1;
    int timerId = 0;
    std::function<void()> pendingUpdate;
    std::optional<PendingWrite> heldBack; ///< While the timer runs.
    bool isLeaving = false;               ///< The widget handles an event that ends the input.
    UndoBurst burst;
    QString undoText;
    QPointer<InputMark> mark;
};

WidgetUpdateTransaction::WidgetUpdateTransaction(ValueWidgetBinding& binding)
    : m_binding(&binding)
    , m_outer(std::exchange(binding.d->transaction, this))
    // What the widget itself was told, not what its parents have it do for the moment.
    , m_hadUpdates(binding.d->widget &&
                   !binding.d->widget->testAttribute(Qt::WA_ForceUpdatesDisabled))
{
    if (m_hadUpdates)
        binding.d->widget->setUpdatesEnabled(false);
}

WidgetUpdateTransaction::~WidgetUpdateTransaction()
{
    QWidget* widget = m_binding != nullptr ? m_binding->d->widget.data() : m_orphan.data();
    if (widget != nullptr)
        widget->setUpdatesEnabled(m_hadUpdates);
    if (m_binding != nullptr)
        m_binding->d->transaction = m_outer;
}

void WidgetUpdateTransaction::bindingDies(const QPointer<QWidget>& widget)
{
    m_binding = nullptr;
    m_orphan = widget;
    if (m_outer != nullptr)
        m_outer->bindingDies(widget);
}

ValueWidgetBinding::ValueWidgetBinding(ValueBase& value, QWidget& widget, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(value, widget))
{
    setObjectName(QStringLiteral("{%1}->{%2}").arg(value.GetPathName(), widget.objectName()));
    connect(&widget, &QObject::destroyed, this, &ValueWidgetBinding::widgetDestroyed);
    if (parent != nullptr && parent != &widget)
        connect(parent, &QObject::destroyed, this, &QObject::deleteLater);
    if (auto* slider = qobject_cast<QAbstractSlider*>(&widget))
        connect(slider, &QAbstractSlider::sliderPressed, this, [this] { d->burst.end(); });
    else if (auto* controller = qobject_cast<AbstractController*>(&widget))
        connect(controller, &AbstractController::sliderPressed, this, [this] { d->burst.end(); });
    d->observable->Attach(this);
}

ValueWidgetBinding::~ValueWidgetBinding()
{
    disconnect();
    if (d->value != nullptr)
        d->observable->Detach(this);
    if (d->transaction != nullptr)
        d->transaction->bindingDies(d->widget);
    delete d->mark;
}

int ValueWidgetBinding::delay() const
{
    return d->delay;
}

void ValueWidgetBinding::setDelay(int milliseconds)
{
    if ((d->delay >= 0) != (milliseconds >= 0))
        watchLeaving(milliseconds >= 0);
    d->delay = milliseconds;
}

int ValueWidgetBinding::burstTime() const
{
    return d->burst.longestPause();
}

void ValueWidgetBinding::setBurstTime(int milliseconds)
{
    d->burst.setLongestPause(milliseconds);
}

QString ValueWidgetBinding::undoText() const
{
    return d->undoText;
}

void ValueWidgetBinding::setUndoText(const QString& text)
{
    d->undoText = text;
}

QWidget& ValueWidgetBinding::GetWidget() const
{
    return *d->widget;
}

bool ValueWidgetBinding::isWidgetAlive() const
{
    return d->widget && d->widget->metaObject()->inherits(&widgetClass());
}

const QMetaObject& ValueWidgetBinding::widgetClass() const
{
    return QWidget::staticMetaObject;
}

ValueBase* ValueWidgetBinding::boundValue() const
{
    return d->value;
}

bool ValueWidgetBinding::hasPendingUpdate() const
{
    return d->pendingUpdate != nullptr;
}

bool ValueWidgetBinding::isUpdatingWidget() const
{
    return d->transaction != nullptr;
}

WidgetUpdateTransaction ValueWidgetBinding::openWidgetUpdateTransaction()
{
    return WidgetUpdateTransaction(*this);
}

void ValueWidgetBinding::Init()
{
    const QPointer<QObject> guard(this);
    const bool isSelection = dynamic_cast<ValueSelection*>(d->value) != nullptr;
    for (const TChangeCode code :
         {ChangeCode::State, ChangeCode::Range, ChangeCode::Items, ChangeCode::CurrentValue}) {
        if (guard && (isSelection || code != ChangeCode::Items))
            Update(d->observable, code);
    }
}

void ValueWidgetBinding::Update(Observable* observable, TChangeCode code)
{
    if (d->value == nullptr || observable != d->observable)
        return;
    if (code == ChangeCode::State && !adoptState())
        return;
    if (isWidgetAlive())
        UpdateWidget(code);
}

/// False when the binding has nothing to do any more.
bool ValueWidgetBinding::adoptState()
{
    const Observable::State state = d->observable->GetState();
    if (state == Observable::Gone) {
        d->observable->Detach(this);
        d->value = nullptr;
        forgetPending();
    }
    const QPointer<QObject> guard(this);
    if (d->widget)
        d->widget->setEnabled(state == Observable::Enabled);
    return guard && d->value != nullptr;
}

void ValueWidgetBinding::scheduleUpdate(const std::function<void()>& update)
{
    if (isUpdatingWidget() || d->value == nullptr)
        return;
    d->pendingUpdate = update;
    if (d->delay < 0 || d->isLeaving) {
        writePending();
    } else if (d->timerId == 0) {
        d->timerId = startTimer(d->delay);
        d->heldBack.emplace([this] { writePending(); });
    }
}

void ValueWidgetBinding::writePending()
{
    const std::function<void()> update = std::exchange(d->pendingUpdate, nullptr);
    forgetPending();
    if (update == nullptr || d->value == nullptr)
        return;
    const QPointer<ValueWidgetBinding> guard(this);
    if (d->widget) {
        const GuiUndoRecordingHelper recording(*d->widget, d->undoText,
                                               d->burst.next(isDragged(*d->widget)));
        update();
    } else {
        update();
    }
    if (guard && d->value != nullptr && isWidgetAlive())
        afterWrite();
}

void ValueWidgetBinding::forgetPending()
{
    d->pendingUpdate = nullptr;
    d->heldBack.reset();
    if (d->timerId != 0)
        killTimer(std::exchange(d->timerId, 0));
}

void ValueWidgetBinding::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == d->timerId)
        writePending();
    else
        QObject::timerEvent(event);
}

void ValueWidgetBinding::watchLeaving(bool watch)
{
    if (!d->widget)
        return;
    if (watch)
        d->widget->installEventFilter(this);
    else
        d->widget->removeEventFilter(this);
}

bool ValueWidgetBinding::eventFilter(QObject* watched, QEvent* event)
{
    const bool endsInput = event->type() == QEvent::FocusOut || event->type() == QEvent::Hide ||
                           event->type() == QEvent::Close;
    if (!endsInput || watched != d->widget)
        return false;
    // The widget may take the text that was typed as its value when it handles the event.
    d->isLeaving = true;
    QTimer::singleShot(0, this, [this] { d->isLeaving = false; });
    const QPointer<QObject> survivor(watched);
    writePending();
    return survivor.isNull();
}

void ValueWidgetBinding::widgetDestroyed()
{
    const QPointer<QObject> guard(this);
    writePending();
    if (guard)
        deleteLater();
}

void ValueWidgetBinding::setUnshownValue(const QString& text)
{
    if (text.isEmpty()) {
        delete d->mark;
        return;
    }
    if (!d->mark)
        d->mark = new InputMark(*d->widget);
    d->mark->showValue(text);
}

void ValueWidgetBinding::tellOnlyCompleteInput()
{
    if (auto* box = qobject_cast<QAbstractSpinBox*>(d->widget))
        box->setKeyboardTracking(false);
}

void ValueWidgetBinding::showRefusal(const QString& reason)
{
    if (!d->mark)
        d->mark = new InputMark(*d->widget);
    d->mark->showRefusal(reason);
}

bool ValueWidgetBinding::isMarked() const
{
    return !d->mark.isNull();
}

} // namespace ValueWidgetBinding
