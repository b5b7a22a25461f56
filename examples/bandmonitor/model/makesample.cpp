// SPDX-License-Identifier: MIT
// Writes the sample recording that is built into the application: makesample FILE
#include "samplegenerator.h"

#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: makesample FILE\n", stderr);
        return 2;
    }
    QFile file(QFile::decodeName(argv[1]));
    const QByteArray text = bandmonitor::SampleGenerator().remaining();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        std::fprintf(stderr, "%s: %s\n", argv[1], qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
