// SPDX-License-Identifier: MIT
// One libFuzzer program for each reader.
#include "readers.h"

#include <cstddef>
#include <cstdint>

extern "C" const char* __asan_default_options(); // NOLINT(bugprone-reserved-identifier)
extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// The rooms whose readers are not exported are in the program as well as in the library.
extern "C" const char* __asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "detect_odr_violation=0";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::prepare();
    Fuzz::expect(Fuzz::findReader(FUZZ_READER) != nullptr, "There is no reader " FUZZ_READER);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Fuzz::Reader* const reader = Fuzz::findReader(FUZZ_READER);
    reader->read(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
