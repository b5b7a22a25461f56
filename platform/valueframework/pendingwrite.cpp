// SPDX-License-Identifier: MIT
#include <valueframework/pendingwrite.h>

#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/savecomponentif.h>

#include <QCoreApplication>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// All that is held back.
class Registry : public SaveComponentIf
{
public:
    static Registry& instance()
    {
        static Registry& registry = *new Registry;
        return registry;
    }

    void Save() override { PendingWrite::WriteAll(); }
    void Load() override {}
    void CommitData() override { PendingWrite::WriteAll(); }

    std::vector<const PendingWrite*> writes;

private:
    Registry()
    {
        CfgCenter::RegisterSaveComponent(this);
        if (auto* application = QCoreApplication::instance())
            QObject::connect(application, &QCoreApplication::aboutToQuit, &PendingWrite::WriteAll);
    }
};

} // namespace

PendingWrite::PendingWrite(std::function<void()> write)
    : m_write(std::move(write))
{
    Registry::instance().writes.push_back(this);
}

PendingWrite::~PendingWrite()
{
    std::erase(Registry::instance().writes, this);
}

void PendingWrite::WriteAll()
{
    const std::vector<const PendingWrite*>& writes = Registry::instance().writes;
    for (const PendingWrite* write : std::vector<const PendingWrite*>(writes)) {
        if (std::find(writes.begin(), writes.end(), write) == writes.end())
            continue;
        const std::function<void()> operation = write->m_write;
        operation();
    }
}
