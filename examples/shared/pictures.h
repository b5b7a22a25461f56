// SPDX-License-Identifier: MIT
// For programs that write pictures of their windows.
#pragma once

#include <QPalette>
#include <QString>
#include <QtGlobal>

namespace pictures {

/// As of a dark desktop.
inline QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2d, 0x2d, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x2a, 0x82, 0xda));
    return palette;
}

/// As long as it lives, drops what the platform without a screen says that it cannot do: pictures
/// do not mind. One at a time.
class QuietPlatform
{
public:
    QuietPlatform() { s_former = qInstallMessageHandler(&dropRemarks); }
    ~QuietPlatform() { qInstallMessageHandler(s_former); }
    Q_DISABLE_COPY_MOVE(QuietPlatform)

private:
    static void dropRemarks(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (!text.startsWith(QStringLiteral("This plugin does not support")))
            s_former(type, context, text);
    }
    static inline QtMessageHandler s_former = nullptr;
};

} // namespace pictures
