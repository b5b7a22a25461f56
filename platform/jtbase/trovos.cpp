// SPDX-License-Identifier: MIT
#include "trovos.h"

#include "immortal_p.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

namespace {

std::unique_ptr<TrovOS>& currentOs()
{
    static Immortal<std::unique_ptr<TrovOS>> os(std::make_unique<TrovOS>());
    return os.object;
}

} // namespace

TrovOS::~TrovOS() = default;

TrovOS* TrovOS::Get()
{
    return currentOs().get();
}

void TrovOS::Set(std::unique_ptr<TrovOS> os)
{
    currentOs() = os ? std::move(os) : std::make_unique<TrovOS>();
}

int TrovOS::OpenFile(const QString& fileName)
{
    const QFileInfo file(fileName);
    if (!file.isFile())
        return fileNotFound;
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr)
        return noAssociation;
    const bool started = QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
    return started ? firstSuccessCode : noAssociation;
}
