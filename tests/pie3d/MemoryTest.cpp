// What the chart is when memory has run out in the middle of an operation.

#include "PieWindow.h"
#include "support/FailingMemory.h"
#include "support/ImportSlot.h"

extern "C" {
extern decltype(&Gdiplus::DllExports::GdipBitmapLockBits) __imp_GdipBitmapLockBits;
}

namespace
{

Gdiplus::GpStatus WINGDIPAPI NoRoom(Gdiplus::GpBitmap*, GDIPCONST Gdiplus::GpRect*, UINT,
                                    Gdiplus::PixelFormat, Gdiplus::BitmapData*)
{
    return Gdiplus::OutOfMemory;
}

const CString longText(std::wstring(200, L'W')); // too long for a string's own room

} // namespace

class PieMemory : public PieWindow
{
protected:
    PieMemory() { Fill({1, 3}); }

    void ExpectUntouched()
    {
        EXPECT_EQ(pie.m_nElements, 2);
        EXPECT_EQ(pie.m_dTotal, 4);
        EXPECT_EQ(Order(), L"e0 e1");
        EXPECT_EQ(pie.GetPieChartItem(L"new"), nullptr);
        EXPECT_EQ(Element(0).fPercent, 0.25f);
        EXPECT_EQ(Element(0).strLabel, L"label");
        EXPECT_EQ(pie.m_strLongestLabel, L"label");
    }
};

TEST_F(PieMemory, AnInsertionThatRunsOutChangesNothing)
{
    const CString name = L"new";
    const int failures = FailingMemory::Exhaust([&] { pie.InsertItem(name, longText, 4, Blue); },
                                                [&] { ExpectUntouched(); });
    EXPECT_GE(failures, 4); // the element, its label, the longest one, the map's node
    EXPECT_EQ(pie.m_nElements, 3);
    EXPECT_EQ(pie.GetElementID(name), 2);
    EXPECT_EQ(pie.m_strLongestLabel, longText);
    pie.Settle();
    EXPECT_EQ(Element(0).fPercent, 0.125f);
}

TEST_F(PieMemory, ARemovalThatRunsOutChangesNothing)
{
    pie.UpdateItemLabel(&Element(0), longText);
    const int failures = FailingMemory::Exhaust([&] { pie.RemoveItemByIndex(1); },
                                                [&] {
                                                    EXPECT_EQ(pie.m_nElements, 2);
                                                    EXPECT_EQ(pie.m_dTotal, 4);
                                                    EXPECT_EQ(Order(), L"e0 e1");
                                                    EXPECT_EQ(pie.m_strLongestLabel, longText);
                                                });
    EXPECT_GE(failures, 1);
    EXPECT_EQ(Order(), L"e0");
    EXPECT_EQ(pie.m_strLongestLabel, longText);
}

TEST_F(PieMemory, ALabelThatRunsOutChangesNothing)
{
    const int failures = FailingMemory::Exhaust([&] { pie.UpdateItemLabel(&Element(0), longText); },
                                                [&] { ExpectUntouched(); });
    EXPECT_GE(failures, 2);
    EXPECT_EQ(Element(0).strLabel, longText);
    EXPECT_EQ(pie.m_strLongestLabel, longText);
}

TEST_F(PieMemory, ASortThatRunsOutChangesNothing)
{
    const int failures =
        FailingMemory::Exhaust([&] { pie.sortPiechartElements(1); }, [&] { ExpectUntouched(); });
    EXPECT_GE(failures, 2);
    EXPECT_EQ(Order(), L"e1 e0");
}

TEST_F(PieMemory, APictureThatCannotBeKeptShowsWhatAFullPaintShows)
{
    for (int i = 0; i < 300; ++i) { // enough for the percents to be kept
        Fill({1.0 + i % 5});
    }
    const Picture expected = Shoot();
    {
        const ImportSlot slot(__imp_GdipBitmapLockBits, &NoRoom);
        pie.Invalidate(); // a picture is there, and no room for a copy of it
        EXPECT_EQ(Shoot().CountDifferences(expected), 0);
        pie.Invalidate(); // none is there, and none can be kept
        EXPECT_EQ(Shoot().CountDifferences(expected), 0);
    }
    pie.Invalidate();
    EXPECT_EQ(Shoot().CountDifferences(expected), 0);
}
