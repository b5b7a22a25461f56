// SPDX-License-Identifier: MIT
#include "styleloader_p.h"

#include "tracing.h"

#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStyleFactory>

namespace {

QString styleSheetName(const ICfg& cfg)
{
    return cfg.GetString(QStringLiteral("StyleSheet"), QStringLiteral("skorn.css"));
}

} // namespace

void StyleLoader::applyStyle()
{
    if (QStyle* style = QStyleFactory::create(QStringLiteral("qtdotnet")))
        QApplication::setStyle(style);
}

QString StyleLoader::resolveFile(const QString& fileName, const QString& folder)
{
    if (fileName.isEmpty())
        return {};
    const QFileInfo file(QDir(folder), fileName);
    return file.isFile() ? file.absoluteFilePath() : QString();
}

QString StyleLoader::findStyleSheet(const ICfg* cfg)
{
    const ICfg& administrator = *CfgCenter::GetAdminCfg(SettingsView);
    const ICfg& first = cfg != nullptr ? *cfg : *CfgCenter::GetAppCfg(SettingsView);
    const ICfg& second = cfg != nullptr ? *cfg : administrator;
    const QString applicationFolder = QCoreApplication::applicationDirPath();

    QString path = resolveFile(styleSheetName(first), applicationFolder);
    if (path.isEmpty())
        path = resolveFile(styleSheetName(second), applicationFolder);
    if (path.isEmpty()) {
        path = resolveFile(styleSheetName(second),
                           administrator.GetString(QStringLiteral("SkornDataDir"),
                                                   QStringLiteral("D:/SkornData")));
    }
    return path;
}

void StyleLoader::loadStyleSheet(QApplication& application, const ICfg* cfg)
{
    const QString path = findStyleSheet(cfg);
    if (path.isEmpty())
        return;
    if (!QFile(path).open(QIODevice::ReadOnly)) {
        ErrorHandler::Trace(ErrorHandler::TraceGuiBase, Tracing::module, __LINE__,
                            QStringLiteral("Style sheet '%1' cannot be opened").arg(path));
        return;
    }
    // The toolkit cuts off "file:///" and opens the rest as a path, without decoding it. So the
    // path follows as it is; a proper URL of an absolute Unix path would lose its leading slash.
    application.setStyleSheet(QStringLiteral("file:///") + path);
}
