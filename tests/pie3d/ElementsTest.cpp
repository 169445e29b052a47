// The elements: insertion, removal, orders, shares and colours.

#include "PieWindow.h"

#include <cmath>
#include <limits>

using PieElements = PieWindow;

namespace
{
constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Largest = std::numeric_limits<double>::max();
} // namespace

TEST_F(PieElements, InsertionRefusesEmptyAndRepeatedNamesAndValuesThatAreNotAboveZero)
{
    Fill({2});
    EXPECT_EQ(pie.InsertItem(L"", L"x", 1, Red), nullptr);
    EXPECT_EQ(pie.InsertItem(L"e0", L"a longer label", 1, Red), nullptr);
    for (const double value : {0.0, -1.0, NotANumber, Infinite, -Infinite})
        EXPECT_EQ(pie.InsertItem(L"new", L"a longer label", value, Red), nullptr) << value;
    EXPECT_EQ(pie.m_nElements, 1);
    EXPECT_EQ(pie.m_dTotal, 2);
    EXPECT_EQ(pie.m_strLongestLabel, L"label");
    EXPECT_EQ(Order(), L"e0");
}

TEST_F(PieElements, NamesDifferByCase)
{
    EXPECT_NE(pie.InsertItem(L"name", L"", 1, Red), nullptr);
    EXPECT_NE(pie.InsertItem(L"Name", L"", 1, Red), nullptr);
    EXPECT_EQ(pie.GetElementID(L"Name"), 1);
    EXPECT_EQ(pie.GetElementID(L"NAME"), -1);
    EXPECT_EQ(pie.GetPieChartItem(L"NAME"), nullptr);
}

TEST_F(PieElements, HugeValuesAreTakenWhileTheTotalStaysFinite)
{
    ASSERT_NE(pie.InsertItem(L"a", L"", Largest, Red), nullptr);
    EXPECT_EQ(pie.InsertItem(L"b", L"", Largest, Red), nullptr);
    ASSERT_NE(pie.InsertItem(L"c", L"", 1, Red), nullptr);
    EXPECT_EQ(pie.m_dTotal, Largest);
}

TEST_F(PieElements, TheTotalLosesAndGainsValuesAndIsNotSummedAfresh)
{
    Fill({1e17, 1});
    EXPECT_EQ(pie.m_dTotal, 1e17); // the 1 is below its last place
    EXPECT_EQ(pie.UpdateItemValue(&Element(0), 2e17), 1);
    EXPECT_EQ(pie.m_dTotal, 2e17);
    EXPECT_EQ(pie.RemoveItem(L"e0"), 1);
    EXPECT_EQ(pie.m_dTotal, 0);                                   // a sum of what is left would be 1
    EXPECT_EQ(Element(0).fPercent, static_cast<float>(1 / 2e17)); // no total, no new shares
    pie.InsertItem(L"new", L"", 3, Red);
    EXPECT_EQ(pie.m_dTotal, 3);
}

// A decision of ours: a sum that leaves the range of numbers is refused everywhere.
TEST_F(PieElements, ARemovalThatWouldLeaveNoFiniteTotalIsRefused)
{
    Fill({Largest});
    EXPECT_EQ(pie.UpdateItemValue(&Element(0), -Largest), 1);
    Fill({Largest, Largest});
    EXPECT_EQ(pie.m_dTotal, Largest);
    EXPECT_EQ(pie.RemoveItem(L"e0"), 0);
    EXPECT_EQ(pie.m_nElements, 3);
    EXPECT_EQ(pie.m_dTotal, Largest);
    EXPECT_EQ(Order(), L"e0 e1 e2");
}

TEST_F(PieElements, SharesAndSweepsAreThoseOfTheTotal)
{
    Fill({1, 3});
    EXPECT_EQ(Element(0).fPercent, 0.25f);
    EXPECT_EQ(Element(1).fPercent, 0.75f);
    EXPECT_EQ(Element(0).fSweep, 90.0f);
    EXPECT_EQ(Element(1).fSweep, 270.0f);
    EXPECT_EQ(Element(1).fDrawSweep, 270.0f);
}

TEST_F(PieElements, AnInsertedElementHasItsColorsAmountsAndOrder)
{
    const SPieElement* element = pie.InsertItem(L"a", L"text", 1, 0x006496C8);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->crColor, 0x006496C8u);
    EXPECT_EQ(element->crLight, 0xFFACC7E1u);
    EXPECT_EQ(element->crDark, 0xFF6090C0u);
    EXPECT_EQ(pie.GetElementGrLight(element), 120.0f);
    EXPECT_EQ(pie.GetElementGrDark(element), 10.0f);
    EXPECT_EQ(pie.GetElementName(element), L"a");
    EXPECT_EQ(element->nOrder, 0);
    EXPECT_FALSE(element->bSelected);
    EXPECT_TRUE(element->pPath);
}

TEST_F(PieElements, TheLongestLabelIsTheFirstOfEquals)
{
    pie.InsertItem(L"a", L"four", 1, Red);
    pie.InsertItem(L"b", L"also", 1, Red);
    EXPECT_EQ(pie.m_strLongestLabel, L"four");
    pie.UpdateItemLabel(pie.GetPieChartItem(L"a"), L"x");
    EXPECT_EQ(pie.m_strLongestLabel, L"also");
    pie.RemoveItem(L"b");
    EXPECT_EQ(pie.m_strLongestLabel, L"x");
}

TEST_F(PieElements, UpdatingAValueToZeroKeepsTheOldOne)
{
    Fill({1, 3});
    EXPECT_EQ(pie.UpdateItemValue(&Element(0), 0.0), 0);
    EXPECT_EQ(Element(0).dValue, 1);
    for (const double value : {NotANumber, Infinite, Largest * 2})
        EXPECT_EQ(pie.UpdateItemValue(&Element(0), value), 0) << value;
    EXPECT_EQ(pie.m_dTotal, 4);
    EXPECT_EQ(Element(0).fPercent, 0.25f);
}

TEST_F(PieElements, UpdatingAValueMovesTheTotalAndMayBeNegative)
{
    Fill({1, 3});
    EXPECT_EQ(pie.UpdateItemValue(&Element(0), 9), 1);
    EXPECT_EQ(pie.m_dTotal, 12);
    EXPECT_EQ(Element(0).fPercent, 0.75f);
    EXPECT_EQ(pie.UpdateItemValue(&Element(0), -1), 1);
    EXPECT_EQ(pie.m_dTotal, 2);
    EXPECT_EQ(Element(0).fPercent, -0.5f);
    EXPECT_EQ(Element(1).fPercent, 1.5f);
}

TEST_F(PieElements, ATotalThatIsNotAboveZeroLeavesTheShares)
{
    Fill({1, 3});
    EXPECT_EQ(pie.UpdateItemValue(&Element(0), -3), 1);
    EXPECT_EQ(pie.m_dTotal, 0);
    EXPECT_EQ(Element(0).fPercent, 0.25f);
    EXPECT_EQ(Element(1).fPercent, 0.75f);
}

TEST_F(PieElements, NullItemsAreRefused)
{
    EXPECT_EQ(pie.UpdateItemLabel(nullptr, L"x"), 0);
    EXPECT_EQ(pie.UpdateItemValue(nullptr, 1), 0);
    EXPECT_EQ(pie.UpdateItemColor(nullptr, Red), 0);
    EXPECT_EQ(pie.SetPieElementGradientLight(nullptr, 1), 0);
    EXPECT_EQ(pie.SetPieElementGradientDark(nullptr, 1), 0);
    EXPECT_EQ(pie.GetElementGrLight(nullptr), -1.0f);
    EXPECT_EQ(pie.GetElementGrDark(nullptr), -1.0f);
}

TEST_F(PieElements, AColorIsShadedByTheElementsOwnAmounts)
{
    Fill({1});
    EXPECT_EQ(pie.SetPieElementGradientLight(&Element(0), 0), 1);
    EXPECT_EQ(pie.SetPieElementGradientDark(&Element(0), 255), 1);
    EXPECT_EQ(pie.UpdateItemColor(&Element(0), 0xFF6496C8), 1);
    EXPECT_EQ(Element(0).crLight, 0xFF6496C8u);
    EXPECT_EQ(Element(0).crDark, 0xFF000000u);
    EXPECT_EQ(pie.SetPieElementGradientLight(&Element(0), std::nanf("")), 0);
    EXPECT_EQ(pie.GetElementGrLight(&Element(0)), 0.0f);
}

TEST_F(PieElements, TheLightOfAllLeavesTheAmountsAndTheDarkOfAllSetsThem)
{
    Fill({1, 2});
    pie.UpdateItemColor(&Element(1), 0xFF6496C8);
    EXPECT_EQ(pie.SetPieElementGradientLightAll(255), 1);
    EXPECT_EQ(Element(1).crLight, 0xFFFFFFFFu);
    EXPECT_EQ(pie.GetElementGrLight(&Element(1)), 120.0f);
    EXPECT_EQ(pie.SetPieElementGradientDarkAll(255), 1);
    EXPECT_EQ(Element(1).crDark, 0xFF000000u);
    EXPECT_EQ(pie.GetElementGrDark(&Element(1)), 255.0f);
    EXPECT_EQ(pie.SetPieElementGradientLightAll(INFINITY), 0);
    EXPECT_EQ(pie.SetPieElementGradientDarkAll(INFINITY), 0);
    EXPECT_EQ(pie.GetElementGrDark(&Element(1)), 255.0f);
}

TEST_F(PieElements, SortingTakesTheLaterOfEqualsFirstAndTheOriginalOrderComesBack)
{
    Fill({2, 5, 5});
    pie.sortPiechartElements(1);
    EXPECT_EQ(Order(), L"e2 e1 e0");
    EXPECT_EQ(pie.m_mapElements.begin()->first, 0);
    EXPECT_EQ(pie.m_mapElements.rbegin()->first, 2);
    pie.SortToOrginalOrder();
    EXPECT_EQ(Order(), L"e0 e1 e2");
    pie.sortPiechartElements(0);
    EXPECT_EQ(Order(), L"e0 e2 e1");
    EXPECT_EQ(Element(0).fSweep, 60.0f);
}

TEST_F(PieElements, RemovalKeepsTheNumbersOfInsertionAndRenumbersTheKeys)
{
    Fill({1, 2, 3});
    EXPECT_EQ(pie.RemoveItemByIndex(0), 1);
    EXPECT_EQ(pie.GetElementID(L"e0"), -1);
    EXPECT_EQ(pie.GetElementID(L"e1"), 1);
    EXPECT_EQ(pie.GetElementID(L"e2"), 2);
    EXPECT_EQ(pie.m_dTotal, 5);
    EXPECT_EQ(pie.RemoveItemByIndex(0), 1);
    EXPECT_EQ(Order(), L"e2");
    EXPECT_EQ(Element(0).fSweep, 360.0f);
    EXPECT_EQ(pie.RemoveItemByIndex(1), 0);
    EXPECT_EQ(pie.RemoveItemByIndex(-1), 0);
    EXPECT_EQ(pie.RemoveItem(L"e1"), 0);
}

TEST_F(PieElements, AnInsertionAfterARemovalMayRepeatANumber)
{
    Fill({1, 2});
    pie.RemoveItem(L"e0");
    pie.InsertItem(L"new", L"", 1, Red);
    EXPECT_EQ(pie.GetElementID(L"e1"), 1);
    EXPECT_EQ(pie.GetElementID(L"new"), 1);
    pie.SortToOrginalOrder();
    EXPECT_EQ(Order(), L"new e1");
}

TEST_F(PieElements, RemovingAllLeavesThePictureTheListAndTheLongestLabel)
{
    Fill({1, 2});
    const Picture before = Shoot();
    pie.m_nFirstLabel = 1;
    pie.RemoveAllItem();
    EXPECT_TRUE(pie.m_mapElements.empty());
    EXPECT_EQ(pie.m_nElements, 0);
    EXPECT_EQ(pie.m_dTotal, 0);
    EXPECT_EQ(pie.m_strLongestLabel, L"label");
    EXPECT_EQ(pie.m_nFirstLabel, 1);
    EXPECT_FALSE(NeedsPaint());
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
    pie.Invalidate();
    EXPECT_GT(Shoot().CountDifferences(before), 0);
}

TEST_F(PieElements, SelectionIsTheFirstInOrderOfDrawing)
{
    Fill({1, 2, 3});
    EXPECT_EQ(pie.GetSelectedElement(), nullptr);
    Element(1).bSelected = TRUE;
    Element(2).bSelected = TRUE;
    EXPECT_EQ(pie.GetSelectedElement(), &Element(1));
    pie.sortPiechartElements(1);
    EXPECT_EQ(pie.GetElementName(pie.GetSelectedElement()), L"e2");
}

TEST_F(PieElements, EveryChangeButTheNamedOnesAsksForAPaint)
{
    Fill({1, 2});
    const auto repaints = [&](auto&& change) {
        ::ValidateRect(pie.m_hWnd, nullptr);
        change();
        return NeedsPaint();
    };
    EXPECT_TRUE(repaints([&] { pie.UpdateItemLabel(&Element(0), L"x"); }));
    EXPECT_TRUE(repaints([&] { pie.UpdateItemValue(&Element(0), 5); }));
    EXPECT_TRUE(repaints([&] { pie.UpdateItemColor(&Element(0), Blue); }));
    EXPECT_TRUE(repaints([&] { pie.SetPieElementGradientLightAll(1); }));
    EXPECT_TRUE(repaints([&] { pie.SetPieElementGradientDarkAll(1); }));
    EXPECT_TRUE(repaints([&] { pie.sortPiechartElements(1); }));
    EXPECT_TRUE(repaints([&] { pie.SortToOrginalOrder(); }));
    EXPECT_TRUE(repaints([&] { pie.RemoveItem(L"e0"); }));
    EXPECT_TRUE(repaints([&] { Click(1, 1); }));
    EXPECT_FALSE(repaints([&] { pie.UpdateItemValue(&Element(0), 0); }));
    EXPECT_FALSE(repaints([&] { pie.InsertItem(L"", L"", 1, Red); }));
    EXPECT_FALSE(repaints([&] { pie.SetParentWindowColor(0); }));
    EXPECT_FALSE(repaints([&] { pie.RemoveAllItem(); }));
}
