// Labels and notes under a person's hands: selecting, moving, editing, the popup menu, Delete.

#include "FrontDoorGraph.h"

#include <algorithm>
#include <functional>

namespace
{

constexpr UINT GetMenu = 0x1E1; // MN_GETHMENU

// Watches for the popup menu of this thread, from a timer, and answers it.
class MenuWatch
{
public:
    explicit MenuWatch(bool bChoose) : m_bChoose(bChoose)
    {
        Current() = this;
        m_nTimer = ::SetTimer(nullptr, 0, 10, &MenuWatch::Tick);
    }
    MenuWatch(const MenuWatch&) = delete;
    MenuWatch& operator=(const MenuWatch&) = delete;
    ~MenuWatch()
    {
        ::KillTimer(nullptr, m_nTimer);
        Current() = nullptr;
    }

    std::function<void()> m_whileOpen; // runs before the choice
    int m_nItems = 0;
    UINT m_nId = 0;
    std::wstring m_text;
    std::wstring m_dialog; // the caption of what the choice opened
    int m_nDialogs = 0;

private:
    static MenuWatch*& Current()
    {
        static MenuWatch* pCurrent = nullptr;
        return pCurrent;
    }
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) { Current()->Look(); }

    void Look()
    {
        const HWND hMenuWindow = ::FindWindowW(L"#32768", nullptr);
        if (hMenuWindow != nullptr && m_nItems == 0) {
            const auto hMenu = reinterpret_cast<HMENU>(::SendMessageW(hMenuWindow, GetMenu, 0, 0));
            m_nItems = ::GetMenuItemCount(hMenu);
            m_nId = ::GetMenuItemID(hMenu, 0);
            wchar_t text[64] = {};
            ::GetMenuStringW(hMenu, 0, text, 64, MF_BYPOSITION);
            m_text = text;
            if (m_whileOpen)
                m_whileOpen();
            if (m_bChoose) {
                ::PostMessageW(hMenuWindow, WM_KEYDOWN, VK_DOWN, 0);
                ::PostMessageW(hMenuWindow, WM_KEYDOWN, VK_RETURN, 0);
            } else {
                ::EndMenu();
            }
            return;
        }
        const HWND hActive = ::GetActiveWindow();
        wchar_t name[16] = {};
        if (hActive != nullptr && ::GetClassNameW(hActive, name, 16) > 0 &&
            std::wstring(name) == L"#32770") {
            wchar_t caption[64] = {};
            ::GetWindowTextW(hActive, caption, 64);
            m_dialog = caption;
            ++m_nDialogs;
            ::PostMessageW(hActive, WM_COMMAND, IDCANCEL, 0);
        }
    }

    bool m_bChoose;
    UINT_PTR m_nTimer;
};

class FrontDoorAnnotation : public FrontDoorGraph
{
protected:
    void SetUp() override
    {
        FrontDoorGraph::SetUp();
        graph->SetShowLegend(0);
        RECT rect = {100, 100, 200, 150};
        graph->InsertLabel(Text(L"old text"), &rect, label.Out());
        Shoot();
    }
    void Send(UINT message, WPARAM keys, int x, int y)
    {
        ::SendMessageW(Handle(), message, keys, MAKELPARAM(x, y));
    }
    void Click(int x, int y)
    {
        Send(WM_MOUSEMOVE, 0, x, y);
        Send(WM_LBUTTONDOWN, MK_LBUTTON, x, y);
        Send(WM_LBUTTONUP, 0, x, y);
    }
    void DoubleClick(int x, int y)
    {
        Click(x, y);
        Send(WM_LBUTTONDBLCLK, MK_LBUTTON, x, y);
        Send(WM_LBUTTONUP, 0, x, y);
    }
    void RightClick(int x, int y)
    {
        Send(WM_RBUTTONDOWN, MK_RBUTTON, x, y);
        Send(WM_RBUTTONUP, 0, x, y);
    }
    HWND Editor() { return ::FindWindowExW(Handle(), nullptr, L"EDIT", nullptr); }
    std::wstring LabelText()
    {
        Text text;
        label->GetText(text.Out());
        return text.Str();
    }
    bool WasTold(UINT message)
    {
        HostWindow::Pump();
        return std::any_of(host.m_notifications.begin(), host.m_notifications.end(),
                           [&](const auto& each) { return each.message == message; });
    }
    Holder<ISGraphLabel> label;
};

} // namespace

TEST_F(FrontDoorAnnotation, ADoubleClickEditsInPlaceAndAClickElsewhereCommits)
{
    DoubleClick(150, 125);
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(::GetDlgCtrlID(Editor()), 65534);
    for (const wchar_t unit : std::wstring(L"new %s\r50%"))
        ::SendMessageW(Editor(), WM_CHAR, unit, 0);
    EXPECT_EQ(LabelText(), L"old text");
    Click(300, 220);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(LabelText(), L"new %s\r\n50%");
}

TEST_F(FrontDoorAnnotation, ARightClickOffersThePropertiesAndTellsNobody)
{
    Click(150, 125);
    MenuWatch watch(false);
    RightClick(150, 125);
    EXPECT_EQ(watch.m_nItems, 1);
    EXPECT_EQ(watch.m_nId, 40006u);
    EXPECT_EQ(watch.m_text, L"Properties");
    EXPECT_EQ(watch.m_dialog, L"");
    EXPECT_FALSE(WasTold(XG_RBUTTONUP));
    RightClick(300, 220);
    EXPECT_TRUE(WasTold(XG_RBUTTONUP));
}

TEST_F(FrontDoorAnnotation, ChoosingThePopupsItemTellsNobodyAndEnds)
{
    Click(150, 125);
    MenuWatch watch(true); // cancels whatever the choice opens
    RightClick(150, 125);
    EXPECT_EQ(watch.m_nItems, 1);
    EXPECT_FALSE(WasTold(XG_RBUTTONUP));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    EXPECT_EQ(LabelText(), L"old text");
}

TEST_F(FrontDoorAnnotation, ThePropertiesOfALabelThatWentMeanwhileAreNotShown)
{
    Click(150, 125);
    MenuWatch watch(true);
    watch.m_whileOpen = [&] {
        label.Release();
        graph->ResetAll();
        RECT rect = {100, 100, 200, 150};
        for (int i = 0; i < 20; ++i) // one of them takes the freed memory
            graph->InsertLabel(Text(L"new"), &rect, nullptr);
    };
    RightClick(150, 125);
    EXPECT_EQ(watch.m_nItems, 1);
    EXPECT_EQ(watch.m_nDialogs, 0);
}

TEST_F(FrontDoorAnnotation, AClickShowsTheTrackerAndDeleteRemovesTheLabel)
{
    const Picture without = Shoot();
    Click(150, 125);
    EXPECT_GT(Shoot().CountDifferences(without), 100);
    // Keys come through the host's plain message loop.
    ::SetFocus(Handle());
    ::PostMessageW(Handle(), WM_KEYDOWN, VK_DELETE, 0);
    HostWindow::Pump();
    const Picture after = Shoot();
    EXPECT_EQ(after.Count({100, 100, 200, 150}, 0x000000), 0);
}

TEST_F(FrontDoorAnnotation, ANoteCannotBeEdited)
{
    AddLine(0);
    Shoot();
    graph->SetCursorFlags(0);
    graph->ForceSnap(0);
    graph->SendMessage(WM_COMMAND, VPX_COMMAND_CURSOR, 0);
    Send(WM_MOUSEMOVE, 0, 250, 100);
    TDataPoint point = {0, 0};
    graph->GetCursorAbsolute(0, &point);
    LONG x = 0;
    LONG y = 0;
    graph->GetCursor(&x, &y);
    Click(250, y);
    graph->NoOp();
    Shoot();
    double fX = 0;
    while (XAxis()->GetValueForPos(++x, &fX), fX < point.fYVal) // x and y of the line are the same
        ASSERT_LT(x, Width);
    const MenuWatch watch(false); // closes what should not open
    DoubleClick(x + 5, y - 14);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(watch.m_dialog, L"");
}

TEST_F(FrontDoorAnnotation, LongTextsPaintAndCanBeEdited)
{
    std::wstring text;
    while (text.size() < 100000)
        text += L"100% %s%n and more of it\r\n";
    label->SetText(Text(text.c_str()));
    Shoot();
    DoubleClick(150, 125);
    Shoot();
    Click(300, 220);
    EXPECT_TRUE(LabelText() == text);
}

TEST_F(FrontDoorAnnotation, ADestroyedWindowTakesTheEditorAlong)
{
    DoubleClick(150, 125);
    const HWND hEditor = Editor();
    ASSERT_NE(hEditor, nullptr);
    host.Destroy();
    EXPECT_FALSE(::IsWindow(hEditor));
    EXPECT_EQ(LabelText(), L"old text");
}

TEST_F(FrontDoorAnnotation, ATransparentLabelWithABorderShowsTheCurvesThrough)
{
    label->SetTransparent(1);
    label->SetText(Text(L""));
    Holder<ISGraphDataSerie> curve = AddLine(0);
    const Picture picture = Shoot();
    COLORREF crInner = 0;
    graph->GetInnerColor(&crInner);
    EXPECT_EQ(picture.At(100, 125), 0x000000u);
    EXPECT_GT(picture.Count({101, 101, 199, 149}, crInner), 2000);
}
