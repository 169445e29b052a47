// The cursor as a host enters, moves and asks for it.

#include "FrontDoorGraph.h"

#include <algorithm>

namespace
{

constexpr int InvalidParameter = static_cast<int>(0xC0000417);
constexpr WPARAM CursorCommand = VPX_COMMAND_CURSOR;

// A line from (0, 0) to (10, 10); the mouse moves in client pixels of the graph.
class FrontDoorCursor : public FrontDoorGraph
{
protected:
    void SetUp() override
    {
        FrontDoorGraph::SetUp();
        graph->SetShowLegend(0);
        AddLine(0);
        Shoot();
        graph->Pan(); // what it does to the axes is the cursor's way in too
        Shoot();
    }
    void EnterCursor(UINT nFlags = XGC_HORIZ | XGC_VERT)
    {
        graph->SetCursorFlags(nFlags);
        ASSERT_EQ(graph->SendMessage(WM_COMMAND, CursorCommand, 0), S_OK);
    }
    void Move(int x, int y) { ::SendMessageW(Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
    void Click(int x, int y)
    {
        ::SendMessageW(Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        ::SendMessageW(Handle(), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    POINT Cursor()
    {
        LONG x = -1;
        LONG y = -1;
        graph->GetCursor(&x, &y);
        return {x, y};
    }
    // The row of the curve under a column, found by a forced snap.
    int CurveRow(int x)
    {
        graph->ForceSnap(0);
        Move(x, 100);
        graph->ForceSnap(-1);
        return Cursor().y;
    }
    double XOf(int nColumn)
    {
        double fValue = 0;
        XAxis()->GetValueForPos(nColumn, &fValue);
        return fValue;
    }
    double YOf(int nRow)
    {
        double fValue = 0;
        YAxis()->GetValueForPos(nRow, &fValue);
        return fValue;
    }
};

} // namespace

TEST_F(FrontDoorCursor, TheCommandEntersItAndMovesAreTold)
{
    EnterCursor();
    EOperation operation = opNone;
    graph->GetOperation(&operation);
    EXPECT_EQ(operation, opCursor);
    host.m_notifications.clear();
    Move(200, 100);
    HostWindow::Pump();
    const auto told = std::find_if(host.m_notifications.begin(), host.m_notifications.end(),
                                   [](const auto& each) { return each.message == XG_CURSORMOVED; });
    ASSERT_NE(told, host.m_notifications.end());
    EXPECT_EQ(told->wParam, 0u);
    EXPECT_EQ(told->lParam, static_cast<LONG>(reinterpret_cast<LONG_PTR>(Handle())));
}

TEST_F(FrontDoorCursor, ItSnapsOnePixelInsideTheRangeOnly)
{
    EnterCursor();
    const int nRow = CurveRow(200);
    Move(200, nRow + 10);
    EXPECT_EQ(Cursor().y, nRow + 10);
    Move(200, nRow + 9);
    EXPECT_EQ(Cursor().y, nRow);
    EXPECT_EQ(Cursor().x, 200);
    graph->SetSnapRange(4);
    Move(200, nRow - 4);
    EXPECT_EQ(Cursor().y, nRow - 4);
    Move(200, nRow - 3);
    EXPECT_EQ(Cursor().y, nRow);
    graph->SetSnapCursor(0);
    Move(200, nRow - 3);
    EXPECT_EQ(Cursor().y, nRow - 3);
}

TEST_F(FrontDoorCursor, WithoutFlagsOnlyItsBoxIsDrawn)
{
    graph->SetCursor(200, 60);
    const Picture without = Shoot();
    EnterCursor(0);
    EXPECT_EQ(Shoot().CountDifferences(without), 40);
}

TEST_F(FrontDoorCursor, MovesInsideThePlotLeaveThePictureOfAFrame)
{
    for (const long bBuffer : {1, 0}) {
        graph->SetDoubleBuffer(bBuffer);
        EnterCursor(XGC_HORIZ | XGC_VERT | XGC_LEGEND);
        Move(60, 60);
        Shoot();
        for (const POINT place : {POINT{180, 110}, {200, 60}, {100, 200}, {60, 60}}) {
            Move(place.x, place.y);
            const Picture moved(Handle());
            EXPECT_EQ(Shoot().CountDifferences(moved), 0) << place.x << ", " << place.y;
        }
    }
}

TEST_F(FrontDoorCursor, AClickPinsANoteToTheCurveItSnappedTo)
{
    EnterCursor(0);
    const int nRow = CurveRow(200);
    Move(200, nRow - 40);
    const Picture without = Shoot();
    Click(200, nRow - 40); // no curve there
    EXPECT_EQ(Shoot().CountDifferences(without), 0);
    Move(200, nRow);
    Click(200, nRow);
    Move(200, nRow - 40);
    EXPECT_GT(Shoot().CountDifferences(without), 300);
}

TEST_F(FrontDoorCursor, TheAbsolutePositionIsTheMousesXAndThePointsY)
{
    EnterCursor();
    Move(200, 100);
    TDataPoint point = {-1, -1};
    EXPECT_EQ(graph->GetCursorAbsolute(0, &point), S_OK);
    EXPECT_EQ(point.fXVal, XOf(200));
    EXPECT_GT(point.fYVal, point.fXVal); // the first point past it, one of eleven
    EXPECT_EQ(point.fYVal, std::ceil(point.fXVal));
    EXPECT_EQ(graph->GetCursorAbsolute(0, nullptr), S_FALSE);
}

TEST_F(FrontDoorCursor, SettingThePositionScrollsAsAsked)
{
    EnterCursor(0);
    ::SendMessageW(Handle(), WM_KEYUP, VK_ADD, 0); // a tenth of the range less at either end
    Shoot();
    const double fBefore = XOf(200);
    TDataPoint point = {5, 0};
    EXPECT_EQ(graph->SetCursorAbsolute(0, &point, 1), S_OK);
    Shoot();
    EXPECT_EQ(XOf(200), fBefore); // in view already
    point.fXVal = 9.9;
    graph->SetCursorAbsolute(0, &point, 0);
    EXPECT_EQ(XOf(200), fBefore);
    graph->SetCursorAbsolute(0, &point, 1);
    Shoot();
    EXPECT_GT(XOf(200), fBefore + 3);
    const double fScrolled = XOf(200);
    graph->SetCursorFlags(XGC_ADJUSTSMOOTH);
    point.fXVal = 9;
    graph->SetCursorAbsolute(0, &point, 1);
    EXPECT_NEAR(XOf(200), fScrolled - 0.9, 1e-9); // from the middle to the middle
    EXPECT_EQ(graph->SetCursorAbsolute(0, nullptr, 1), S_FALSE);
}

TEST_F(FrontDoorCursor, HostileFormatsAndTitlesPaint)
{
    EnterCursor(XGC_LEGEND);
    Holder<ISGraphAxis> x = XAxis();
    Holder<ISGraphAxis> y = YAxis();
    const std::wstring longTitle(100000, L'%');
    for (const wchar_t* pszFormat :
         {L"%s%n", L"%%s", L"%9999.9999f", L"%Y%%n\r\n", L"%", L"", L"%*d%5$s"}) {
        for (const long bDate : {0, 1}) {
            x->SetDisplayFmt(Text(pszFormat));
            y->SetDisplayFmt(Text(pszFormat));
            x->SetDateTime(bDate);
            Move(150, CurveRow(150));
            Shoot();
        }
    }
    x->SetLabel(Text(longTitle.c_str()));
    Move(150, 120);
    EXPECT_TRUE(::IsWindow(Handle()));
}

TEST_F(FrontDoorCursor, DeathTest_AForcedSnapPastTheEndEndsTheProcess)
{
    EnterCursor();
    EXPECT_EQ(graph->ForceSnap(1), S_OK); // stored as it is
    EXPECT_EXIT(Move(200, 100), testing::ExitedWithCode(InvalidParameter), "");
}
