// SPDX-License-Identifier: MIT
#include "lrustringliststore_p.h"

#include <trovappstartup/cfgcenter.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

namespace {

/// Keeps other programs from saving their lists between reading and storing. False when one of them
/// holds the lock all the time. Where no lock can be had at all, a change of theirs may get lost.
bool waitFor(QLockFile& lock, int milliseconds)
{
    // QLockFile itself waits with pauses that double, and starves among busy programs.
    constexpr unsigned long pauseMilliseconds = 3;
    const QDeadlineTimer deadline(milliseconds);
    while (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(pauseMilliseconds);
    }
    return true;
}

} // namespace

LruStringListStore::LruStringListStore(ICfg* cfg, const QString& keyPrefix)
    : m_cfg(cfg)
    , m_keyPrefix(keyPrefix)
{}

void LruStringListStore::repeat(LruStringList& list, const Change& change)
{
    if (change.operation == Operation::Select)
        list.Select(change.text);
    else
        list.Erase(change.text);
}

void LruStringListStore::apply(LruStringList& list, Operation operation, const QString& text)
{
    if (text.isEmpty() || list.GetLimit() < 1)
        return;
    const Change change{operation, text}; // `text` may be an entry of the list.
    repeat(list, change);
    std::erase_if(m_changes, [&](const Change& former) { return former.text == change.text; });
    m_changes.push_back(change);
}

void LruStringListStore::read(LruStringList& list) const
{
    for (int i = 0; m_cfg != nullptr && i < list.GetLimit(); ++i) {
        const QString text = m_cfg->GetString(key(i));
        if (text.isEmpty())
            break;
        list.Append(text);
    }
}

// A configuration reads what other programs have written when it stores a change. So this makes a
// change that changes nothing.
bool LruStringListStore::refresh() const
{
    const QString marker = m_keyPrefix + u'-';
    m_cfg->SetBool(marker, !m_cfg->GetBool(marker));
    m_cfg->Remove(marker);
    return m_cfg->Store();
}

void LruStringListStore::write(const LruStringList& list) const
{
    for (int i = 0; i < list.GetCount(); ++i)
        m_cfg->SetString(key(i), list.At(i));
    // The limit may be huge: look at the keys that there are.
    const QStringList keys = m_cfg->GetKeys();
    for (const QString& stored : keys) {
        bool isNumber = false;
        const int index = QStringView(stored).mid(m_keyPrefix.size()).toInt(&isNumber);
        if (isNumber && index >= list.GetCount() && index < list.GetLimit() && stored == key(index))
            m_cfg->Remove(stored);
    }
}

void LruStringListStore::saveFinally(LruStringList& list)
{
    constexpr int patience = 3000;
    if (!save(list, patience))
        saveLocked(list);
}

bool LruStringListStore::save(LruStringList& list, int patience)
{
    if (m_cfg == nullptr)
        return true;
    const QString file = CfgCenter::GetAppCfgFileName();
    QDir().mkpath(QFileInfo(file).absolutePath()); // Else programs that save first have no lock.
    QLockFile lock(file + QStringLiteral(".lists.lock"));
    if (!waitFor(lock, patience))
        return false;
    saveLocked(list);
    return true;
}

void LruStringListStore::saveLocked(LruStringList& list)
{
    const bool isFresh = refresh();
    list.Clear();
    read(list);
    for (const Change& change : m_changes)
        repeat(list, change);
    write(list);
    if (isFresh && m_cfg->Store())
        m_changes.clear();
}
