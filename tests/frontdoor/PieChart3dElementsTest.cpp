// The elements of the 3D pie, as a host makes and changes them.

#include "PieChart3dHost.h"

#include <cmath>
#include <limits>

class PieChart3dElements : public PieChart3dTest
{
protected:
    void SetUp() override
    {
        PieChart3dTest::SetUp();
        Create();
    }
    [[nodiscard]] float Light(const wchar_t* name) const
    {
        float amount = 0;
        pie->GetElementGrLight(Item(name), &amount);
        return amount;
    }
    [[nodiscard]] float Dark(const wchar_t* name) const
    {
        float amount = 0;
        pie->GetElementGrDark(Item(name), &amount);
        return amount;
    }
    // Which of two slices has the point that lies this many degrees from the right.
    [[nodiscard]] std::wstring At(double degrees) const
    {
        const double angle = degrees * 3.14159265358979 / 180;
        return Clicked(static_cast<int>(265 + 150 * std::cos(angle)),
                       static_cast<int>(335 + 150 * std::sin(angle)));
    }
};

TEST_F(PieChart3dElements, EmptyAndRepeatedNamesAndValuesNotAboveZeroAreRefused)
{
    Fill({1, 3});
    const Picture before = Shoot();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(pie->InsertItem(Text(L""), Text(L"x"), 1, Red), S_OK);
    EXPECT_EQ(pie->InsertItem(Text(L"e1"), Text(L"x"), 9, Blue), S_OK);
    for (const double value : {0.0, -1.0, std::nan(""), infinity, -infinity}) {
        EXPECT_EQ(pie->InsertItem(Text(L"new"), Text(L"x"), value, Red), S_OK);
        EXPECT_EQ(Item(L"new"), nullptr) << value;
    }
    EXPECT_FALSE(NeedsPaint());
    EXPECT_EQ(Redrawn().CountDifferences(before), 0);
}

TEST_F(PieChart3dElements, SharesOfOneAndThreeAreAQuarterAndTheRest)
{
    Fill({1, 3});
    EXPECT_EQ(At(2), L"e0");
    EXPECT_EQ(At(88), L"e0");
    EXPECT_EQ(At(92), L"e1");
    EXPECT_EQ(At(358), L"e1");
}

TEST_F(PieChart3dElements, AnUpdatedValueMovesTheBordersAndZeroDoesNot)
{
    Fill({1, 3});
    EXPECT_EQ(pie->UpdateItemValue(Item(L"e0"), 0.0), S_OK);
    EXPECT_EQ(At(92), L"e1");
    EXPECT_EQ(pie->UpdateItemValue(Item(L"e0"), 3.0), S_OK);
    EXPECT_EQ(At(178), L"e0");
    EXPECT_EQ(At(182), L"e1");
    EXPECT_EQ(pie->UpdateItemValue(Item(L"e0"), std::nan("")), S_OK);
    EXPECT_EQ(At(178), L"e0");
}

TEST_F(PieChart3dElements, AnUpdatedColorArrivesWithRedAndBlueInTheirPlaces)
{
    Fill({1});
    Plain();
    EXPECT_EQ(pie->UpdateItemColor(Item(L"e0"), RGB(10, 20, 30)), S_OK);
    EXPECT_EQ(Shoot().At(570, 335), RGB(10, 20, 30));
    pie->SetPieElementGradientLight(Item(L"e0"), 0);
    pie->SetPieElementGradientDark(Item(L"e0"), 0);
    EXPECT_EQ(Shoot().At(400, 400), RGB(10, 20, 30));
}

TEST_F(PieChart3dElements, GradientAmountsStartAt120And10AndCanBeSetApart)
{
    Fill({1, 2});
    EXPECT_EQ(Light(L"e0"), 120.0f);
    EXPECT_EQ(Dark(L"e0"), 10.0f);
    EXPECT_EQ(pie->SetPieElementGradientLight(Item(L"e0"), 50), S_OK);
    EXPECT_EQ(pie->SetPieElementGradientDark(Item(L"e0"), 60), S_OK);
    EXPECT_EQ(Light(L"e0"), 50.0f);
    EXPECT_EQ(Dark(L"e0"), 60.0f);
    EXPECT_EQ(Light(L"e1"), 120.0f);
    EXPECT_EQ(Dark(L"e1"), 10.0f);
}

TEST_F(PieChart3dElements, TheLightOfAllChangesTheColorsButNotTheAmounts)
{
    Fill({1});
    Plain();
    EXPECT_EQ(Shoot().At(265, 560), Red);
    EXPECT_EQ(pie->SetPieElementGradientLightAll(255), S_OK);
    EXPECT_GT(GetBValue(Shoot().At(265, 560)), 225); // light at the bottom
    EXPECT_EQ(Light(L"e0"), 120.0f);
    EXPECT_EQ(pie->SetPieElementGradientDarkAll(255), S_OK);
    EXPECT_LT(GetRValue(Shoot().At(265, 110)), 30); // dark at the top
    EXPECT_EQ(Dark(L"e0"), 255.0f);
}

TEST_F(PieChart3dElements, SortingTakesTheLaterOfEqualsFirst)
{
    Fill({2, 5, 5});
    Plain();
    EXPECT_EQ(Marks(), "rgb");
    EXPECT_EQ(pie->sortPiechartElements(1), S_OK);
    EXPECT_EQ(Marks(), "bgr");
    EXPECT_EQ(At(10), L"e2");
    EXPECT_EQ(pie->sortPiechartElements(0), S_OK); // of the order of this moment
    EXPECT_EQ(Marks(), "rgb");
    EXPECT_EQ(pie->sortPiechartElements(0), S_OK);
    EXPECT_EQ(Marks(), "rbg");
    EXPECT_EQ(pie->SortToOrginalOrder(), S_OK);
    EXPECT_EQ(Marks(), "rgb");
    EXPECT_EQ(pie->sortPiechartElements(-7), S_OK); // anything but 0 descends
    EXPECT_EQ(Marks(), "bgr");
}

TEST_F(PieChart3dElements, RemovalByIndexGoesByPositionAndIdsByInsertion)
{
    Fill({1, 2, 3});
    EXPECT_EQ(pie->RemoveItemByIndex(0), S_OK);
    EXPECT_EQ(Item(L"e0"), nullptr);
    EXPECT_EQ(Id(L"e1"), 1);
    EXPECT_EQ(Id(L"e2"), 2);
    EXPECT_EQ(pie->RemoveItemByIndex(0), S_OK);
    EXPECT_EQ(Item(L"e1"), nullptr);
    EXPECT_NE(Item(L"e2"), nullptr);
    for (const int index : {-1, 1, 2147483647, -2147483647 - 1})
        EXPECT_EQ(pie->RemoveItemByIndex(index), S_OK);
    EXPECT_NE(Item(L"e2"), nullptr);
}

TEST_F(PieChart3dElements, RemovalByNameGivesTheRestTheWholePie)
{
    Fill({1, 3});
    Plain();
    EXPECT_EQ(pie->RemoveItem(Text(L"e1")), S_OK);
    EXPECT_EQ(pie->RemoveItem(Text(L"e1")), S_OK);
    for (const int degrees : {45, 135, 225, 315})
        EXPECT_EQ(At(degrees), L"e0");
    EXPECT_EQ(Marks(), "r");
}

TEST_F(PieChart3dElements, ItemsStayGoodThroughSortsAndOtherRemovals)
{
    Fill({1, 2, 3});
    VARIANT* item = Item(L"e1");
    pie->sortPiechartElements(1);
    pie->RemoveItem(Text(L"e2"));
    EXPECT_EQ(Item(L"e1"), item);
    EXPECT_EQ(NameOf(item), L"e1");
}

TEST_F(PieChart3dElements, RemovingAllLeavesTheOldPictureUntilSomethingRepaints)
{
    Fill({1, 3});
    const Picture before = Shoot();
    EXPECT_EQ(pie->RemoveAllItem(), S_OK);
    EXPECT_EQ(Item(L"e0"), nullptr);
    HostWindow::Pump();
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
    EXPECT_GT(Redrawn().CountDifferences(before), 10000);
    Fill({1});
    EXPECT_EQ(Id(L"e2"), 0);
}

TEST_F(PieChart3dElements, AHugeValueThatGoesTakesTheTotalAlong)
{
    const double largest = std::numeric_limits<double>::max();
    Fill({largest});
    pie->InsertItem(Text(L"too much"), Text(L""), largest, Green);
    EXPECT_EQ(Item(L"too much"), nullptr);
    Fill({1});
    EXPECT_EQ(At(200), L"e0");
    pie->RemoveItem(Text(L"e0"));
    EXPECT_EQ(At(200), L""); // with a total of nothing the other has no share
    pie->UpdateItemValue(Item(L"e1"), 2);
    EXPECT_EQ(At(200), L"e1");
}

TEST_F(PieChart3dElements, AThousandElementsAreInsertedFoundAndSorted)
{
    for (int i = 0; i < 1000; ++i)
        Fill({1.0 + i % 10});
    EXPECT_EQ(Id(L"e999"), 999);
    EXPECT_EQ(pie->sortPiechartElements(1), S_OK);
    Shoot();
    EXPECT_EQ(pie->RemoveItemByIndex(0), S_OK); // the last of the largest
    EXPECT_EQ(Item(L"e999"), nullptr);
    EXPECT_NE(Item(L"e989"), nullptr);
}
