// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class ICfg;
class QApplication;

/// Finds and loads the widget style and the style sheet of the application.
namespace StyleLoader {

/// Applies the family's own style; without its plug-in the style stays as it is.
void applyStyle();

/// The absolute path of the file, taken relative to the folder unless it is absolute; empty when
/// there is no such file, or it is a folder.
QString resolveFile(const QString& fileName, const QString& folder);

/// The style sheet that the configurations name; empty without one. A null `cfg` stands for the
/// application's configuration, then the administrator's.
QString findStyleSheet(const ICfg* cfg);

/// Applies the style sheet that findStyleSheet() finds. Without one, or when it cannot be opened,
/// the sheet of the application stays as it is.
void loadStyleSheet(QApplication& application, const ICfg* cfg);

} // namespace StyleLoader
