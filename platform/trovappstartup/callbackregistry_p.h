// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <vector>

/// Objects to be called one after another in the order of their registration. They may be added and
/// removed at any time, also by the calls; one that was removed is not called any more.
template <typename T>
class CallbackRegistry
{
public:
    enum class Added {
        Skip, ///< Those added by the calls wait for the next time.
        Call, ///< Those added by the calls are called too.
    };

    void add(T* object)
    {
        const auto isSame = [object](const Entry& entry) { return entry.object == object; };
        if (object != nullptr && std::none_of(m_entries.begin(), m_entries.end(), isSame))
            m_entries.push_back({++m_lastNumber, object});
    }

    void remove(T* object)
    {
        std::erase_if(m_entries, [object](const Entry& entry) { return entry.object == object; });
    }

    template <typename Function>
    void callEach(Added added, Function function)
    {
        const unsigned long long end = m_lastNumber;
        unsigned long long done = 0;
        for (;;) {
            const auto next =
                std::find_if(m_entries.begin(), m_entries.end(),
                             [done](const Entry& entry) { return entry.number > done; });
            if (next == m_entries.end() || (added == Added::Skip && next->number > end))
                return;
            done = next->number;
            function(*next->object);
        }
    }

private:
    /// Numbers grow with every registration and are never used again.
    struct Entry
    {
        unsigned long long number;
        T* object;
    };

    std::vector<Entry> m_entries;
    unsigned long long m_lastNumber = 0;
};
