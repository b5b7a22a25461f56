// SPDX-License-Identifier: MIT
#pragma once

#include "support/testrows.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

class TestGuard;

/// The base of test classes: each test function, and each row of one, runs within a TestGuard of
/// its own, and fails when it leaves a window open. A class that needs more around its functions
/// overrides prepare() and tidy() instead of having init() and cleanup(). Its header brings what
/// every test needs: QTest, QSignalSpy and TestRows.
class GuardedTest : public QObject
{
    Q_OBJECT
public:
    GuardedTest();
    ~GuardedTest() override;

protected:
    /// Runs before each test function, within its guard.
    virtual void prepare() {}
    /// Runs behind each test function, within its guard.
    virtual void tidy() {}
    QString configDir() const;
    /// A folder for this test function alone.
    QString folder() const;
    /// The file, or the folder, with this name in it.
    QString filePath(const QString& name) const;

private Q_SLOTS:
    void init();
    void cleanup();

private:
    std::unique_ptr<TestGuard> m_guard;
};
