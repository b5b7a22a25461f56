// SPDX-License-Identifier: MIT
#include "readers.h"

#include <QApplication>

#include <algorithm>
#include <cstring>

namespace Fuzz {

const QList<Reader>& readers()
{
    static const QList<Reader> all = textReaders() + recordReaders() + fileReaders();
    return all;
}

const Reader* findReader(const char* name)
{
    const auto found =
        std::find_if(readers().cbegin(), readers().cend(),
                     [name](const Reader& reader) { return std::strcmp(reader.name, name) == 0; });
    return found == readers().cend() ? nullptr : &*found;
}

void expect(bool condition, const char* text)
{
    if (!condition)
        qFatal("%s", text);
}

void prepare()
{
    if (QCoreApplication::instance() != nullptr)
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments); // to the end of the process
}

} // namespace Fuzz
