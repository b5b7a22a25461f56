// SPDX-License-Identifier: MIT
// Shows every widget of the libraries in every state: `gallery`. Without a display
// `gallery --shots FOLDER` writes a picture of each page, light and dark;
// `gallery --late-colors FOLDER` names the pages that keep colours of the other palette when it
// changes, writes pictures of them, and fails if there is one.
#include "gallerywindow.h"
#include "pictures.h"

#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

namespace {

int writePictures(const QString& folder)
{
    gallery::GalleryWindow window;
    GuiBase::Instance().SetMainWidget(&window);
    window.show();
    const QString failure = window.writePictures(folder);
    if (failure.isEmpty())
        return 0;
    std::fprintf(stderr, "gallery: %s cannot be written\n", qPrintable(failure));
    return 1;
}

int nameLateColors(const QString& folder)
{
    GuiBase::Instance().SetApplication(qApp);
    const QStringList late = gallery::GalleryWindow::lateColors(folder);
    for (const QString& page : late)
        std::fprintf(stderr, "gallery: %s keeps colours\n", qPrintable(page));
    return late.isEmpty() ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    const QByteArray option(argc > 1 ? argv[1] : "");
    if (option == "--pages") {
        std::printf("%d", static_cast<int>(gallery::GalleryWindow::pages().size()));
        return 0;
    }
    const bool takesPictures = option == "--shots" && argc == 3;
    const bool isColorTest = option == "--late-colors" && argc == 3;
    const bool isUnseen = takesPictures || isColorTest;
    std::optional<pictures::QuietPlatform> quiet;
    std::optional<QTemporaryDir> settings; // those of the user stay out of the pictures
    if (isUnseen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        quiet.emplace();
        settings.emplace();
        CfgCenter::SetConfigDir(settings->path());
    }
    QApplication application(argc, argv); // takes the toolkit's own options out
    if (argc > 1 && !isUnseen) {
        std::fputs("gallery [--shots FOLDER | --late-colors FOLDER]\n", stderr);
        return 2;
    }
    QApplication::setApplicationName(QStringLiteral("gallery"));
    TrovApplication startUp;
    if (takesPictures)
        return writePictures(QString::fromLocal8Bit(argv[2]));
    if (isColorTest)
        return nameLateColors(QString::fromLocal8Bit(argv[2]));
    gallery::GalleryWindow window;
    GuiBase::Instance().SetMainWidget(&window);
    window.show();
    return QApplication::exec();
}
