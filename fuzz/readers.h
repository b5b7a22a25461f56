// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace Fuzz {

/// A reader of something that comes from outside.
struct Reader
{
    const char* name; ///< Also of its folder in corpus/.
    /// Whether the bytes were read as what the reader reads. Stops the program when what was read
    /// cannot be right, as when it does not survive being written and read again.
    bool (*read)(const QByteArray& bytes);
};

const QList<Reader>& readers();
/// Null for a name that no reader has.
const Reader* findReader(const char* name);

/// Stops the program, with the text, unless the condition holds.
void expect(bool condition, const char* text);

/// To be called once, before the first reading: readers of widgets need an application.
void prepare();

QList<Reader> textReaders();
QList<Reader> recordReaders();
QList<Reader> fileReaders();

} // namespace Fuzz
