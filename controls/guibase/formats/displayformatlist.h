// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/valuedisplayformatbase.h>

#include <QVarLengthArray>

#include <optional>
#include <utility>
#include <vector>

/// What came of reading a text through the formats of an input.
template <typename T>
struct DisplayFormatReading
{
    /// How far the reading came.
    enum Outcome {
        Read,       ///< A format has read the value.
        SuffixOnly, ///< None has, but the text ends with the suffix of one; the value is unchanged.
        Unreadable, ///< Nothing is known of the text; value and format are unchanged.
    };

    /// The value that was read; see Outcome for the others.
    T value;
    int index; ///< The format's; -1 is the default one.
    /// What the other two stand for.
    Outcome outcome;

    /// Whether the format is known; the text may be a suffix alone, without a value.
    bool isKnown() const { return outcome != Unreadable; }
    /// The parts that callers without this struct ask for; `ok` is isKnown().
    T unpacked(bool& ok, int& formatIndex) const
    {
        ok = isKnown();
        formatIndex = index;
        return value;
    }
};

/// The formats of one input: the built-in default format, which has the index -1, and those that
/// were added, in their order. Shared by the families of spin boxes and combo boxes, through which
/// applications reach the formats: its members are not exported.
///
/// Exceptions of value converters end here: they are traced, and count as a failure.
template <typename T>
class DisplayFormatList
{
public:
    /// Formats with their indexes, as they are tried.
    using Format = ValueDisplayFormatBase<T>;
    using Reading = DisplayFormatReading<T>;
    using Pair = std::pair<const Format*, int>;
    using Pairs = QVarLengthArray<Pair, 8>;

    /// Longer texts are refused unread.
    static constexpr qsizetype longestText = 32767;

    /// With the default format of the type: base 10, or real numbers with six decimals, or the
    /// locale's long format of dates.
    DisplayFormatList();
    ~DisplayFormatList();
    DisplayFormatList(const DisplayFormatList&) = delete;
    DisplayFormatList& operator=(const DisplayFormatList&) = delete;

    /// Null is ignored.
    void add(std::unique_ptr<Format> format);
    int count() const { return static_cast<int>(m_formats.size()); }
    /// Null for an index out of range.
    Format* at(int index) const;
    /// The default format for an index out of range. Never null.
    Format* current(int index) const;

    /// The order in which formats are tried. The current one (`currentIndex`) changes places with
    /// the first one. Without added formats the default one is tried alone. With several, it comes
    /// first when it is current; otherwise it is left out.
    Pairs trialOrder(int currentIndex) const;

    /// The first format in the trial order that reads the text gives value and index. Without one,
    /// the longest suffix (the first among equals) gives the index.
    Reading read(const QString& text, int currentIndex, const T& currentValue) const;
    /// What this one format reads; the default one for an index out of range.
    std::optional<T> readWith(int index, const QString& text) const;
    /// The text in the current format; empty when its converter throws.
    QString write(const T& value, int currentIndex) const;
    /// Tells the user why the text that gave this reading is refused, and what to type instead.
    /// Empty when it is taken. A suffix alone is taken, too: it is a way to change the unit.
    QString refusal(const QString& text, const Reading& reading) const;

private:
    std::unique_ptr<Format> m_default;
    std::vector<std::unique_ptr<Format>> m_formats;
};

#define GUIBASE_EXTERN_LIST(T) extern template class DisplayFormatList<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(GUIBASE_EXTERN_LIST)
#undef GUIBASE_EXTERN_LIST
