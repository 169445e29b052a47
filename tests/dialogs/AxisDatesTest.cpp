// The page of a date-time axis.

#include "dialogs/AxisPageHost.h"

namespace
{
class AxisDates : public AxisPageHost
{
};
} // namespace

TEST_F(AxisDates, AStepIsSplitIntoTheLargestUnitThatItIsAMultipleOf)
{
    const struct {
        const wchar_t* count;
        int unit;
        const wchar_t* shown;
        int shownUnit;
    } rows[] = {{L"3", 3, L"3", 3},      {L"1", 3, L"60", 2}, // one day isn't above a day
                {L"2", 2, L"5", 2},                           // 7200 seconds
                {L"60", 0, L"60", 0},    {L"120", 0, L"2", 1},  {L"1", 1, L"60", 0},
                {L"1440", 0, L"24", 1},  {L"2880", 0, L"2", 2}, {L"90", 0, L"90", 0},
                {L"604800", 0, L"7", 3}, {L"1", 0, L"1", 0}};
    for (const auto& row : rows) {
        ShowDates(row.count, row.unit);
        OpenAxis({[&] {
            EXPECT_EQ(Shows(Id::timeStep), row.shown) << Narrow(row.count) << " of " << row.unit;
            EXPECT_EQ(Row(Id::timeUnit), row.shownUnit) << Narrow(row.count) << " of " << row.unit;
        }});
    }
}

TEST_F(AxisDates, TheBoundsAreMadeOfDateAndTime)
{
    ShowDates(L"1", 2);
    EXPECT_EQ(Got(&ISGraphAxis::GetDateTime), 1);
    SYSTEMTIME low = {2020, 3, 0, 1, 6, 30, 15, 0}, high = {2020, 3, 0, 2, 18, 0, 45, 0};
    double fLow = 0, fHigh = 0;
    ::SystemTimeToVariantTime(&low, &fLow);
    ::SystemTimeToVariantTime(&high, &fHigh);
    ExpectBounds(fLow, fHigh);
    OpenAxis({[&] {
        for (const int id : {Id::minDate, Id::minTime}) {
            const SYSTEMTIME time = TimeOf(id);
            EXPECT_EQ(time.wYear, 2020);
            EXPECT_EQ(time.wDay, 1);
            EXPECT_EQ(time.wHour, 6);
            EXPECT_EQ(time.wMinute, 30);
            EXPECT_EQ(time.wSecond, 15);
        }
        EXPECT_EQ(TimeOf(Id::maxDate).wDay, 2);
        EXPECT_EQ(TimeOf(Id::maxTime).wSecond, 45);
    }});
}

TEST_F(AxisDates, ALineFeedInTheFormatIsTypedAsTwoCharacters)
{
    ShowDates(L"1", 2);
    Apply([] { Enter(Id::dateFormat, L"%d.%m.\\n%H:%M"); });
    EXPECT_EQ(Format(), L"%d.%m.\n%H:%M");
    OpenAxis({[&] { EXPECT_EQ(Shows(Id::dateFormat), L"%d.%m.\\n%H:%M"); }});
}

TEST_F(AxisDates, APlainAxisShowsTheCurrentTime)
{
    OpenAxis({[&] {
        SYSTEMTIME now;
        ::GetLocalTime(&now);
        for (const int id : {Id::minDate, Id::minTime, Id::maxDate, Id::maxTime})
            EXPECT_EQ(TimeOf(id).wYear, now.wYear) << id;
    }});
}

TEST_F(AxisDates, DatesUpsideDownLeaveTheRange)
{
    ShowDates(L"1", 2);
    const RECT inner = Inner();
    const double before = YAt(inner.bottom);
    Apply([] { SetTime(Id::minDate, {2021, 3, 0, 1, 0, 0, 0, 0}); });
    EXPECT_EQ(YAt(inner.bottom), before);
}
