// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <span>

namespace bandmonitor {

/// Storage that grows in chunks and never moves what it holds: every span that append() returns
/// stays valid until it is released, or for the life of the array. Chunks double up to a limit, and
/// a run that would leave much of a chunk unused gets one of its own, so that what is reserved
/// stays below twice what is held (plus a first chunk of 4 KiB).
template <typename T>
class ChunkedArray
{
public:
    /// Copies `values` behind each other. An empty run gives an empty span.
    std::span<T> append(std::span<const T> values)
    {
        if (values.empty())
            return {};
        Chunk* chunk = m_current;
        if (chunk == nullptr || values.size() > chunk->capacity - chunk->end) {
            const std::size_t size = std::clamp(m_capacity / 4, firstChunk, largestChunk);
            const bool getsOwn = values.size() > size / 4;
            chunk = &allocate(getsOwn ? values.size() : size);
            if (!getsOwn)
                m_current = chunk;
        }
        const std::span<T> result(chunk->elements.get() + chunk->end, values.size());
        std::copy(values.begin(), values.end(), result.begin());
        chunk->end += values.size();
        chunk->held += values.size();
        m_size += values.size();
        return result;
    }

    /// Gives up a run that append() has returned. A chunk goes with its last run; one waits for the
    /// next need. This is fast for the runs that came first.
    void release(std::span<const T> run)
    {
        const auto holdsRun = [&run](const Chunk& chunk) {
            const T* const begin = chunk.elements.get();
            return !std::less<>()(run.data(), begin) &&
                   std::less<>()(run.data(), begin + chunk.capacity);
        };
        const auto chunk = std::ranges::find_if(m_chunks, holdsRun);
        if (run.empty() || chunk == m_chunks.end())
            return;
        m_size -= run.size();
        chunk->held -= run.size();
        if (chunk->held > 0)
            return;
        chunk->end = 0;
        if (&*chunk == m_current)
            return;
        dropSpare();
        m_spare.splice(m_spare.end(), m_chunks, chunk);
    }

    /// How many elements are held.
    std::size_t size() const { return m_size; }
    /// How many elements there is memory for.
    std::size_t capacity() const { return m_capacity; }
    /// By how much capacity() may exceed size() when about as many elements are released as come:
    /// the ends of full chunks, a chunk that empties, and one that fills.
    std::size_t slack() const
    {
        std::size_t result = m_current != nullptr ? 2 * m_current->capacity : 0;
        for (const Chunk& chunk : m_chunks)
            result += &chunk != m_current ? chunk.capacity - chunk.end : 0;
        return result;
    }

private:
    static constexpr std::size_t firstChunk = std::max<std::size_t>(4096 / sizeof(T), 1);
    static constexpr std::size_t largestChunk = (std::size_t{4} << 20) / sizeof(T);

    struct Chunk
    {
        std::unique_ptr<T[]> elements;
        std::size_t capacity = 0;
        std::size_t end = 0;  ///< Elements from here on were never used.
        std::size_t held = 0; ///< Elements of runs that were not released.
    };

    Chunk& allocate(std::size_t count)
    {
        if (!m_spare.empty() && m_spare.front().capacity == count) {
            m_chunks.splice(m_chunks.end(), m_spare);
            return m_chunks.back();
        }
        dropSpare();
        m_capacity += count;
        m_chunks.push_back({std::make_unique_for_overwrite<T[]>(count), count});
        return m_chunks.back();
    }

    void dropSpare()
    {
        m_capacity -= m_spare.empty() ? 0 : m_spare.front().capacity;
        m_spare.clear();
    }

    std::list<Chunk> m_chunks;
    std::list<Chunk> m_spare;   ///< One without runs, or none.
    Chunk* m_current = nullptr; ///< With place for short runs.
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace bandmonitor
