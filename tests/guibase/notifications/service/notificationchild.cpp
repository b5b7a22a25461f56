// SPDX-License-Identifier: MIT
// A program with pop-ups but no windows, for tests of whole processes:
//     notificationchild PORT ANSWER-TIME COUNT
// enters COUNT pop-ups, and another one for each line "add" on its standard input.
// After each change it writes one line: its role, the hash of the list, and the top and the height
// of each of its own pop-ups on a high screen.
#include <guibase/notifications/service/notificationservice.h>

#include <guibase/notifications/popup/popuplayout.h>

#include <QCoreApplication>
#include <QMetaEnum>
#include <QSocketNotifier>

#include <iostream>
#include <string>

namespace {

constexpr QRect screen(0, 0, 1920, 1000000);

class Child
{
public:
    Child(const NotificationSettings& settings, int count)
        : m_service(settings)
        , m_input(0, QSocketNotifier::Read)
    {
        m_report.setSingleShot(true);
        m_report.callOnTimeout(&m_service, [this] { report(); });
        QObject::connect(&m_service, &NotificationService::stackChanged, &m_report,
                         [this] { m_report.start(0); });
        QObject::connect(&m_input, &QSocketNotifier::activated, &m_service, [this] { obey(); });
        m_service.start();
        for (int i = 0; i < count; ++i)
            add();
    }

private:
    void add()
    {
        const auto process = static_cast<quint64>(QCoreApplication::applicationPid());
        const quint64 id = process << 16 | ++m_lastNumber;
        m_ids << id;
        m_service.add(id, static_cast<int>(40 + id % 60));
    }
    void obey()
    {
        std::string line;
        if (!std::getline(std::cin, line))
            QCoreApplication::quit();
        else if (line == "add")
            add();
    }
    void report()
    {
        QList<quint32> heights;
        const auto& entries = m_service.stack().entries();
        for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry)
            heights << entry->height;
        const PopupLayout::Plan plan = PopupLayout::plan(screen.height(), heights, 0);
        std::cout << QMetaEnum::fromType<NotificationService::Role>().valueToKey(
                         static_cast<int>(m_service.role()))
                  << ' ' << m_service.stack().hash();
        for (qsizetype i = 0; i < entries.size(); ++i) {
            const NotificationStack::Entry& entry = entries.at(entries.size() - 1 - i);
            const QSize size(400, static_cast<int>(entry.height));
            if (m_ids.contains(entry.id))
                std::cout << ' ' << PopupLayout::position(screen, size, plan.offsets.at(i)).y()
                          << ':' << entry.height;
        }
        std::cout << std::endl;
    }

    NotificationService m_service;
    QSocketNotifier m_input;
    QTimer m_report;
    QList<quint64> m_ids;
    quint64 m_lastNumber = 0;
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    NotificationSettings settings;
    settings.port = arguments.value(1).toUShort();
    settings.answerTime = std::chrono::milliseconds(arguments.value(2).toInt());
    settings.rejoinPause = settings.answerTime;
    const Child child(settings, arguments.value(3).toInt());
    return QCoreApplication::exec();
}
