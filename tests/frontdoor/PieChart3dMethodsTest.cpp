// The interface of the 3D pie: what each method returns, and what it does with nothing.

#include "PieChart3dHost.h"
#include "support/Faults.h"

using PieChart3dMethods = PieChart3dTest;

namespace
{
const testing::ExitedWithCode fault(Faults::AccessViolation);
} // namespace

TEST_F(PieChart3dMethods, CreateMakesAVisibleChildOnce)
{
    RECT rect = {10, 20, 410, 320};
    EXPECT_EQ(pie->Create(Text(L"T"), nullptr, WireHandle(host.m_hWnd), 9), S_FALSE);
    EXPECT_EQ(pie->Create(Text(L"T"), &rect, WireHandle(host.m_hWnd), 9), S_OK);
    EXPECT_EQ(pie->Create(Text(L"T"), &rect, WireHandle(host.m_hWnd), 10), S_FALSE);
    const HWND hWnd = Handle();
    EXPECT_EQ(::GetParent(hWnd), host.m_hWnd);
    EXPECT_EQ(::GetDlgCtrlID(hWnd), 9);
    EXPECT_TRUE(::IsWindowVisible(hWnd));
    EXPECT_EQ(static_cast<DWORD>(::GetWindowLongW(hWnd, GWL_STYLE)),
              static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN));
    RECT place = {};
    ::GetWindowRect(hWnd, &place);
    EXPECT_EQ(place.left, 10);
    EXPECT_EQ(place.bottom, 320);
    EXPECT_EQ(::GetWindow(::GetWindow(host.m_hWnd, GW_CHILD), GW_HWNDNEXT), nullptr);
}

TEST_F(PieChart3dMethods, CreateTakesANullCaptionAndANullParentWithoutHarm)
{
    RECT rect = {0, 0, 800, 600};
    EXPECT_EQ(pie->Create(nullptr, &rect, nullptr, 9), S_OK); // a child needs a parent
    wireHWND hWnd = WireHandle(host.m_hWnd);
    EXPECT_EQ(pie->GetHandle(&hWnd), S_OK);
    EXPECT_EQ(hWnd, nullptr);
    EXPECT_EQ(pie->PostMessage(WM_NULL, 0, 0), S_FALSE);
    EXPECT_EQ(pie->SendMessage(WM_NULL, 0, 0), S_FALSE);
    EXPECT_EQ(pie->InsertItem(Text(L"a"), nullptr, 1, 0), S_OK);
    EXPECT_NE(Item(L"a"), nullptr);
    EXPECT_EQ(pie->Invalidate(1), S_OK);
    EXPECT_EQ(pie->SetDepth(10), S_OK);
}

TEST_F(PieChart3dMethods, BeforeCreateMessagesAreRefusedAndTheHandleFaults)
{
    EXPECT_EQ(pie->PostMessage(WM_NULL, 0, 0), S_FALSE);
    EXPECT_EQ(pie->SendMessage(WM_NULL, 0, 0), S_FALSE);
    EXPECT_EQ(pie->GetHandle(nullptr), S_FALSE);
    // The answer is null by the time of the fault: the filter reports it by its exit code.
    static wireHWND hWnd = nullptr;
    hWnd = WireHandle(host.m_hWnd);
    const auto lookAtTheFault = [](EXCEPTION_POINTERS*) -> LONG {
        ::TerminateProcess(::GetCurrentProcess(), hWnd == nullptr ? 77 : 78);
        return EXCEPTION_EXECUTE_HANDLER;
    };
    EXPECT_EXIT((::SetUnhandledExceptionFilter(lookAtTheFault), pie->GetHandle(&hWnd)),
                testing::ExitedWithCode(77), "");
}

TEST_F(PieChart3dMethods, NullPlacesForAnswersAreFalse)
{
    Create();
    Fill({1});
    VARIANT* item = nullptr;
    int id = 7;
    EXPECT_EQ(pie->GetHandle(nullptr), S_FALSE);
    EXPECT_EQ(pie->GetSelectedElement(nullptr), S_FALSE);
    EXPECT_EQ(pie->GetPieChartItem(Text(L"e0"), nullptr), S_FALSE);
    EXPECT_EQ(pie->GetPieChartItem(nullptr, &item), S_FALSE);
    EXPECT_EQ(pie->GetElementID(Text(L"e0"), nullptr), S_FALSE);
    EXPECT_EQ(pie->GetElementID(nullptr, &id), S_FALSE);
    EXPECT_EQ(id, 7);
    EXPECT_EQ(pie->GetBackGroungGrLight(nullptr), S_FALSE);
    EXPECT_EQ(pie->GetBackgroundGrDark(nullptr), S_FALSE);
    EXPECT_EQ(pie->GetElementGrLight(Item(L"e0"), nullptr), S_FALSE);
    EXPECT_EQ(pie->GetElementGrDark(Item(L"e0"), nullptr), S_FALSE);
    EXPECT_EQ(pie->GetElementName(Item(L"e0"), nullptr), S_FALSE);
    EXPECT_EQ(pie->SetPieChartTitle(nullptr), S_FALSE);
}

TEST_F(PieChart3dMethods, NullItemsAreRefusedWithSuccess)
{
    Create();
    Fill({1});
    float amount = 0;
    EXPECT_EQ(pie->GetElementGrLight(nullptr, &amount), S_OK);
    EXPECT_EQ(amount, -1.0f);
    amount = 0;
    EXPECT_EQ(pie->GetElementGrDark(nullptr, &amount), S_OK);
    EXPECT_EQ(amount, -1.0f);
    const Picture before = Shoot();
    EXPECT_EQ(pie->UpdateItemLabel(nullptr, Text(L"x")), S_OK);
    EXPECT_EQ(pie->UpdateItemValue(nullptr, 5), S_OK);
    EXPECT_EQ(pie->UpdateItemColor(nullptr, Blue), S_OK);
    EXPECT_EQ(pie->SetPieElementGradientLight(nullptr, 5), S_OK);
    EXPECT_EQ(pie->SetPieElementGradientDark(nullptr, 5), S_OK);
    EXPECT_FALSE(NeedsPaint());
    EXPECT_EQ(Redrawn().CountDifferences(before), 0);
}

TEST_F(PieChart3dMethods, TheNameOfANullItemFaults)
{
    Create();
    Text name;
    EXPECT_EXIT((Faults::EndAtOnce(), pie->GetElementName(nullptr, name.Out())), fault, "");
}

TEST_F(PieChart3dMethods, ANullFontFaults)
{
    Create();
    EXPECT_EXIT((Faults::EndAtOnce(), pie->SetLabelFont(nullptr)), fault, "");
    EXPECT_EXIT((Faults::EndAtOnce(), pie->SetTitleFont(nullptr)), fault, "");
}

TEST_F(PieChart3dMethods, AnUnknownNameGivesANullItemAndMinusOne)
{
    Create();
    Fill({1});
    EXPECT_EQ(Item(L"nobody"), nullptr);
    EXPECT_EQ(Id(L"nobody"), -1);
    EXPECT_EQ(Id(L"E0"), -1);
    EXPECT_NE(Item(L"e0"), nullptr);
    EXPECT_EQ(Id(L"e0"), 0);
}

TEST_F(PieChart3dMethods, ANameReplacesALiveString)
{
    Create();
    Fill({1});
    Text name(L"something much longer than the name");
    EXPECT_EQ(pie->GetElementName(Item(L"e0"), name.Out()), S_OK);
    EXPECT_EQ(name.Str(), L"e0");
}

TEST_F(PieChart3dMethods, ANullLabelLeavesTheLabel)
{
    Create();
    Fill({1});
    const Picture before = Shoot();
    EXPECT_EQ(pie->UpdateItemLabel(Item(L"e0"), nullptr), S_OK);
    EXPECT_FALSE(NeedsPaint());
    EXPECT_EQ(pie->UpdateItemLabel(Item(L"e0"), Text(L"other")), S_OK);
    EXPECT_GT(Shoot().CountDifferences(before), 0);
}

TEST_F(PieChart3dMethods, NullTextsStandForEmptyOnes)
{
    Create();
    EXPECT_EQ(pie->InsertItem(nullptr, Text(L"x"), 1, Red), S_OK);
    EXPECT_EQ(Id(L""), -1);
    EXPECT_EQ(pie->InsertItem(Text(L"a"), nullptr, 1, Red), S_OK);
    EXPECT_EQ(Id(L"a"), 0);
    EXPECT_EQ(pie->RemoveItem(nullptr), S_OK);
    EXPECT_EQ(pie->SetLabelFontName(nullptr), S_OK);
    EXPECT_EQ(pie->SetTitleFontName(nullptr), S_OK);
    EXPECT_EQ(Id(L"a"), 0);
}

TEST_F(PieChart3dMethods, MessagesReachTheWindow)
{
    Create();
    Fill({1, 3});
    EXPECT_EQ(pie->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(365, 435)), S_OK);
    EXPECT_EQ(Selected(), L"e0");
    EXPECT_EQ(pie->PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(165, 435)), S_OK);
    EXPECT_EQ(Selected(), L"e0");
    HostWindow::Pump();
    EXPECT_EQ(Selected(), L"e1");
}

TEST_F(PieChart3dMethods, InvalidateAsksForAPaint)
{
    Create();
    Shoot();
    EXPECT_FALSE(NeedsPaint());
    EXPECT_EQ(pie->Invalidate(0), S_OK);
    EXPECT_TRUE(NeedsPaint());
}

TEST_F(PieChart3dMethods, TheParentIsToldNothing)
{
    Create();
    Fill({1, 3});
    Clicked(365, 435);
    HostWindow::Pump();
    EXPECT_TRUE(host.m_notifications.empty());
}

TEST_F(PieChart3dMethods, ReleaseDestroysTheWindow)
{
    Create();
    Fill({1});
    const HWND hWnd = Handle();
    EXPECT_TRUE(::IsWindow(hWnd));
    pie.Release();
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST_F(PieChart3dMethods, ThePieOutlivesItsParent)
{
    Create();
    Fill({1, 2});
    host.Destroy();
    EXPECT_EQ(Handle(), nullptr);
    EXPECT_EQ(pie->PostMessage(WM_NULL, 0, 0), S_FALSE);
    EXPECT_EQ(pie->UpdateItemValue(Item(L"e0"), 4), S_OK);
    EXPECT_EQ(pie->Invalidate(1), S_OK);
    EXPECT_EQ(pie->RemoveItem(Text(L"e0")), S_OK);
    EXPECT_EQ(Item(L"e0"), nullptr);
}
