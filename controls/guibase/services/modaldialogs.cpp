// SPDX-License-Identifier: MIT
#include "modaldialogs_p.h"

#include "guibase.h"

#include <QApplication>
#include <QFileInfo>
#include <QPointer>

#include <memory>

namespace {

bool hasWidgets()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

/// Runs the dialog, which may die meanwhile, takes the answer, and deletes it.
template <typename Dialog, typename Answer>
auto run(Dialog* dialog, Answer answer) -> decltype(answer(*dialog, 0))
{
    const QPointer<Dialog> guard(dialog);
    const int result = dialog->exec();
    if (!guard)
        return {};
    const std::unique_ptr<Dialog> owner(dialog);
    return answer(*dialog, result);
}

} // namespace

QMessageBox::StandardButton ModalDialogs::show(QWidget* parent, const Box& box)
{
    if (!hasWidgets())
        return QMessageBox::NoButton;
    auto* const dialog = new QMessageBox(box.icon, box.title, box.text, box.buttons, parent);
    dialog->setTextFormat(Qt::PlainText);
    dialog->setDefaultButton(box.defaultButton);
    return run(dialog, [](const QMessageBox& shown, int) {
        return shown.standardButton(shown.clickedButton());
    });
}

QString ModalDialogs::askForFile(QWidget* parent, const FileQuestion& question)
{
    if (!hasWidgets())
        return {};
    auto* const dialog = new QFileDialog(parent, question.title, question.startAt, question.filter);
    dialog->setOptions(GuiBase::Instance().UseNativeDialogs());
    dialog->setAcceptMode(question.mode);
    dialog->setDefaultSuffix(question.defaultSuffix);
    dialog->setFileMode(question.mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                                 : QFileDialog::AnyFile);
    if (QFileInfo(question.startAt).isFile())
        dialog->selectFile(question.startAt);
    return run(dialog, [](const QFileDialog& shown, int result) {
        return result == QDialog::Accepted ? shown.selectedFiles().value(0) : QString();
    });
}
