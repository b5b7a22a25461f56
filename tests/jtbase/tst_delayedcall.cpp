// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/delayedcall.h>

#include <QTimer>

class tst_DelayedCall : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void requestsAreGathered()
    {
        int calls = 0;
        DelayedCall call([&calls] { ++calls; });
        call.setDelay(-1);
        call.request();
        QVERIFY(!call.isPending());
        call.setDelay(1); // Also for the one that waits.
        call.request();
        QTRY_COMPARE(calls, 1);
        QVERIFY(!call.isPending());
        call.request();
        call.cancel();
        call.setDelay(60'000);
        QVERIFY(!call.isPending());
        call.request();
        call.requestIn(0);
        QTRY_COMPARE(calls, 2);
    }
    /// Endless requests do not put the call off for ever.
    void longestDelay()
    {
        int calls = 0;
        DelayedCall call([&calls] { ++calls; });
        call.setDelay(20);
        QTimer noise;
        noise.callOnTimeout(this, [&call] { call.request(); });
        noise.start(1);
        QTRY_VERIFY(calls > 1);
    }
    void functionMayDestroyIt()
    {
        std::unique_ptr<DelayedCall> call;
        int calls = 0;
        call = std::make_unique<DelayedCall>([&, kept = QString(100, QLatin1Char('x'))] {
            call.reset();
            calls += static_cast<int>(kept.size());
        });
        call->requestIn(0);
        QTRY_COMPARE(calls, 100);
    }
};

QTEST_GUILESS_MAIN(tst_DelayedCall)
#include "tst_delayedcall.moc"
