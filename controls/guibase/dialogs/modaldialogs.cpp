// SPDX-License-Identifier: MIT
#include "modaldialogs.h"

#include <guibase/services/guibase.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <chrono>
#include <future>
#include <memory>
#include <thread>

namespace {

bool hasWidgets()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

/// Whether the file system answers for the path. A server that is gone would not, for minutes, and
/// the dialog would hang with it: nobody waits for the thread that asks.
bool isReachable(const QString& path)
{
    constexpr std::chrono::milliseconds patience(500);
    const auto answer = std::make_shared<std::promise<void>>();
    const std::future<void> answered = answer->get_future();
    std::thread([answer, path] {
        QFileInfo::exists(path);
        answer->set_value();
    }).detach();
    return answered.wait_for(patience) == std::future_status::ready;
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
    const QString startAt = question.startAt.isEmpty() || isReachable(question.startAt)
                                ? question.startAt
                                : QDir::homePath();
    auto* const dialog = new QFileDialog(parent, question.title, startAt, question.filter);
    dialog->setOptions(GuiBase::Instance().UseNativeDialogs());
    dialog->setAcceptMode(question.mode);
    dialog->setDefaultSuffix(question.defaultSuffix);
    dialog->setFileMode(question.mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                                 : QFileDialog::AnyFile);
    if (QFileInfo(startAt).isFile())
        dialog->selectFile(startAt);
    return run(dialog, [](const QFileDialog& shown, int result) {
        return result == QDialog::Accepted ? shown.selectedFiles().value(0) : QString();
    });
}
