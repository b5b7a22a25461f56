// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Makes or replaces a file, and the folder it is in; false when that fails.
bool writeFile(const QString& name, const QByteArray& bytes);
/// What a file holds; "missing" when it cannot be read.
QByteArray readFile(const QString& name);
/// Announces a message of the information level, which a test has to see.
void expectTrace(const char* pattern);
