// SPDX-License-Identifier: MIT
#include "textfile.h"

#include <QSaveFile>

namespace bandmonitor {

std::optional<QString> writeTextFile(const QString& path, const QByteArray& text,
                                     QIODevice::OpenMode lineEnds)
{
    QSaveFile file(path);
    // The commit alone does not tell of a full disk.
    if (file.open(QIODevice::WriteOnly | lineEnds) && file.write(text) == text.size() &&
        file.flush() && file.commit())
        return std::nullopt;
    const QString problem = file.errorString();
    file.cancelWriting();
    return problem;
}

} // namespace bandmonitor
