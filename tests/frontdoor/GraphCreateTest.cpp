// The life of the graph's window.

#include "FrontDoorGraph.h"

TEST(GraphBeforeCreate, ItHasNoWindow)
{
    const auto graph = Server::Shared().Make<SGraph, ISGraph>();
    ASSERT_TRUE(graph);
    auto hWnd = WireHandle(::GetDesktopWindow());
    EXPECT_EQ(graph->GetHandle(&hWnd), S_FALSE);
    EXPECT_EQ(hWnd, nullptr);
    EXPECT_EQ(graph->GetHandle(nullptr), S_FALSE);
    EXPECT_EQ(graph->PostMessage(WM_NULL, 0, 0), S_FALSE);
    EXPECT_EQ(graph->SendMessage(WM_NULL, 0, 0), S_FALSE);
}

TEST(GraphBeforeCreate, CreateWithoutARectangleMakesNothing)
{
    HostWindow host;
    const auto graph = Server::Shared().Make<SGraph, ISGraph>();
    EXPECT_EQ(graph->Create(nullptr, nullptr, WireHandle(host.m_hWnd), 1), S_FALSE);
    wireHWND hWnd = nullptr;
    EXPECT_EQ(graph->GetHandle(&hWnd), S_FALSE);
    EXPECT_EQ(hWnd, nullptr);
}

TEST(GraphBeforeCreate, MethodsThatDoNothingNeedNoWindow)
{
    const auto graph = Server::Shared().Make<SGraph, ISGraph>();
    EXPECT_EQ(graph->Cursor(), S_OK);
    EXPECT_EQ(graph->SetGraphColor(5), S_OK);
    EXPECT_EQ(graph->GetXGraphMsgInfo(XG_CURVECLICK, nullptr), S_FALSE);
    EXPECT_EQ(graph->GetXGraphPersistInfo(PERSIST_DATA, nullptr), S_FALSE);
    EXPECT_EQ(graph->GetXGraphXgcInfo(XGC_VERT, nullptr), S_FALSE);
}

TEST(GraphBeforeCreate, AParentThatIsNoWindowStillLeavesAGraphButNoWindow)
{
    const auto graph = Server::Shared().Make<SGraph, ISGraph>();
    RECT rect = {0, 0, 10, 10};
    EXPECT_EQ(graph->Create(nullptr, &rect, WireHandle(reinterpret_cast<HWND>(0x12345670)), 1), S_OK);
    auto hWnd = WireHandle(::GetDesktopWindow());
    EXPECT_EQ(graph->GetHandle(&hWnd), S_OK);
    EXPECT_EQ(hWnd, nullptr);
    EXPECT_EQ(graph->PostMessage(WM_NULL, 0, 0), S_FALSE);
    EXPECT_EQ(graph->SendMessage(WM_NULL, 0, 0), S_FALSE);
    int nCount = -1;
    EXPECT_EQ(graph->GetCurveCount(&nCount), S_OK);
    EXPECT_EQ(nCount, 0);
    EXPECT_EQ(graph->Create(nullptr, &rect, nullptr, 1), S_FALSE);
}

using GraphCreate = FrontDoorGraph;

TEST_F(GraphCreate, TheWindowIsAVisibleChildUnderItsId)
{
    const HWND hWnd = Handle();
    EXPECT_EQ(::GetParent(hWnd), host.m_hWnd);
    EXPECT_EQ(::GetDlgCtrlID(hWnd), 7);
    EXPECT_TRUE(::IsWindowVisible(hWnd));
    EXPECT_EQ(::GetWindowLongPtrW(hWnd, GWL_STYLE) & (WS_CHILD | WS_VISIBLE | WS_BORDER | WS_CAPTION),
              WS_CHILD | WS_VISIBLE);
    RECT client = {};
    ::GetClientRect(hWnd, &client);
    EXPECT_EQ(client.right, Width);
    EXPECT_EQ(client.bottom, Height);
}

TEST_F(GraphCreate, ASecondCreateKeepsTheFirstWindow)
{
    const HWND hWnd = Handle();
    RECT rect = {50, 50, 60, 60};
    EXPECT_EQ(graph->Create(nullptr, &rect, WireHandle(host.m_hWnd), 9), S_FALSE);
    EXPECT_EQ(Handle(), hWnd);
    RECT client = {};
    ::GetClientRect(hWnd, &client);
    EXPECT_EQ(client.right, Width);
}

TEST_F(GraphCreate, TheCaptionIsIgnored)
{
    const auto other = Server::Shared().Make<SGraph, ISGraph>();
    RECT rect = {0, 0, 50, 50};
    other->Create(Text(L"caption"), &rect, WireHandle(host.m_hWnd), 8);
    wireHWND hWnd = nullptr;
    other->GetHandle(&hWnd);
    EXPECT_EQ(::GetWindowTextLengthW(reinterpret_cast<HWND>(hWnd)), 0);
}

TEST_F(GraphCreate, TheLastReleaseLeavesTheWindowOnTheScreen)
{
    auto points = Line();
    graph->SetData(nullptr, points.data(), 11, 0, 0, 0, 1);
    const HWND hWnd = Handle();
    const Picture before = Shoot();
    graph.Release();
    EXPECT_TRUE(::IsWindow(hWnd));
    ::InvalidateRect(hWnd, nullptr, TRUE);
    ::UpdateWindow(hWnd);
    EXPECT_EQ(Picture(hWnd).CountDifferences(before), 0);
    host.Destroy();
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST_F(GraphCreate, AGraphWhoseWindowIsGoneKeepsItsData)
{
    AddLine(0);
    host.Destroy();
    EXPECT_EQ(Handle(), nullptr);
    EXPECT_EQ(CurveCount(), 1);
    AddLine(1);
    EXPECT_EQ(CurveCount(), 2);
    EXPECT_EQ(graph->Invalidate(1), S_OK);
    EXPECT_EQ(graph->SelectCurve(0), S_OK);
    EXPECT_EQ(graph->SaveBitmap(Text(L"C:\\nothing.bmp")), S_OK);
}

TEST_F(GraphCreate, MessagesReachTheWindow)
{
    EXPECT_EQ(graph->SendMessage(WM_SETTEXT, 0, reinterpret_cast<LONG_PTR>(L"sent")), S_OK);
    wchar_t text[16] = {};
    ::GetWindowTextW(Handle(), text, 16);
    EXPECT_STREQ(text, L"sent");
    EXPECT_EQ(graph->PostMessage(WM_USER + 5, 1, 2), S_OK);
    MSG message = {};
    EXPECT_TRUE(::PeekMessageW(&message, Handle(), WM_USER + 5, WM_USER + 5, PM_REMOVE));
    EXPECT_EQ(message.lParam, 2);
}

TEST_F(GraphCreate, InvalidateMarksTheWholeWindow)
{
    ::UpdateWindow(Handle());
    EXPECT_EQ(graph->Invalidate(0), S_OK);
    RECT update = {};
    EXPECT_TRUE(::GetUpdateRect(Handle(), &update, FALSE));
    EXPECT_EQ(update.right, Width);
    EXPECT_EQ(update.bottom, Height);
}
