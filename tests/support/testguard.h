// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

/// Gives one test function a world of its own: an empty configuration folder, the C locale, and a
/// log in which every warning that QTest::ignoreMessage() does not announce fails the test.
/// Make it first in init(), delete it in cleanup(); finish() tells what the test left behind.
class TestGuard
{
public:
    TestGuard();
    ~TestGuard();
    TestGuard(const TestGuard&) = delete;
    TestGuard& operator=(const TestGuard&) = delete;

    /// A folder of its own, in which the configuration has its folders.
    QString folder() const { return m_folder.path(); }
    QString configDir() const;
    /// Closes and deletes the windows that the test left; names them, or is empty without any.
    QString finish();

private:
    QTemporaryDir m_folder;
};
