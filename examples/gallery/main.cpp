// SPDX-License-Identifier: MIT
// Shows every widget of the libraries in every state: `gallery`. Without a display
// `gallery --shots FOLDER` writes a picture of each page, light and dark.
#include "gallerywindow.h"

#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

QtMessageHandler formerHandler = nullptr;

/// The platform without a screen says of many things that it cannot do them; pictures do not mind.
void dropPlatformRemarks(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QStringLiteral("This plugin does not support")))
        formerHandler(type, context, text);
}

int writePictures(const QString& folder)
{
    const QTemporaryDir settings; // those of the user stay out of the pictures
    CfgCenter::SetConfigDir(settings.path());
    gallery::GalleryWindow window;
    GuiBase::Instance().SetMainWidget(&window);
    window.show();
    const QString failure = window.writePictures(folder);
    if (failure.isEmpty())
        return 0;
    std::fprintf(stderr, "gallery: %s cannot be written\n", qPrintable(failure));
    return 1;
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
    if (argc > 1 && !takesPictures) {
        std::fputs("gallery [--shots FOLDER]\n", stderr);
        return 2;
    }
    if (takesPictures) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        formerHandler = qInstallMessageHandler(&dropPlatformRemarks);
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("gallery"));
    TrovApplication startUp;
    if (takesPictures)
        return writePictures(QString::fromLocal8Bit(argv[2]));
    gallery::GalleryWindow window;
    GuiBase::Instance().SetMainWidget(&window);
    window.show();
    return QApplication::exec();
}
