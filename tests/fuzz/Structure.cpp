#include "Structure.h"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace
{
template <class Value> Value At(const std::string& file, std::size_t nPlace)
{
    Value value{};
    std::memcpy(&value, file.data() + nPlace, sizeof value);
    return value;
}

bool IsTag(const std::string& file, std::size_t nPlace)
{
    constexpr std::uint16_t newClass = 0xFFFF, known = 0x8000, mostKnown = 0x8010;
    const auto tag = At<std::uint16_t>(file, nPlace);
    if (tag == newClass)
        return file.compare(nPlace + 6, 3, "CXG") == 0; // after a schema and the name's length
    return tag > known && tag < mostKnown;
}

bool IsOrdinary(double value)
{
    return std::fabs(value) >= 1e-6 && std::fabs(value) <= 1e9;
}
} // namespace

TStructure FindStructure(const std::string& file)
{
    constexpr std::size_t longest = sizeof(double);
    constexpr std::uint32_t mostCounted = 2000;
    TStructure found;
    for (std::size_t i = 0; i + longest <= file.size(); ++i) {
        if (file.compare(i, 3, "\xFF\xFE\xFF") == 0)
            found.texts.push_back(i);
        else if (IsTag(file, i))
            found.tags.push_back(i);
        else if (At<std::uint32_t>(file, i) - 1 < mostCounted)
            found.counts.push_back(i);
        else if (IsOrdinary(At<double>(file, i)))
            found.doubles.push_back(i);
    }
    return found;
}
