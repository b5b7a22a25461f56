// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <valueframework/value.h>

#include <QAction>
#include <QObject>
#include <QString>

#include <memory>

namespace ValueWidgetBinding {

/// Keeps a value and a checkable action in step: checked means true. The binding belongs to the
/// action. A change by the user is an undo step where a base path applies to the action's parent
/// (see GuiUndoRecordingHelper). Once the value is gone the action is disabled.
class GUIBASE_EXPORT ActionBinding : public QObject, public IObserver
{
    Q_OBJECT
public:
    /// Makes the action checkable. Neither is owned.
    ActionBinding(Value<bool>& value, QAction& action);
    ~ActionBinding() override;

    /// The text of the undo steps; the action's own at first.
    void setUndoText(const QString& text);

protected:
    void Update(Observable* observable, TChangeCode code) override;

private:
    void toggled(bool checked);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ValueWidgetBinding
