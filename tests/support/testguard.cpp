// SPDX-License-Identifier: MIT
#include "support/testguard.h"

#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

TestGuard::TestGuard()
{
    // The offscreen platform says the first of dialogs with a fixed size, of floating docks and of
    // pop-ups, the X11 platform the second of a window that is shown, hidden and shown again before
    // the server has answered the first.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(
        "^(?!This plugin does not support (propagateSizeHints\\(\\)|raise\\(\\)|setParent!"
        "|setting window opacity)"
        "|internal error: +void QXcbWindow::setNetWmStateOnUnmappedWindow)")));
    QLocale::setDefault(QLocale::c());
    CfgCenter::SetAutoStoreDelay(-1);
    CfgCenter::SetConfigDir(m_folder.filePath(QStringLiteral("config")));
    CfgCenter::SetAdminConfigDir(m_folder.filePath(QStringLiteral("admin")));
}

TestGuard::~TestGuard()
{
    finish();
    // Left for the next guard, it would make the folder that is removed now once more.
    CfgCenter::Store();
    QLocale::setDefault(QLocale::c());
}

QString TestGuard::configDir() const
{
    return m_folder.filePath(QStringLiteral("config"));
}

QString TestGuard::finish()
{
    QStringList left;
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            // Closed pop-ups and combo lists are the toolkit's own top-level widgets.
            if (!window->isVisible() || window->parentWidget() != nullptr)
                continue;
            left << QStringLiteral("%1 \"%2\"")
                        .arg(QString::fromLatin1(window->metaObject()->className()),
                             window->objectName());
            delete window;
        }
    }
    return left.join(QStringLiteral(", "));
}
