// SPDX-License-Identifier: MIT
#include "modaldialogs.h"

#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QRegularExpression>
#include <QTextDocument>

#include <chrono>
#include <future>
#include <memory>
#include <thread>

namespace {

constexpr char sourceModule[] = "controls/guibase/modaldialogs";

bool s_isUnattended = false;

/// Whether there is somebody to answer the question.
bool canAsk(const QString& title, const QString& text)
{
    if (s_isUnattended)
        ErrorHandler::Trace(
            ErrorHandler::TracePlatform, sourceModule, __LINE__,
            QStringLiteral("nobody is there to answer \"%1: %2\"").arg(title, text));
    return !s_isUnattended && qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
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

QString runFileDialog(QWidget* parent, const ModalDialogs::FileQuestion& question,
                      const QString& startAt)
{
    auto* const dialog = new QFileDialog(parent, question.title, startAt, question.filter);
    dialog->setOptions(GuiBase::Instance().UseNativeDialogs());
    dialog->setAcceptMode(question.mode);
    if (question.mode == QFileDialog::AcceptSave)
        dialog->setDefaultSuffix(ModalDialogs::withExtension(QString(), question.filter).mid(1));
    dialog->setFileMode(question.mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                                 : QFileDialog::AnyFile);
    if (QFileInfo(startAt).isFile())
        dialog->selectFile(startAt);
    return run(dialog, [](const QFileDialog& shown, int result) {
        return result == QDialog::Accepted ? shown.selectedFiles().value(0) : QString();
    });
}

QString fileNameFor(const ModalDialogs::FileQuestion& question, const QString& chosen)
{
    if (question.fileName)
        return question.fileName(chosen);
    return question.mode == QFileDialog::AcceptSave
               ? ModalDialogs::withExtension(chosen, question.filter)
               : chosen;
}

bool mayReplace(QWidget* parent, const QString& title, const QString& name)
{
    const QString text = QCoreApplication::translate(
        "ModalDialogs", "%1 already exists. Do you want to replace it?");
    return ModalDialogs::show(
               parent, {QMessageBox::Warning, title, text.arg(QFileInfo(name).fileName()),
                        QMessageBox::Yes | QMessageBox::No, QMessageBox::No}) == QMessageBox::Yes;
}

} // namespace

void ModalDialogs::setUnattended(bool unattended)
{
    s_isUnattended = unattended;
}

bool ModalDialogs::isUnattended()
{
    return s_isUnattended;
}

QMessageBox::StandardButton ModalDialogs::show(QWidget* parent, const Box& box)
{
    if (!canAsk(box.title, box.text))
        return QMessageBox::NoButton;
    auto* const dialog = new QMessageBox(box.icon, box.title, box.text, box.buttons, parent);
    dialog->setTextFormat(Qt::PlainText);
    dialog->setDefaultButton(box.defaultButton);
    if (!box.more.isEmpty())
        dialog->setInformativeText(Qt::convertFromPlainText(box.more));
    return run(dialog, [](const QMessageBox& shown, int) {
        return shown.standardButton(shown.clickedButton());
    });
}

QString ModalDialogs::askForFile(QWidget* parent, const FileQuestion& question)
{
    if (!canAsk(question.title, question.filter))
        return {};
    const QPointer<QWidget> guard(parent);
    const bool isReachableStart = question.startAt.isEmpty() || isReachable(question.startAt);
    QString startAt = isReachableStart ? question.startAt : QDir::homePath();
    while (parent == nullptr || guard) {
        const QString chosen = runFileDialog(guard, question, startAt);
        if (chosen.isEmpty())
            return {};
        // The dialog itself asks about the name that was chosen.
        const QString name = fileNameFor(question, chosen);
        if (question.mode == QFileDialog::AcceptOpen || name == chosen ||
            !QFileInfo::exists(name) || mayReplace(guard, question.title, name))
            return name;
        startAt = name;
    }
    return {};
}

QString ModalDialogs::withExtension(const QString& name, const QString& filter)
{
    if (name.lastIndexOf(u'.') > name.lastIndexOf(u'/'))
        return name;
    static const QRegularExpression extension(QStringLiteral("(\\.(\\w+))"),
                                              QRegularExpression::UseUnicodePropertiesOption);
    return name + extension.match(filter).captured(1);
}

QColor ModalDialogs::askForColor(QWidget* parent, const QColor& initial, const QString& title)
{
    if (!canAsk(title, {}))
        return {};
    auto* const dialog = new QColorDialog(initial, parent);
    dialog->setWindowTitle(title);
    const bool isNative =
        !GuiBase::Instance().UseNativeDialogs().testFlag(QFileDialog::DontUseNativeDialog);
    dialog->setOption(QColorDialog::DontUseNativeDialog, !isNative);
    return run(dialog, [](const QColorDialog& shown, int result) {
        return result == QDialog::Accepted ? shown.selectedColor() : QColor();
    });
}
