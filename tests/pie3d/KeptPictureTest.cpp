// What a paint takes over from the one before it, against whole paints.

#include "PieWindow.h"

#include <random>

class PieKept : public PieWindow
{
protected:
    // The same picture with nothing kept: one of other colours and another font comes in between.
    Picture PlainShoot()
    {
        for (int i = 0; i < 2; ++i) {
            pie.m_crParentWindow ^= 1;
            pie.m_nLabelFontStyle ^= 1;
            pie.Invalidate();
            pie.UpdateWindow();
        }
        return Picture(pie.m_hWnd);
    }
    std::vector<float> DrawSweeps() const
    {
        std::vector<float> sweeps{pie.m_fDrawStartAngle};
        for (const auto& [key, element] : pie.m_mapElements)
            sweeps.push_back(element->fDrawSweep);
        return sweeps;
    }
    int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    PieColors::Argb AnyColor() { return 0xFF000000 | m_random(); }
    SPieElement* AnyElement()
    {
        return pie.m_nElements > 0 ? &Element(Below(pie.m_nElements)) : nullptr;
    }

    void ChangeElements()
    {
        switch (Below(8)) {
        case 0:
        case 1:
            Fill({1.0 + Below(9)});
            break;
        case 2:
            pie.RemoveItemByIndex(Below(12));
            break;
        case 3:
            pie.UpdateItemValue(AnyElement(), Below(20) - 2);
            break;
        case 4:
            pie.UpdateItemColor(AnyElement(), AnyColor());
            break;
        case 5:
            pie.UpdateItemLabel(AnyElement(), Name(Below(1000000)));
            break;
        case 6:
            pie.sortPiechartElements(Below(2));
            break;
        default:
            pie.SetPieElementGradientLightAll(static_cast<float>(Below(255)));
            break;
        }
    }
    void ChangeLooks()
    {
        switch (Below(9)) {
        case 0:
            pie.SetPieChartStyle(Below(3));
            break;
        case 1:
            pie.SetInclineAngle(static_cast<float>(Below(85)));
            break;
        case 2:
            pie.SetStartAngle(static_cast<float>(Below(360)));
            break;
        case 3:
            pie.SetDepth(static_cast<float>(Below(60)));
            break;
        case 4:
            pie.SetPieChartTitle(Name(Below(100)));
            break;
        case 5:
            pie.SetTitleFontName(Below(2) != 0 ? L"Arial" : L"Courier New");
            break;
        case 6:
            pie.SetLabelColor(AnyColor());
            break;
        case 7:
            pie.SetLabelFontName(Below(2) != 0 ? L"Arial" : L"Courier New");
            break;
        default:
            pie.SetBackgrndColor(AnyColor());
            break;
        }
    }
    void ChangeWindow()
    {
        switch (Below(5)) {
        case 0:
            pie.MoveWindow(0, 0, 200 + Below(200), 150 + Below(200));
            break;
        case 1:
            Click(Below(300), Below(300));
            break;
        case 2:
            Scroll(SB_LINEDOWN);
            break;
        case 3:
            pie.SetParentWindowColor(m_random() & 0xFFFFFF);
            break;
        default:
            pie.m_bShowPercent = !pie.m_bShowPercent;
            break;
        }
    }

    std::mt19937 m_random{33};
};

TEST_F(PieKept, PicturesOfRandomChangesAreThoseOfWholePaints)
{
    pie.MoveWindow(0, 0, 400, 300);
    Fill({1, 2, 3});
    for (int step = 0; step < 60; ++step) {
        const int kind = Below(10);
        kind < 5 ? ChangeElements() : kind < 8 ? ChangeLooks() : ChangeWindow();
        pie.Invalidate();
        const Picture kept = Shoot();
        const std::vector<float> sweeps = DrawSweeps();
        ASSERT_EQ(PlainShoot().CountDifferences(kept), 0) << step;
        ASSERT_EQ(DrawSweeps(), sweeps) << step;
    }
}

TEST_F(PieKept, ClicksAfterAnUnchangedPaintGoByTheProjectedAngles)
{
    Fill({1, 1, 1, 1, 1});
    pie.SetInclineAngle(70);
    Shoot();
    const std::vector<float> projected = DrawSweeps();
    pie.UpdateItemValue(&Element(0), 1); // the same value: angles on the circle until the next paint
    EXPECT_NE(DrawSweeps(), projected);
    Shoot();
    EXPECT_EQ(DrawSweeps(), projected);
}

TEST_F(PieKept, WallsOfEqualElementsThatChangePlacesAreClickedInTheirNewOnes)
{
    pie.InsertItem(L"a", L"", 1, Red); // the front half, with all of the wall
    pie.InsertItem(L"b", L"", 1, Red);
    pie.SetInclineAngle(60);
    Shoot();
    EXPECT_EQ(ClickedName(431, 390), L"a");
    Click(1, 1);
    Shoot();
    pie.sortPiechartElements(1);
    Shoot();
    EXPECT_EQ(ClickedName(431, 390), L"b");
    Click(1, 1);
    Shoot();
    pie.RemoveItem(L"b");
    pie.InsertItem(L"c", L"", 1, Red);
    pie.sortPiechartElements(0);
    Shoot();
    EXPECT_EQ(ClickedName(431, 390), L"c");
}

TEST_F(PieKept, SharesOfInsertionsAreComputedByWhateverComesNextAndTheBarAtOnce)
{
    const auto insert = [&](int count) {
        for (int i = 0; i < count; ++i)
            pie.InsertItem(Name(pie.m_nElements), L"label", 1, Red);
    };
    const auto barShows = [&] { return (pie.m_wndScrollBar.GetStyle() & WS_VISIBLE) != 0; };
    insert(10);
    EXPECT_FALSE(barShows());
    insert(2);
    EXPECT_TRUE(barShows());
    pie.UpdateWindow();
    EXPECT_EQ(pie.m_wndScrollBar.GetScrollLimit(), 29);
    EXPECT_EQ(Element(0).fPercent, 1 / 12.0f);

    insert(8);
    Scroll(SB_PAGEDOWN);
    EXPECT_EQ(pie.m_nFirstLabel, 8);
    EXPECT_EQ(pie.m_wndScrollBar.GetScrollPos(), 373);
    insert(1);
    Click(400, 335);
    EXPECT_EQ(Element(0).fSweep, 1 / 21.0f * 360.0f);
    insert(1);
    pie.UpdateItemValue(&Element(0), -30); // a total below nothing leaves the shares before it
    EXPECT_EQ(Element(0).fPercent, 1 / 22.0f);
    pie.RemoveAllItem();
    EXPECT_EQ(pie.m_nLabelsHeight, 22 * 43 - 18);
}

TEST_F(PieKept, NamesAreFoundAfterInsertionsRemovalsAndSorts)
{
    for (int step = 0; step < 300; ++step) {
        const CString name = Name(Below(30));
        if (Below(3) != 0) {
            pie.InsertItem(name, L"", 1 + Below(5), Red);
        } else {
            pie.RemoveItem(name);
        }
        if (step % 20 == 0)
            pie.sortPiechartElements(1);
        for (int number = 0; number < 30; ++number) {
            const SPieElement* walked = nullptr;
            for (const auto& [key, element] : pie.m_mapElements)
                walked = element->strName == Name(number) ? element.get() : walked;
            ASSERT_EQ(pie.GetPieChartItem(Name(number)), walked) << step;
        }
    }
}
