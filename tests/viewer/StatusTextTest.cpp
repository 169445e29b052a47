#include "viewer/StatusText.h"

#include "viewer/CellValue.h"

#include <gtest/gtest.h>

#include <limits>

using Viewer::CursorText;
using Viewer::DateText;
using Viewer::NumberText;

namespace
{

TEST(StatusText, DatesHaveATimeOnlyWhereThereIsOne)
{
    EXPECT_EQ(u"2012-01-31", DateText(*Viewer::ParseDate(u"2012-01-31")));
    EXPECT_EQ(u"2012-01-31 06:30:15", DateText(*Viewer::ParseDate(u"2012-01-31T06:30:15")));
    EXPECT_EQ(u"1899-12-29 06:00:00", DateText(-1.25));
    EXPECT_EQ(u"1958-03-01", DateText(*Viewer::ParseDate(u"1958-03-01")));
}

TEST(StatusText, WhatIsNoDateIsANumber)
{
    EXPECT_EQ(u"1e+300", DateText(1e300));
    EXPECT_EQ(u"-1e+300", DateText(-1e300));
    EXPECT_EQ(NumberText(std::numeric_limits<double>::quiet_NaN()),
              DateText(std::numeric_limits<double>::quiet_NaN()));
}

TEST(StatusText, NumbersHaveSevenDigitsAtMost)
{
    EXPECT_EQ(u"315.7", NumberText(315.70));
    EXPECT_EQ(u"0.3333333", NumberText(1.0 / 3));
    EXPECT_EQ(u"1.797693e+308", NumberText(std::numeric_limits<double>::max()));
}

TEST(StatusText, AReadingNamesItsCurve)
{
    EXPECT_EQ(u"CO2: 1958-03-01, 315.7",
              CursorText({u"CO2", *Viewer::ParseDate(u"1958-03-01"), 315.7, true, false}));
}

TEST(StatusText, EveryModeHasANameAndAHint)
{
    for (const int operation : {0, 1, 3, 4, 7, 8}) {
        EXPECT_NE(u"?", Viewer::OperationName(operation));
        EXPECT_FALSE(Viewer::OperationHint(operation).empty());
    }
    EXPECT_EQ(u"?", Viewer::OperationName(2));
}

} // namespace
