// SPDX-License-Identifier: MIT
#include "displayformatlist.h"

#include "integralnumberdisplayformat.h"
#include "qdatetimedisplayformat.h"
#include "realnumberdisplayformat.h"

#include <jtbase/errorhandler.h>

#include <QCoreApplication>

#include <exception>
#include <type_traits>

namespace {

template <typename T>
std::unique_ptr<ValueDisplayFormatBase<T>> makeDefaultFormat()
{
    if constexpr (std::is_same_v<T, QDateTime>)
        return std::make_unique<QDateTimeDisplayFormat>();
    else if constexpr (std::is_integral_v<T>)
        return std::make_unique<IntegralNumberDisplayFormat<T>>();
    else
        return std::make_unique<RealNumberDisplayFormat<T>>();
}

template <typename T>
std::optional<T> readText(const ValueDisplayFormatBase<T>& format, const QString& text)
{
    bool ok = false;
    T value = format.valueFromFullText(text, &ok);
    return ok ? std::optional<T>(std::move(value)) : std::nullopt;
}

/// Runs a step that calls the application's converters; `fallback` when one throws.
template <typename Step, typename Result>
Result guarded(const Step& step, const Result& fallback)
{
    constexpr const char* module = "controls/guibase/formats/displayformatlist";
    try {
        return step();
    } catch (const std::exception& exception) {
        ErrorHandler::Trace(ErrorHandler::TraceGuiBase, module, __LINE__,
                            QStringLiteral("A value converter has thrown: %1")
                                .arg(QString::fromLocal8Bit(exception.what())));
    } catch (...) {
        ErrorHandler::Trace(ErrorHandler::TraceGuiBase, module, __LINE__,
                            QStringLiteral("A value converter has thrown."));
    }
    return fallback;
}

} // namespace

template <typename T>
DisplayFormatList<T>::DisplayFormatList()
    : m_default(makeDefaultFormat<T>())
{}

template <typename T>
DisplayFormatList<T>::~DisplayFormatList() = default;

template <typename T>
void DisplayFormatList<T>::add(std::unique_ptr<Format> format)
{
    if (format != nullptr)
        m_formats.push_back(std::move(format));
}

template <typename T>
typename DisplayFormatList<T>::Format* DisplayFormatList<T>::at(int index) const
{
    return index >= 0 && index < count() ? m_formats[static_cast<std::size_t>(index)].get()
                                         : nullptr;
}

template <typename T>
typename DisplayFormatList<T>::Format* DisplayFormatList<T>::current(int index) const
{
    Format* format = at(index);
    return format != nullptr ? format : m_default.get();
}

template <typename T>
typename DisplayFormatList<T>::Pairs DisplayFormatList<T>::trialOrder(int currentIndex) const
{
    Pairs pairs;
    if (count() == 0 || (count() > 1 && currentIndex < 0))
        pairs.append({m_default.get(), -1});
    for (int index = 0; index < count(); ++index)
        pairs.append({at(index), index});
    if (currentIndex >= 1 && currentIndex < count())
        std::swap(pairs[0], pairs[currentIndex]);
    return pairs;
}

template <typename T>
typename DisplayFormatList<T>::Reading
DisplayFormatList<T>::read(const QString& text, int currentIndex, const T& currentValue) const
{
    if (text.size() > longestText)
        return {currentValue, currentIndex, Reading::Unreadable};
    const Pairs pairs = trialOrder(currentIndex);
    for (const auto& [format, index] : pairs) {
        const auto step = [&, tried = format] { return readText(*tried, text); };
        if (const std::optional<T> value = guarded(step, std::optional<T>()))
            return {*value, index, Reading::Read};
    }
    Reading reading{currentValue, currentIndex, Reading::Unreadable};
    qsizetype longest = -1;
    for (const auto& [format, index] : pairs) {
        const DisplayAffix::Match match = format->suffixMatch(text);
        if (match && match.length > longest) {
            longest = match.length;
            reading.index = index;
            reading.outcome = Reading::SuffixOnly;
        }
    }
    return reading;
}

template <typename T>
std::optional<T> DisplayFormatList<T>::readWith(int index, const QString& text) const
{
    const Format& format = *current(index);
    return guarded([&] { return readText(format, text); }, std::optional<T>());
}

template <typename T>
QString DisplayFormatList<T>::write(const T& value, int currentIndex) const
{
    const Format* format = current(currentIndex);
    return guarded([&] { return format->fullTextFromValue(value); }, QString());
}

template <typename T>
QString DisplayFormatList<T>::refusal(const QString& text, const Reading& reading) const
{
    if (reading.outcome == Reading::Read)
        return {};
    if (text.size() > longestText)
        return QCoreApplication::translate("DisplayFormat",
                                           "This text is too long. Type a shorter one.");
    const Format* format = current(reading.index);
    const auto range = format->bareRange(text);
    if (reading.outcome == Reading::SuffixOnly && range.start == range.end)
        return {};
    const QString bare = text.mid(range.start, range.end - range.start);
    return guarded(
        [&] { return format->refusalReason(bare); },
        QCoreApplication::translate("DisplayFormat", "This cannot be read. Type another value."));
}

#define INSTANTIATE(T) template class DisplayFormatList<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(INSTANTIATE)
#undef INSTANTIATE
