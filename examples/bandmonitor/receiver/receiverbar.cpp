// SPDX-License-Identifier: MIT
#include "receiver/receiverbar.h"

#include "settings/boundform.h"
#include "settings/sessionvalues.h"

#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/undo/undoactions.h>

#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QStyle>

namespace bandmonitor {

ReceiverBar::ReceiverBar(const SessionValues& values, const UndoActions& undo, QWidget* parent)
    : QToolBar(tr("Re&ceiver bar"), parent)
{
    setObjectName(QStringLiteral("receiverBar"));
    // No higher than its fields, so that the panels keep their room.
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize({icon, icon});
    layout()->setContentsMargins(0, 0, 0, 0);
    addAction(undo.undoAction());
    addAction(undo.redoAction());
    addSeparator();
    struct Row
    {
        const ValueBase& value;
        QString label;
    };
    const Row rows[] = {{values.centre, tr("Centre frequency")}, {values.span, tr("Span")}};
    for (const Row& row : rows) {
        auto* label = new QLabel(QStringLiteral(" %1 ").arg(row.label), this);
        auto* input = new SpinBoxes::FrequencySpinBox(this);
        input->setObjectName(row.value.GetName());
        input->setAccessibleName(row.label);
        label->setBuddy(input);
        addWidget(label);
        addWidget(input);
    }
    bindForm(*this, values.receiverPath());
}

ReceiverBar::~ReceiverBar() = default;

} // namespace bandmonitor
