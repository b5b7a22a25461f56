// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <random>

/// Random and mutated bytes for tests of readers. The seed is printed when it is made, and taken
/// from the environment variable GUIBASE_SEED when that is set, so that a failure can be repeated.
class RandomBytes
{
public:
    explicit RandomBytes(const char* purpose);

    /// How many inputs a round has: `normal`, or GUIBASE_FUZZ_ROUNDS when that is set.
    static int rounds(int normal);

    std::mt19937_64& engine() { return m_engine; }
    /// A number from 0 to `limit` - 1; `limit` is at least 1.
    int below(int limit);
    QByteArray bytes(int maximumSize);
    /// `original` with some bytes changed, removed, repeated, swapped, or its end cut off.
    QByteArray mutated(QByteArray original);

private:
    std::mt19937_64 m_engine;
};
