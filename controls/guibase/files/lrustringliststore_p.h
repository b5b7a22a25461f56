// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/lrustringlist.h>

#include <QString>

#include <vector>

class ICfg;

/// Keeps a list of strings, most recently used first, in a configuration that other running
/// programs may write the same list to: entry i under the key prefix followed by i, up to the first
/// empty one. Saving reads the list as it is stored by then, repeats on it what this program has
/// done, and stores the result.
class LruStringListStore
{
public:
    /// The configuration must outlive the store; null keeps nothing.
    LruStringListStore(ICfg* cfg, const QString& keyPrefix);

    enum class Operation { Select, Erase };
    /// Does it to the list, and remembers it for the next save.
    void apply(LruStringList& list, Operation operation, const QString& text);

    /// Appends the stored strings to the list.
    void read(LruStringList& list) const;
    bool hasChanges() const { return !m_changes.empty(); }
    /// Brings the stored list up to date, and `list` with it. When the configuration cannot be
    /// stored, the changes are remembered for the next save. While another program saves its list
    /// this waits so many milliseconds; then it returns false, with nothing done.
    bool save(LruStringList& list, int patience);
    /// As save() with much patience, but saves in any case: changes of another program that takes
    /// longer may get lost.
    void saveFinally(LruStringList& list);

private:
    struct Change
    {
        Operation operation;
        QString text;
    };

    static void repeat(LruStringList& list, const Change& change);
    void saveLocked(LruStringList& list);
    bool refresh() const;
    void write(const LruStringList& list) const;
    QString key(int index) const { return m_keyPrefix + QString::number(index); }

    ICfg* m_cfg;
    QString m_keyPrefix;
    std::vector<Change> m_changes; ///< In their order; the last one of each string.
};
