// SPDX-License-Identifier: MIT
#include "colorsdialog.h"

#include <guibase/colors/colorset.h>
#include <guibase/colors/editor/colorsctrl.h>
#include <guibase/services/guibase.h>

#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {
constexpr QSize normalSize(620, 680);
constexpr QSize broadFrame(20, 60); // left for a frame, which is not known before it is there
} // namespace

ColorsDialog::ColorsDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("colors"));
    setWindowTitle(tr("Edit colours"));
    setWindowModality(Qt::WindowModal);
    auto* column = new QVBoxLayout(this);
    auto* editor = qobject_cast<ColorsCtrl*>(ColorSet::Instance().GetCtrl(this));
    connect(this, &ColorsDialog::discarded, editor, &ColorsCtrl::slotDiscardChanges);
    editor->layout()->setContentsMargins(0, 0, 0, 0); // in line with the buttons
    column->addWidget(editor, 1);
    editor->setFocus();

    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel, this);
    const QList<QAbstractButton*> all = buttons->buttons();
    for (QAbstractButton* button : all)
        static_cast<QPushButton*>(button)->setAutoDefault(false); // Return opens the picker
    QPushButton* apply = buttons->button(QDialogButtonBox::Apply);
    apply->setEnabled(false);
    connect(editor, &ColorsCtrl::changesPending, apply, &QWidget::setEnabled);
    connect(apply, &QPushButton::clicked, this, &ColorsDialog::applyButtonPressed);
    connect(buttons, &QDialogButtonBox::accepted, this, &ColorsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ColorsDialog::reject);
    column->addWidget(buttons);
    resize(normalSize.boundedTo(screen()->availableGeometry().size() - broadFrame));
}

ColorsDialog::~ColorsDialog() = default;

void ColorsDialog::edit(QWidget* parent)
{
    auto* dialog = new ColorsDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    GuiBase::Instance().RegisterPersistentWidget(dialog, QStringLiteral("colors")); // shows it
}

void ColorsDialog::accept()
{
    const QPointer<ColorsDialog> guard(this); // accepting may ask for a file
    Q_EMIT applyButtonPressed();
    if (guard)
        QDialog::accept();
}

void ColorsDialog::reject()
{
    Q_EMIT discarded();
    QDialog::reject();
}

} // namespace bandmonitor
