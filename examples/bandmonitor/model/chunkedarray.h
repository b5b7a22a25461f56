// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace bandmonitor {

/// Storage that grows in chunks and never moves what it holds: every span that append() returns
/// stays valid for the life of the array. Chunks double up to a limit, and a run that would leave
/// much of a chunk unused gets one of its own, so that what is reserved stays below twice what is
/// held (plus a first chunk of 4 KiB).
template <typename T>
class ChunkedArray
{
public:
    /// Copies `values` behind each other. An empty run gives an empty span.
    std::span<T> append(std::span<const T> values)
    {
        if (values.empty())
            return {};
        if (values.size() > m_free.size()) {
            const std::size_t chunk = std::clamp(m_capacity / 4, firstChunk, largestChunk);
            if (values.size() > chunk / 4) {
                const std::span<T> own = allocate(values.size());
                std::copy(values.begin(), values.end(), own.begin());
                m_size += values.size();
                return own;
            }
            m_free = allocate(chunk);
        }
        const std::span<T> result = m_free.first(values.size());
        std::copy(values.begin(), values.end(), result.begin());
        m_free = m_free.subspan(values.size());
        m_size += values.size();
        return result;
    }

    /// How many elements are held.
    std::size_t size() const { return m_size; }
    /// How many elements there is memory for.
    std::size_t capacity() const { return m_capacity; }

private:
    static constexpr std::size_t firstChunk = std::max<std::size_t>(4096 / sizeof(T), 1);
    static constexpr std::size_t largestChunk = (std::size_t{4} << 20) / sizeof(T);

    std::span<T> allocate(std::size_t count)
    {
        m_chunks.push_back(std::make_unique_for_overwrite<T[]>(count));
        m_capacity += count;
        return {m_chunks.back().get(), count};
    }

    std::vector<std::unique_ptr<T[]>> m_chunks;
    std::span<T> m_free;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace bandmonitor
