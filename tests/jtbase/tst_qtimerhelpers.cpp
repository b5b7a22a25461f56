// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/qtimerhelpers.h>

#include <QEventLoop>
#include <QPointer>
#include <QTimer>

using QTimerHelpers::singleShot;

class tst_QTimerHelpers : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void cancelledCallsDoNotCome()
    {
        int calls = 0;
        const auto count = [&calls] { ++calls; };
        auto context = std::make_unique<QObject>();
        singleShot(0, context.get(), count);
        context.reset();
        delete singleShot(0, this, count);
        const std::unique_ptr<QTimer> stopped(singleShot(0, this, count));
        stopped->stop();
        QVERIFY(singleShot(0, nullptr, count) == nullptr);
        QVERIFY(singleShot(0, this, {}) == nullptr);
        const QPointer<QTimer> later = singleShot(1, this, [] {});
        QTRY_VERIFY(later.isNull());
        QCOMPARE(calls, 0);
    }
    void stepMayDeleteItsContext()
    {
        QPointer<QObject> context = new QObject;
        QString text;
        singleShot(0, context, [&context, &text, kept = QString(100, QLatin1Char('x'))] {
            delete context;
            text = kept; // what the step holds must still be there
        });
        QTRY_COMPARE(text.size(), 100);
        QVERIFY(context.isNull());
    }
    void stepMayRunAnEventLoop()
    {
        int calls = 0;
        singleShot(-5, this, [this, &calls] {
            ++calls;
            QEventLoop loop;
            singleShot(1, this, [&loop] { loop.quit(); });
            loop.exec();
        });
        QCOMPARE(calls, 0);
        QTRY_VERIFY(findChildren<QTimer*>().isEmpty());
        QCOMPARE(calls, 1);
    }
};

QTEST_GUILESS_MAIN(tst_QTimerHelpers)
#include "tst_qtimerhelpers.moc"
