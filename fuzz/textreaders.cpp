// SPDX-License-Identifier: MIT
#include "readers.h"

#include <guibase/formats/frequencydisplayformat.h>
#include <guibase/formats/integralnumberdisplayformat.h>
#include <guibase/formats/qdatetimedisplayformat.h>
#include <guibase/formats/realnumberdisplayformat.h>
#include <guibase/frequencies/suffixeddouble.h>
#include <guibase/lists/sortrowtable.h>
#include <jtbase/geometryarrayparser.h>
#include <jtbase/numberhelpers.h>
#include <jtbase/positionreader.h>

#include <QDateTime>
#include <QTimeZone>

#include <cmath>

namespace Fuzz {

namespace {

bool readNumber(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes);
    bool isInteger = false;
    const auto integer = NumberHelpers::parse<qint64>(text, &isInteger);
    if (isInteger)
        expect(NumberHelpers::parse<qint64>(QString::number(integer)) == integer, "integer");
    bool isReal = false;
    const double real = Trov::toDoubleEx(text, &isReal);
    expect(std::isfinite(real), "a real number that is not finite");
    return isInteger || isReal;
}

/// What is read is written as a text that reads the same.
template <typename T>
bool readFully(const ValueDisplayFormatBase<T>& format, const QString& text)
{
    bool ok = false;
    const T value = format.valueFromFullText(text, &ok);
    if (!ok) {
        format.refusalReason(text);
        return false;
    }
    bool isReadAgain = false;
    const T again = format.valueFromFullText(format.fullTextFromValue(value), &isReadAgain);
    expect(isReadAgain && again == value, "the text of a value reads as another one");
    return true;
}

/// The first byte chooses the base.
bool readInteger(const QByteArray& bytes)
{
    IntegralNumberDisplayFormat<qint64> format;
    format.setBase(bytes.isEmpty() || bytes.at(0) < 'A' ? 10 : 2 + (bytes.at(0) - 'A') % 35);
    return readFully<qint64>(format, QString::fromUtf8(bytes.mid(1)));
}

bool readReal(const QByteArray& bytes)
{
    RealNumberDisplayFormat<double> format;
    format.setFormat('g');
    format.setPrecision(17);
    return readFully<double>(format, QString::fromUtf8(bytes));
}

/// The first byte chooses the unit.
bool readFrequency(const QByteArray& bytes)
{
    const int unit = bytes.isEmpty() ? 0 : bytes.at(0) & 3;
    return readFully<qint64>(
        FrequencyDisplayFormat(static_cast<UnitPrefix::ESuffix>(UnitPrefix::BaseUnit + unit)),
        QString::fromUtf8(bytes.mid(1)));
}

bool readDateTime(const QByteArray& bytes)
{
    QDateTimeDisplayFormat format;
    format.setDateTimeFormat(QStringLiteral("ddd yyyy-MM-dd HH:mm:ss.zzz t"));
    format.setPresentTime(QDateTime(QDate(2026, 3, 1), QTime(12, 30), Qt::UTC));
    return readFully<QDateTime>(format, QString::fromUtf8(bytes));
}

/// What is shown in a format reads as a place that is shown in the same way.
bool readPositionText(const QByteArray& bytes)
{
    const PositionReading reading = readPosition(QString::fromUtf8(bytes));
    if (!reading.isRead()) {
        expect(!positionRefusal(reading, CoordFormat::Utm).isEmpty(), "no reason");
        return false;
    }
    expect(reading.position.isValid(), "a position beyond the globe");
    for (int format = 0; format < coordFormatCount; ++format) {
        const auto write = [format](const GeoPosition& position) {
            return formatPosition(position.latitude, position.longitude, CoordFormat(format));
        };
        const QString text = write(reading.position);
        const PositionReading again = readPosition(text);
        expect(text.isEmpty() || (again.isRead() && write(again.position) == text),
               "the text of a position reads as another one");
    }
    return true;
}

bool readSuffixed(const QByteArray& bytes)
{
    SuffixedDouble number(QStringLiteral("Hz"), 1000, true);
    number.SetFrequencyString(QString::fromUtf8(bytes));
    const double read = number.GetValue();
    expect(!std::isnan(read), "a quantity that is no number");
    number.GetString();
    number.GetShortestString();
    number.SetCurrentIndex2Max();
    number.increment(-1);
    return read != 0;
}

bool readRows(const QByteArray& bytes)
{
    qsizetype left = 0;
    const auto rows = SortRowTable::parseRows(QString::fromUtf8(bytes), &left);
    expect(rows.size() <= SortRowTable::maximumPastedRows && left >= 0, "too many rows");
    return !rows.isEmpty();
}

bool readLayoutNumbers(const QByteArray& bytes)
{
    const auto rows = GeometryArrayParser::parseRows(QString::fromUtf8(bytes));
    if (!rows)
        return false;
    expect(GeometryArrayParser::parseRows(GeometryArrayParser::formatRows(*rows)) == rows, "rows");
    return true;
}

} // namespace

QList<Reader> textReaders()
{
    return {{"number", &readNumber},
            {"integer", &readInteger},
            {"real", &readReal},
            {"frequency", &readFrequency},
            {"datetime", &readDateTime},
            {"position", &readPositionText},
            {"suffixed", &readSuffixed},
            {"rows", &readRows},
            {"layoutnumbers", &readLayoutNumbers}};
}

} // namespace Fuzz
