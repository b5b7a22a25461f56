// SPDX-License-Identifier: MIT
#include "support/randombytes.h"

#include <QDebug>

RandomBytes::RandomBytes(const char* purpose)
{
    bool fixed = false;
    quint64 seed = qEnvironmentVariable("GUIBASE_SEED").toULongLong(&fixed);
    if (!fixed)
        seed = std::random_device{}();
    m_engine.seed(seed);
    qInfo("%s: GUIBASE_SEED=%llu", purpose, static_cast<unsigned long long>(seed));
}

int RandomBytes::rounds(int normal)
{
    bool set = false;
    const int rounds = qEnvironmentVariableIntValue("GUIBASE_FUZZ_ROUNDS", &set);
    return set ? rounds : normal;
}

int RandomBytes::below(int limit)
{
    return std::uniform_int_distribution<int>(0, limit - 1)(m_engine);
}

QByteArray RandomBytes::bytes(int maximumSize)
{
    QByteArray result(below(maximumSize + 1), Qt::Uninitialized);
    for (char& byte : result)
        byte = static_cast<char>(below(256));
    return result;
}

QByteArray RandomBytes::mutated(QByteArray original)
{
    const int steps = 1 + below(8);
    for (int step = 0; step < steps && !original.isEmpty(); ++step) {
        const int at = below(static_cast<int>(original.size()));
        switch (below(6)) {
        case 0:
            original[at] = static_cast<char>(below(256));
            break;
        case 1:
            original[at] = static_cast<char>(original[at] ^ (1 << below(8)));
            break;
        case 2:
            original.remove(at, 1 + below(16));
            break;
        case 3:
            original.insert(at, bytes(16));
            break;
        case 4:
            original.insert(at, original.mid(at, 1 + below(64)));
            break;
        default:
            original.truncate(at);
            break;
        }
    }
    return original;
}
