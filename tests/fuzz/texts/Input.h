#pragma once
// What a fuzzer hands over, as values and a text.

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdlib>
#include <cstring>
#include <string>

// All that is left, two bytes a unit.
[[nodiscard]] inline std::u16string RestOf(FuzzedDataProvider& input)
{
    const std::string bytes = input.ConsumeRemainingBytesAsString();
    std::u16string text(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    return text;
}

// A promise of the header that doesn't hold is a crash like any other.
inline void Demand(bool bHolds)
{
    if (!bHolds)
        std::abort();
}
