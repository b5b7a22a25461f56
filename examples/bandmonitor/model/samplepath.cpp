// SPDX-License-Identifier: MIT
#include "samplegenerator.h"

namespace bandmonitor {

QString samplePath()
{
    return QStringLiteral(":/bandmonitor/sample.csv");
}

} // namespace bandmonitor
