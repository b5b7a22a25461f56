// SPDX-License-Identifier: MIT
#include <guibase/notifications/protocol/notificationmessage.h>
#include <guibase/notifications/protocol/notificationstack.h>

#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <vector>

using Message = NotificationMessage;

namespace {

/// The hash in plain arithmetic over the documented rule, without the class.
quint32 plainHash(const std::vector<std::pair<quint64, quint32>>& list)
{
    quint64 hash = 0;
    for (const auto& [id, height] : list)
        hash = ((hash * 2 + hash / 0x80000000U) ^ (id / 0x80000000U) ^ id ^ height) % 0x100000000U;
    return static_cast<quint32>(hash);
}

} // namespace

class tst_NotificationProtocol : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void decodes_data()
    {
        TestRows<QByteArray, bool> row;
        const auto hex = [](const char* text) { return QByteArray::fromHex(text); };
        row("add", hex("00 00 0807060504030201 64000000 00000000"), true);
        row("resize with hash", hex("00 02 0807060504030201 ffffff00 efbeadde"), true);
        row("connected", hex("00 04 0000000000000000 00000000 ffffffff"), true);
        row("reserved byte used", hex("01 00 0807060504030201 64000000 00000000"), false);
        row("unknown type", hex("00 05 0807060504030201 00000000 00000000"), false);
        row("too high", hex("00 00 0807060504030201 00000001 00000000"), false);
        row("17 bytes", hex("00 00 0807060504030201 64000000 000000"), false);
        row("19 bytes", hex("00 00 0807060504030201 64000000 00000000 00"), false);
    }
    void decodes()
    {
        const auto& [bytes, isValid] = TestRows<QByteArray, bool>::fetch();
        const std::optional<Message> message = Message::decoded(bytes);
        QCOMPARE(message.has_value(), isValid);
        if (!isValid)
            return;
        QCOMPARE(message->encoded(), bytes);
        if (message->type == Message::Resize)
            QCOMPARE(*message,
                     (Message{Message::Resize, 0x0102030405060708, 0xffffff, 0xdeadbeef}));
    }
    void appliesMessages()
    {
        NotificationStack stack;
        QCOMPARE(stack.hash(), 0U);
        for (const quint64 id : {quint64{1}, quint64{2}, quint64{0x9abcdef012345678}})
            stack.apply({Message::Add, id, 100}, 7);
        stack.apply({Message::Add, 2, 50}, 8);
        stack.apply({Message::Raise, 1});
        stack.apply({Message::Raise, 77});
        stack.apply({Message::Resize, 1, 40});
        stack.apply({Message::Remove, 77});
        const QList<NotificationStack::Entry> expected{
            {2, 100, 8}, {0x9abcdef012345678, 100, 7}, {1, 40, 7}};
        QCOMPARE(stack.entries(), expected);
        QCOMPARE(stack.hash(), plainHash({{2, 100}, {0x9abcdef012345678, 100}, {1, 40}}));
        QCOMPARE(stack.idsOf(7), (QList<quint64>{0x9abcdef012345678, 1}));
        stack.apply({Message::Remove, 2});
        QCOMPARE(stack.indexOf(1), 1);
    }
    void survivesRandomMessages()
    {
        RandomBytes random("notification messages");
        NotificationStack stack;
        std::vector<std::pair<quint64, quint32>> model;
        const int rounds = RandomBytes::rounds(100000);
        for (int round = 0; round < rounds; ++round) {
            QByteArray bytes =
                Message{static_cast<Message::Type>(random.below(5)),
                        static_cast<quint64>(random.below(40)) << random.below(2) * 33,
                        static_cast<quint32>(random.below(2000))}
                    .encoded();
            if (random.below(4) == 0)
                bytes = random.mutated(bytes);
            const std::optional<Message> message = Message::decoded(bytes);
            if (!message)
                continue;
            QCOMPARE(Message::decoded(message->encoded()), message);
            stack.apply(*message);
            const auto found = std::find_if(model.begin(), model.end(), [&](const auto& entry) {
                return entry.first == message->id;
            });
            const auto known =
                found == model.end() ? std::pair(message->id, message->value) : *found;
            const bool isListed = found != model.end();
            const bool isRaised = message->type == Message::Raise && message->id != 0;
            if (isListed && (message->type == Message::Remove || isRaised))
                model.erase(found);
            if ((isListed && isRaised) || (!isListed && message->type == Message::Add))
                model.push_back(known);
            if (isListed && message->type == Message::Resize)
                found->second = message->value;
            QCOMPARE(stack.hash(), plainHash(model));
            if (model.size() > 200) {
                model.clear();
                stack.clear();
            }
        }
    }
};

QTEST_MAIN(tst_NotificationProtocol)
#include "tst_notificationprotocol.moc"
