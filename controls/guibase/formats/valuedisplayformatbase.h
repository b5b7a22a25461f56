// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/displayformattext.h>

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// Calls `MACRO(T)` for every number type that the typed inputs hold.
#define GUIBASE_FOR_EACH_INPUT_INTEGER(MACRO)                                                      \
    MACRO(signed char)                                                                             \
    MACRO(unsigned char)                                                                           \
    MACRO(short)                                                                                   \
    MACRO(unsigned short)                                                                          \
    MACRO(int)                                                                                     \
    MACRO(unsigned int)                                                                            \
    MACRO(qint64)                                                                                  \
    MACRO(quint64)
#define GUIBASE_FOR_EACH_INPUT_NUMBER(MACRO)                                                       \
    GUIBASE_FOR_EACH_INPUT_INTEGER(MACRO)                                                          \
    MACRO(double)
#define GUIBASE_FOR_EACH_INPUT_TYPE(MACRO)                                                         \
    GUIBASE_FOR_EACH_INPUT_NUMBER(MACRO)                                                           \
    MACRO(QDateTime)

/// Writes a value as the text of an input, and reads such text.
///
/// A text is the prefix, a blank, the bare number or date, a blank, and the suffix; reading does
/// without the affixes and the blanks. Between the stored and the shown value stands a converter,
/// such as a scale. Formats know no widgets; they are values, copied by clone().
///
/// `T` is one of the types of GUIBASE_FOR_EACH_INPUT_TYPE.
template <typename T>
class GUIBASE_EXPORT ValueDisplayFormatBase : public DisplayFormatText
{
public:
    /// The type of the values.
    using Value = T;
    /// The direction in which a converter is asked.
    enum ConversionMode {
        ToDisplay = 0,   ///< From the stored value to the shown one.
        FromDisplay = 1, ///< From the shown value to the stored one.
    };
    /// Turns a stored value into the shown one, or back: a scale, an offset.
    using ValueConverter = std::function<T(T, ConversionMode)>;

    /// A copy of the same class.
    virtual std::unique_ptr<ValueDisplayFormatBase<T>> clone() const = 0;
    /// Reads the bare number or date; blanks around it do not matter. `ok` may be null. Returns
    /// T() on failure.
    virtual T valueFromText(const QString& text, bool* ok) const = 0;
    /// Writes the bare number or date.
    virtual QString textFromValue(T value) const = 0;
    /// Tells the user why valueFromText() does not read this text, and what to type instead.
    virtual QString refusalReason(const QString& text) const;
    /// Stored values from `minimum` to `maximum` whose texts are as wide as any between them; by
    /// default the two bounds.
    virtual std::vector<T> widestValues(const T& minimum, const T& maximum) const;

    virtual ~ValueDisplayFormatBase();

    /// The text with prefix and suffix. Exceptions of the converter pass through; an empty
    /// converter throws std::bad_function_call.
    QString fullTextFromValue(const T& value) const;
    /// Reads a text with or without prefix and suffix. An affix always counts as one, even where
    /// its letters could be digits: with the suffix "B", "1B" is 1 in base 16 too. A converter that
    /// returns no finite number, or no valid date, makes the reading fail; its exceptions pass
    /// through. `ok` may be null.
    T valueFromFullText(const QString& text, bool* ok) const;

    /// At first the identity.
    const ValueConverter& valueConverter() const { return m_valueConverter; }
    void setValueConverter(ValueConverter converter) { m_valueConverter = std::move(converter); }

protected:
    ValueDisplayFormatBase();
    ValueDisplayFormatBase(const ValueDisplayFormatBase& other);
    ValueDisplayFormatBase& operator=(const ValueDisplayFormatBase& other);

private:
    ValueConverter m_valueConverter;
};

#define GUIBASE_EXTERN_FORMAT(T) extern template class ValueDisplayFormatBase<T>;
GUIBASE_FOR_EACH_INPUT_TYPE(GUIBASE_EXTERN_FORMAT)
#undef GUIBASE_EXTERN_FORMAT
