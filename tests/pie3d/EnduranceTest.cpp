// What windows leave behind: GDI and user objects, and the memory of GDI+.

#include "PieWindow.h"
#include "support/GdiCount.h"

#include <vector>

using PieEndurance = PieWindow;

namespace
{

// Blocks in use on all heaps of the process. The objects of GDI+ live there too.
int HeapBlocks()
{
    std::vector<HANDLE> heaps(256);
    const DWORD count = ::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    int blocks = 0;
    for (DWORD i = 0; i < count; ++i) {
        ::HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry = {};
        while (::HeapWalk(heaps[i], &entry))
            blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1 : 0;
        ::HeapUnlock(heaps[i]);
    }
    return blocks;
}

void Pump()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
}

} // namespace

class PieCycle : public PieWindow
{
protected:
    // A window with everything in it, from its creation to its end.
    void Run(int elements)
    {
        CPieChartWnd wnd;
        Make(wnd, 400, 300);
        for (int i = 0; i < elements; ++i)
            wnd.InsertItem(Name(i), L"label", 1 + i, Red);
        wnd.SetInclineAngle(50);
        for (const int style : {0, 1, 2}) {
            wnd.SetPieChartStyle(style);
            wnd.UpdateWindow();
            wnd.HitTest(CPoint(100, 180));
            wnd.UpdateWindow();
        }
        wnd.SendMessage(WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(wnd.m_wndScrollBar.m_hWnd));
        wnd.UpdateWindow();
        wnd.RemoveItemByIndex(0);
        wnd.sortPiechartElements(1);
        wnd.UpdateWindow();
    }
    int Children() const
    {
        int count = 0;
        for (HWND child = ::GetWindow(host.m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            ++count;
        }
        return count;
    }
};

TEST_F(PieCycle, LeavesNoGdiAndNoUserObject)
{
    Run(5);
    const int objects = GdiCount::All();
    const int children = Children();
    for (int i = 0; i < 5; ++i)
        Run(5);
    Pump();
    EXPECT_EQ(GdiCount::All(), objects);
    EXPECT_EQ(Children(), children);
}

TEST_F(PieCycle, LeavesNoMemoryBehind)
{
    constexpr int cycles = 8;
    for (int i = 0; i < 2; ++i) {
        Run(5);
        Pump();
    }
    const int before = HeapBlocks();
    ASSERT_GT(before, 0);
    for (int i = 0; i < cycles; ++i) {
        Run(5);
        Pump();
    }
    // A single object left by each cycle would show; the system's own caches move a little.
    EXPECT_LT(HeapBlocks() - before, cycles);
}

TEST_F(PieCycle, LeavesNoMemoryBehindWhenThePercentsAreKept)
{
    constexpr int cycles = 5;
    Run(260);
    Pump();
    const int before = HeapBlocks();
    for (int i = 0; i < cycles; ++i) {
        Run(260);
        Pump();
    }
    EXPECT_LT(HeapBlocks() - before, cycles);
}

TEST_F(PieCycle, PaintsAndClicksLeaveNothing)
{
    Fill({1, 2, 3, 4});
    pie.SetInclineAngle(50);
    const auto use = [&] {
        pie.Invalidate();
        pie.UpdateWindow();
        Click(200, 320);
        Pump();
    };
    for (int i = 0; i < 3; ++i)
        use();
    const int objects = GdiCount::All();
    const int blocks = HeapBlocks();
    constexpr int cycles = 16;
    for (int i = 0; i < cycles; ++i)
        use();
    EXPECT_EQ(GdiCount::All(), objects);
    EXPECT_LT(HeapBlocks() - blocks, cycles / 2);
}

TEST_F(PieEndurance, EachWindowHoldsOneStartOfGdiPlus)
{
    EXPECT_NE(pie.m_gdiplusToken, 0u);
    {
        CPieChartWnd second;
        Make(second);
        EXPECT_NE(second.m_gdiplusToken, 0u);
    }
    Fill({1}); // the other's end is not this one's
    EXPECT_TRUE(Element(0).pPath);
    Plain();
    EXPECT_EQ(Shoot().At(400, 400), Ref(Red));
}

// The platform's GDI+ would lose a memory context for each such text.
TEST_F(PieEndurance, LabelsWithoutRoomForAGlyphCostNoMemoryContext)
{
    Fill({1, 2, 3});
    pie.UpdateItemLabel(&Element(2), L"");
    pie.m_bLabelPercent = TRUE;
    pie.UpdateWindow();
    const int contexts = GdiCount::OfType(OBJ_MEMDC);
    for (int width = 246; width <= 252; ++width) { // labels from 234 on, with 0 to 6 pixels
        pie.MoveWindow(0, 0, width, 300);
        pie.UpdateWindow();
    }
    for (const SPieElement* element : {&Element(0), &Element(1)})
        pie.UpdateItemLabel(pie.GetPieChartItem(element->strName), L"i");
    for (int width = 258; width <= 270; width += 2) { // the same for the percents
        pie.MoveWindow(0, 0, width, 300);
        pie.UpdateWindow();
    }
    EXPECT_EQ(GdiCount::OfType(OBJ_MEMDC), contexts);
}
