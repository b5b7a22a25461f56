// SPDX-License-Identifier: MIT
#include "anglereader_p.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr int unknownUnit = -1;

struct Number
{
    double value = 0;
    qsizetype wholeDigits = 0;
    bool hasFraction = false;
    bool isSigned = false;
    bool isNegative = false;
    bool isParted = false;  ///< A comma, semicolon or slash stands before it.
    int unit = unknownUnit; ///< Told by its mark: 0 for degrees, 1 for minutes, 2 for seconds.
};

struct Hemisphere
{
    QChar letter;
    std::size_t place; ///< How many numbers stand before it.
};

struct Words
{
    std::vector<Number> numbers;
    std::vector<Hemisphere> hemispheres;
};

/// Takes a text apart into numbers and letters.
class AngleWords
{
public:
    AngleWords(const QString& text, bool isCommaDecimal)
        : m_text(text)
        , m_isCommaDecimal(isCommaDecimal)
        , m_hasLetters(std::any_of(text.begin(), text.end(), [](QChar c) { return isLetter(c); }))
    {}

    /// Nothing for a text with anything else in it.
    std::optional<Words> read();

private:
    static bool isLetter(QChar c) { return QStringView(u"NSEW").contains(c); }
    bool isDigitAt(qsizetype i) const
    {
        return i < m_text.size() && m_text[i] >= u'0' && m_text[i] <= u'9';
    }
    void skipDigits()
    {
        while (isDigitAt(m_at))
            ++m_at;
    }
    bool readSign();
    void readNumber();
    bool readMark();

    const QString& m_text;
    bool m_isCommaDecimal;
    bool m_hasLetters;
    qsizetype m_at = 0;
    Number m_next; ///< What is known of the number that follows.
    Words m_words;
};

std::optional<Words> AngleWords::read()
{
    constexpr std::size_t mostNumbers = 6;
    constexpr std::size_t mostLetters = 2;
    while (m_at < m_text.size()) {
        const QChar c = m_text[m_at];
        bool isKnown = true;
        if (isDigitAt(m_at)) {
            readNumber();
            continue;
        }
        if (c == u'+' || c == u'-')
            isKnown = readSign();
        else if (c == u',' || c == u';' || c == u'/')
            isKnown = !m_words.numbers.empty() && !std::exchange(m_next.isParted, true);
        else if (isLetter(c))
            m_words.hemispheres.push_back({c, m_words.numbers.size()});
        else if (c != u' ')
            isKnown = readMark();
        if (!isKnown || m_words.numbers.size() > mostNumbers ||
            m_words.hemispheres.size() > mostLetters)
            return std::nullopt;
        ++m_at;
    }
    return m_next.isSigned || m_next.isParted ? std::nullopt : std::optional(m_words);
}

/// A dash between digits is no sign where letters tell the hemispheres: "48-08-14N".
bool AngleWords::readSign()
{
    if (!isDigitAt(m_at + 1) || m_next.isSigned)
        return false;
    const bool isDash = m_hasLetters && m_text[m_at] == u'-' && m_at > 0 && isDigitAt(m_at - 1);
    m_next.isSigned = !isDash;
    m_next.isNegative = !isDash && m_text[m_at] == u'-';
    return true;
}

void AngleWords::readNumber()
{
    const qsizetype begin = m_at;
    skipDigits();
    m_next.wholeDigits = m_at - begin;
    const bool isPoint = m_at < m_text.size() &&
                         (m_text[m_at] == u'.' || (m_isCommaDecimal && m_text[m_at] == u','));
    m_next.hasFraction = isPoint && isDigitAt(m_at + 1);
    if (m_next.hasFraction) {
        ++m_at;
        skipDigits();
    }
    QString digits = m_text.mid(begin, m_at - begin);
    m_next.value = digits.replace(u',', u'.').toDouble();
    m_words.numbers.push_back(std::exchange(m_next, {}));
}

bool AngleWords::readMark()
{
    const auto unit = QStringView(u"°'\"").indexOf(m_text[m_at]);
    if (unit < 0 || m_next.isParted || m_words.numbers.empty() ||
        m_words.numbers.back().unit != unknownUnit)
        return false;
    m_words.numbers.back().unit = static_cast<int>(unit);
    return true;
}

using Group = std::vector<Number>;

/// Where the second angle begins among numbers without letters; 0 when that is not clear.
std::size_t secondAngle(const std::vector<Number>& numbers)
{
    const auto parted = std::count_if(numbers.begin(), numbers.end(),
                                      [](const Number& number) { return number.isParted; });
    std::size_t found = 0;
    for (std::size_t i = 1; i < numbers.size(); ++i) {
        const Number& number = numbers[i];
        if (!number.isSigned && number.unit != 0 && !(number.isParted && parted == 1))
            continue;
        if (found != 0)
            return 0;
        found = i;
    }
    if (found != 0)
        return found;
    return numbers.size() % 2 == 0 ? numbers.size() / 2 : 0;
}

/// "4808" or "480814", with one digit more for a longitude, as aviation writes it.
void splitCompact(Group& group, int degreeDigits)
{
    const Number whole = group.front();
    const qsizetype rest = whole.wholeDigits - degreeDigits;
    if (group.size() != 1 || whole.unit != unknownUnit || (rest != 2 && rest != 4))
        return;
    const double sixties = rest == 2 ? 100 : 10'000;
    Number degrees;
    degrees.value = std::floor(whole.value / sixties);
    Number last;
    last.hasFraction = whole.hasFraction;
    last.value = std::fmod(whole.value, 100);
    group = {degrees};
    if (rest == 4) {
        Number minutes;
        minutes.value = std::fmod(std::floor(whole.value / 100), 100);
        group.push_back(minutes);
    }
    group.push_back(last);
}

/// Nothing for numbers that are no angle; infinity for one with 60 minutes or seconds.
std::optional<double> angleOf(const Group& group)
{
    constexpr std::size_t mostParts = 3;
    if (group.empty() || group.size() > mostParts)
        return std::nullopt;
    double angle = 0;
    double unit = 1;
    for (std::size_t i = 0; i < group.size(); ++i) {
        const Number& number = group[i];
        const bool isLast = i + 1 == group.size();
        if ((number.unit != unknownUnit && number.unit != static_cast<int>(i)) ||
            (number.hasFraction && !isLast) || (number.isSigned && i > 0))
            return std::nullopt;
        if (i > 0 && number.value >= 60)
            return std::numeric_limits<double>::infinity();
        angle += number.value / unit;
        unit *= 60;
    }
    return group.front().isNegative ? -angle : angle;
}

CoordFormat formatOf(std::size_t parts, bool hasLetters)
{
    if (parts == 1)
        return hasLetters ? CoordFormat::Degrees : CoordFormat::SignedDegrees;
    return parts == 2 ? CoordFormat::DegreesMinutes : CoordFormat::DegreesMinutesSeconds;
}

PositionReading readingOf(const Group& latitude, const Group& longitude, bool hasLetters)
{
    const auto north = angleOf(latitude);
    const auto east = angleOf(longitude);
    if (!north || !east)
        return {};
    PositionReading result;
    result.position = {*north, *east};
    result.format = formatOf(std::max(latitude.size(), longitude.size()), hasLetters);
    if (!std::isfinite(*north) || !std::isfinite(*east))
        result.fault = PositionReading::BeyondSixty;
    else if (std::abs(*north) > 90)
        result.fault = PositionReading::BeyondPole;
    else if (std::abs(*east) > 180)
        result.fault = PositionReading::BeyondMeridian;
    else
        result.fault = PositionReading::None;
    return result;
}

PositionReading readWithLetters(const Words& words)
{
    const auto& [numbers, letters] = words;
    if (letters.size() != 2 || std::any_of(numbers.begin(), numbers.end(),
                                           [](const Number& number) { return number.isSigned; }))
        return {};
    const bool isBefore = letters[0].place == 0;
    const std::size_t border = isBefore ? letters[1].place : letters[0].place;
    if (border == 0 || (!isBefore && letters[1].place != numbers.size()))
        return {};
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(border);
    Group groups[] = {Group(numbers.begin(), middle), Group(middle, numbers.end())};
    Group* latitude = nullptr;
    Group* longitude = nullptr;
    for (std::size_t i = 0; i < 2; ++i) {
        const QChar letter = letters[i].letter;
        const bool isLatitude = letter == u'N' || letter == u'S';
        if (groups[i].empty())
            return {};
        splitCompact(groups[i], isLatitude ? 2 : 3);
        groups[i].front().isNegative = letter == u'S' || letter == u'W';
        (isLatitude ? latitude : longitude) = &groups[i];
    }
    return latitude != nullptr && longitude != nullptr ? readingOf(*latitude, *longitude, true)
                                                       : PositionReading();
}

PositionReading readWords(const std::optional<Words>& words)
{
    if (!words || words->numbers.size() < 2)
        return {};
    if (!words->hemispheres.empty())
        return readWithLetters(*words);
    const std::size_t border = secondAngle(words->numbers);
    if (border == 0)
        return {};
    const auto middle = words->numbers.begin() + static_cast<std::ptrdiff_t>(border);
    return readingOf(Group(words->numbers.begin(), middle), Group(middle, words->numbers.end()),
                     false);
}

} // namespace

PositionReading readAngles(const QString& plain)
{
    // A comma is a decimal sign where that gives a position, unless points are.
    if (!plain.contains(u'.') && plain.contains(u',')) {
        const PositionReading reading = readWords(AngleWords(plain, true).read());
        if (reading.fault != PositionReading::Unreadable)
            return reading;
    }
    return readWords(AngleWords(plain, false).read());
}
