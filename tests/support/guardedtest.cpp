// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include "support/testguard.h"

GuardedTest::GuardedTest() = default;
GuardedTest::~GuardedTest() = default;

QString GuardedTest::configDir() const
{
    return m_guard->configDir();
}

QString GuardedTest::folder() const
{
    return m_guard->folder();
}

QString GuardedTest::filePath(const QString& name) const
{
    return folder() + u'/' + name;
}

void GuardedTest::init()
{
    m_guard = std::make_unique<TestGuard>();
    prepare();
}

void GuardedTest::cleanup()
{
    tidy();
    const QString left = m_guard->finish();
    m_guard.reset();
    QCOMPARE(left, QString());
}
