// Number formats: no result is longer than promised, whatever the format and the values.

#include "Input.h"

#include "base/NumberFormat.h"

#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    FuzzedDataProvider input(pData, nSize);
    const double value = input.ConsumeFloatingPoint<double>();
    const auto number = input.ConsumeIntegral<std::int64_t>();
    const std::size_t sizes[] = {1, 2, 4, 8};
    const std::size_t nBytes = input.PickValueInArray(sizes);
    const auto nLongest = input.ConsumeIntegralInRange<std::size_t>(0, 300);
    const std::u16string format = RestOf(input);

    Demand(NumberFormat::FormatNumber(format, value).size() <= format.size() + 512);
    const std::u16string shortened = NumberFormat::Shortened(format, nLongest);
    Demand(NumberFormat::FormatNumber(format, value).substr(0, nLongest) ==
           NumberFormat::FormatNumber(shortened, value).substr(0, nLongest));
    const std::vector<NumberFormat::TArgument> arguments = {
        NumberFormat::TArgument(number, nBytes), NumberFormat::TArgument(value),
        NumberFormat::TArgument(format.substr(0, 20))};
    (void)NumberFormat::FormatText(format, arguments);
    return 0;
}
