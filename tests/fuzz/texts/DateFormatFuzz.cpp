// Date formats: every text fits the buffer that it is made for.

#include "Input.h"

#include "objects/DateFormat.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    FuzzedDataProvider input(pData, nSize);
    DateFormat::TDateFields fields;
    fields.nYear = input.ConsumeIntegralInRange(100, 9999);
    fields.nMonth = input.ConsumeIntegralInRange(1, 12);
    fields.nDay = input.ConsumeIntegralInRange(1, 31);
    fields.nHour = input.ConsumeIntegralInRange(0, 23);
    fields.nMinute = input.ConsumeIntegralInRange(0, 59);
    fields.nSecond = input.ConsumeIntegralInRange(0, 59);
    fields.nWeekDay = input.ConsumeIntegralInRange(0, 6);
    fields.nYearDay = input.ConsumeIntegralInRange(1, 366);
    const std::u16string text = DateFormat::FormatDate(RestOf(input), fields);
    Demand(text.size() < DateFormat::BufferSize);
    return 0;
}
