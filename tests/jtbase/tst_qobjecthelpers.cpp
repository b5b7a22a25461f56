// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <jtbase/qobjecthelpers.h>

#include <QCoreApplication>
#include <QPointer>

using QObjectHelpers::EventFilter;
using QObjectHelpers::SignalHandler;

namespace {

class Receiver : public QObject
{
public:
    using QObject::QObject;
    int received = 0;

protected:
    void customEvent(QEvent*) override { ++received; }
};

void send(QObject* receiver)
{
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(receiver, &event);
}

} // namespace

class tst_QObjectHelpers : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void filterConsumesOrPasses()
    {
        Receiver receiver;
        bool consume = true;
        auto* filter = new EventFilter(&receiver, [&](QObject* watched, QEvent* event) {
            return watched == &receiver && event->type() == QEvent::User && consume;
        });
        send(&receiver);
        QCOMPARE(receiver.received, 0);
        consume = false;
        send(&receiver);
        QCOMPARE(receiver.received, 1);
        consume = true;
        delete filter;
        new EventFilter(&receiver, {});
        send(&receiver);
        QCOMPARE(receiver.received, 2);
    }
    void filterHandlerMayDeleteFilter()
    {
        Receiver receiver;
        QPointer<EventFilter> filter;
        int calls = 0;
        filter = new EventFilter(&receiver, [&filter, &calls, kept = QString(50, u'x')](auto...) {
            delete filter;
            calls += static_cast<int>(kept.size());
            return false;
        });
        send(&receiver);
        send(&receiver);
        QCOMPARE(calls, 50);
        QCOMPARE(receiver.received, 2);
    }
    void filterHandlerMayDeleteWatched()
    {
        const QPointer<Receiver> receiver = new Receiver;
        new EventFilter(receiver, [](QObject* watched, QEvent* event) {
            if (event->type() == QEvent::User)
                delete watched;
            return false;
        });
        send(receiver);
        QVERIFY(receiver.isNull());
    }
    void signalHandlerMayEndItselfAndItsSender()
    {
        const QPointer<QObject> sender = new QObject;
        QString text;
        const auto end = [&sender, &text, kept = QString(50, u'x')] {
            sender->disconnect();
            sender->deleteLater();
            delete sender->findChild<SignalHandler*>();
            text = kept;
        };
        QVERIFY(
            (new SignalHandler(sender, SIGNAL(objectNameChanged(QString)), end))->isConnected());
        sender->setObjectName(QStringLiteral("a"));
        QCOMPARE(text.size(), 50);
        QTRY_VERIFY(sender.isNull());
    }
    void missingSignals()
    {
        QObject sender;
        for (const char* text :
             {SIGNAL(noSuchSignal()), SLOT(deleteLater()), "objectNameChanged(QString)", "2", "",
              static_cast<const char*>(nullptr)})
            QVERIFY(!SignalHandler(&sender, text, [] {}).isConnected());
        QVERIFY(!SignalHandler(nullptr, SIGNAL(destroyed()), [] {}).isConnected());
    }
};

QTEST_GUILESS_MAIN(tst_QObjectHelpers)
#include "tst_qobjecthelpers.moc"
