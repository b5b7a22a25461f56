// SPDX-License-Identifier: MIT
#include "maximizeddocks.h"

#include "geometryrecord.h"
#include "hexadecimal.h"

#include <QStringList>

namespace {

constexpr QLatin1Char rowEnd(';');
constexpr QLatin1Char separator(',');

bool isPlausible(int x, int y, int width, int height)
{
    constexpr int farthest = GeometryRecord::farthestPosition;
    const auto isWithin = [](int lowest, int value) {
        return value >= lowest && value <= farthest;
    };
    return isWithin(-farthest, x) && isWithin(-farthest, y) && isWithin(1, width) &&
           isWithin(1, height);
}

bool addRow(MaximizedDocksText::Modes& modes, const QString& text)
{
    const QStringList parts = text.split(separator);
    if (parts.size() != 6)
        return false;
    bool isNumber = false;
    const quint32 mode = parts.at(0).toUInt(&isNumber);
    int numbers[4]{};
    for (int i = 0; i < 4 && isNumber; ++i)
        numbers[i] = parts.at(i + 1).toInt(&isNumber);
    const auto [x, y, width, height] = numbers;
    const auto name = Hexadecimal::decode(parts.at(5));
    if (!isNumber || !isPlausible(x, y, width, height) || !name || name->isEmpty())
        return false;
    const QRect place(x, y, width, height);
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
