// SPDX-License-Identifier: MIT
#include <guibase/colors/colorsetfile_p.h>
#include <guibase/dialogs/modaldialogs.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString fileNameFilter()
{
    return QStringLiteral("*.cst");
}

bool writeInPlace(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    return file.open(QIODevice::ReadWrite) && file.write(bytes) == bytes.size() && file.flush() &&
           (file.size() == bytes.size() || file.resize(bytes.size()));
}

bool replaceFile(const QString& name, const QByteArray& bytes)
{
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return writeInPlace(name, bytes);
    // commit() alone would not tell about bytes that could not be flushed
    if (file.write(bytes) == bytes.size() && file.flush())
        return file.commit();
    file.cancelWriting();
    return false;
}

} // namespace

namespace ColorSetFile {

bool isOpenable(const QString& name)
{
    const QFileInfo info(name);
    if (info.fileName().isEmpty() || info.fileName().startsWith(QStringLiteral("**")) ||
        name.contains(QChar::Null))
        return false;
    return !info.exists() || info.isFile();
}

QString absoluteName(const QString& name)
{
    return isOpenable(name) ? QFileInfo(name).absoluteFilePath() : name;
}

QString storedName(const QString& chosen)
{
    const QString extension = QStringLiteral(".cst");
    const qsizetype nameStart = chosen.lastIndexOf(QLatin1Char('/')) + 1;
    QString name = chosen.mid(nameStart).toLower();
    if (name.isEmpty())
        return chosen;
    if (!name.contains(extension))
        name += extension;
    return chosen.left(nameStart) + name;
}

WriteResult write(const QString& name, const ColorSetCodec::Ids& ids)
{
    if (!isOpenable(name))
        return WriteResult::CannotOpen;
    const bool isNew = !QFileInfo::exists(name);
    if (QFile opened(name); !opened.open(QIODevice::ReadWrite))
        return WriteResult::CannotOpen;
    if (replaceFile(name, ColorSetCodec::encode(ids)))
        return WriteResult::Written;
    if (isNew)
        QFile::remove(name);
    return WriteResult::WriteFailed;
}

std::optional<ColorSetCodec::Ids> read(const QString& name)
{
    QFile file(name);
    if (!isOpenable(name) || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    return ColorSetCodec::read(file);
}

bool ask(QWidget* parent, const QString& title, const QString& text)
{
    return ModalDialogs::show(parent, {QMessageBox::Information, title, text,
                                       QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes}) ==
           QMessageBox::Yes;
}

QString chooseForSaving(QWidget* parent, const QString& title)
{
    return ModalDialogs::askForFile(parent, {QFileDialog::AcceptSave, title,
                                             QCoreApplication::applicationDirPath(),
                                             fileNameFilter(), &storedName});
}

QString chooseForLoading(QWidget* parent, const QString& title)
{
    return ModalDialogs::askForFile(
        parent, {QFileDialog::AcceptOpen, title, QString(), fileNameFilter(), &storedName});
}

} // namespace ColorSetFile
