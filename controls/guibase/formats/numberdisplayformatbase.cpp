// SPDX-License-Identifier: MIT
#include "numberdisplayformatbase.h"

#include <string_view>

template <typename T>
NumberDisplayFormatBase<T>::NumberDisplayFormatBase() = default;

template <typename T>
NumberDisplayFormatBase<T>::NumberDisplayFormatBase(const NumberDisplayFormatBase& other) = default;

template <typename T>
NumberDisplayFormatBase<T>&
NumberDisplayFormatBase<T>::operator=(const NumberDisplayFormatBase& other) = default;

template <typename T>
NumberDisplayFormatBase<T>::~NumberDisplayFormatBase() = default;

template <typename T>
void NumberDisplayFormatBase<T>::setFormat(char format)
{
    if (std::string_view("eEfgG").find(format) != std::string_view::npos)
        m_format = format;
}

#define INSTANTIATE(T) template class NumberDisplayFormatBase<T>;
GUIBASE_FOR_EACH_INPUT_NUMBER(INSTANTIATE)
#undef INSTANTIATE
