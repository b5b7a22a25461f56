// SPDX-License-Identifier: MIT
#include "maximizeddocks.h"

#include "geometryrecord.h"
#include "hexadecimal.h"

#include <QStringList>

#include <cstdlib>

namespace {

constexpr QLatin1Char rowEnd(';');
constexpr QLatin1Char separator(',');

bool isPlausible(const QRect& place)
{
    constexpr int farthest = GeometryRecord::farthestPosition;
    return std::abs(place.x()) <= farthest && std::abs(place.y()) <= farthest &&
           place.width() > 0 && place.width() <= farthest && place.height() > 0 &&
           place.height() <= farthest;
}

bool addRow(MaximizedDocksText::Modes& modes, const QString& text)
{
    const QStringList parts = text.split(separator);
    if (parts.size() != 6)
        return false;
    bool isNumber = false;
    const quint32 mode = parts.at(0).toUInt(&isNumber);
    int numbers[4];
    for (int i = 0; i < 4 && isNumber; ++i)
        numbers[i] = parts.at(i + 1).toInt(&isNumber);
    if (!isNumber)
        return false;
    const QRect place(numbers[0], numbers[1], numbers[2], numbers[3]);
    const auto name = Hexadecimal::decode(parts.at(5));
    if (!isPlausible(place) || !name || name->isEmpty())
        return false;
    return modes[mode].try_emplace(QString::fromUtf8(*name), place).second;
}

} // namespace

QString MaximizedDocksText::format(const Modes& modes)
{
    QString text;
    for (const auto& [mode, docks] : modes) {
        for (const auto& [name, place] : docks) {
            const QStringList parts{
                QString::number(mode),           QString::number(place.x()),
                QString::number(place.y()),      QString::number(place.width()),
                QString::number(place.height()), Hexadecimal::encode(name.toUtf8())};
            text += parts.join(separator) + rowEnd;
        }
    }
    return text;
}

std::optional<MaximizedDocksText::Modes> MaximizedDocksText::parse(const QString& text)
{
    if (text.size() > maximumTextSize)
        return std::nullopt;
    Modes modes;
    QStringList rows = text.split(rowEnd);
    if (!rows.takeLast().isEmpty())
        return std::nullopt;
    for (const QString& row : std::as_const(rows)) {
        if (!addRow(modes, row))
            return std::nullopt;
    }
    return modes;
}
