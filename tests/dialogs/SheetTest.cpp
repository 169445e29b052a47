// The property sheet itself: what opens it and on which page, its tabs, keys and ends.

#include "dialogs/SheetHost.h"
#include "support/DialogCloser.h"

using DialogHands::PostKey;

namespace
{

class PropertySheet : public SheetHost
{
protected:
    // What lies in the middle of each target.
    struct Target {
        const char* name;
        POINT at;
        Tab tab;
    };
    std::vector<Target> Targets()
    {
        return {{"nothing", OnNothing(), Chart},
                {"Y axis", OnYAxis(), Axis},
                {"X axis", OnXAxis(), Axis},
                {"curve", OnCurve(), Curve_}};
    }
};

RECT PlaceIn(HWND child, HWND parent)
{
    RECT rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace

TEST_F(PropertySheet, ADoubleClickOpensThePageOfWhatLiesThere)
{
    for (const Target& target : Targets()) {
        Open(target.at, {[&] {
                 EXPECT_EQ(CurrentTab(), target.tab) << target.name;
                 EXPECT_EQ(Shown(), Page(target.tab)) << target.name;
             }});
    }
}

TEST_F(PropertySheet, TheCommandOpensItAtTheLastPlaceOfThePointer)
{
    for (const Target& target : Targets()) {
        Work(
            [&] {
                Hover(target.at);
                Send(Command::properties);
            },
            {[&] { EXPECT_EQ(CurrentTab(), target.tab) << target.name; }});
    }
}

TEST_F(PropertySheet, ADoubleClickOnALegendRowOpensThePageOfTheCurve)
{
    graph->SetLegendAlignment(left);
    Curve(0)->SetColor(0x123456);
    Frame();
    const Picture picture = Shoot();
    POINT row = {};
    for (int y = 0; y < Height && row.y == 0; ++y) {
        for (int x = 0; x < 40; ++x) {
            if (picture.At(x, y) == 0x123456) {
                row = {x + 4, y + 2};
                break;
            }
        }
    }
    Open(row, {[&] { EXPECT_EQ(CurrentTab(), Curve_); }});
}

TEST_F(PropertySheet, HasThreeTabs)
{
    Open(OnNothing(), {[&] {
             ASSERT_EQ(::SendMessageW(Tabs(), TCM_GETITEMCOUNT, 0, 0), 3);
             const wchar_t* texts[] = {L"Chart", L"Axis", L"Curve"};
             for (int tab = 0; tab < 3; ++tab) {
                 WCHAR text[20] = {};
                 TCITEMW item = {};
                 item.mask = TCIF_TEXT | TCIF_PARAM;
                 item.pszText = text;
                 item.cchTextMax = 20;
                 ::SendMessageW(Tabs(), TCM_GETITEMW, tab, reinterpret_cast<LPARAM>(&item));
                 EXPECT_STREQ(text, texts[tab]);
                 EXPECT_NE(item.lParam, 0) << "the page";
             }
         }});
}

TEST_F(PropertySheet, APageLiesInTheTabControlInItsOwnSize)
{
    Open(OnCurve(), {[&] {
             for (const Tab tab : {Curve_, Chart, Axis}) {
                 ClickTab(tab);
                 const HWND page = Page(tab);
                 ASSERT_EQ(Shown(), page) << tab;
                 EXPECT_EQ(::GetParent(page), Tabs());
                 RECT wanted = {0, 0, 306, 241};
                 ::MapDialogRect(Sheet(), &wanted);
                 const RECT place = PlaceIn(page, Tabs());
                 EXPECT_EQ(place.left, 8);
                 EXPECT_EQ(place.top, 25);
                 EXPECT_EQ(place.right - place.left, wanted.right);
                 EXPECT_EQ(place.bottom - place.top, wanted.bottom);
                 EXPECT_EQ(::GetWindowLongPtrW(page, GWL_STYLE) & WS_CAPTION, 0);
                 EXPECT_TRUE(::IsWindowEnabled(page));
                 EXPECT_EQ(::GetWindow(Tabs(), GW_CHILD), page) << "at the top";
             }
         }});
}

TEST_F(PropertySheet, AChangeOfTheTabHidesAndDisablesTheOtherPages)
{
    Open(OnNothing(), {[&] {
             ClickTab(Axis);
             EXPECT_EQ(CurrentTab(), Axis);
             for (const Tab tab : {Chart, Curve_}) {
                 EXPECT_FALSE(::IsWindowVisible(Page(tab)));
                 EXPECT_FALSE(::IsWindowEnabled(Page(tab)));
             }
             ClickTab(Chart);
             EXPECT_TRUE(::IsWindowVisible(Page(Chart)));
             EXPECT_TRUE(::IsWindowEnabled(Page(Chart)));
             EXPECT_FALSE(::IsWindowVisible(Page(Axis)));
         }});
}

TEST_F(PropertySheet, KeepsTheHostsWindowFromInputWhileItIsOpen)
{
    Open(OnNothing(), {[&] { EXPECT_FALSE(::IsWindowEnabled(host.m_hWnd)); }});
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(PropertySheet, RepaintsTheGraphWhenItHasClosed)
{
    Open(OnNothing(), {[&] {
             Clean();
             EXPECT_FALSE(IsDirty());
         }});
    EXPECT_TRUE(IsDirty());
}

TEST_F(PropertySheet, EnterAndEscapeInAPageDoNothingAndTheCloseBoxEndsIt)
{
    graph->SetShowLegend(1);
    for (const Tab tab : {Chart, Axis, Curve_}) {
        EXPECT_TRUE(Open(OnNothing(), {[&] {
                                           ClickTab(tab);
                                           const HWND field =
                                               Item(tab == Chart ? Id::snapRange : Id::label);
                                           ::SetFocus(field);
                                           PostKey(field, VK_ESCAPE);
                                           PostKey(field, VK_RETURN);
                                       },
                                       [&] {
                                           EXPECT_EQ(Shown(), Page(tab));
                                           CloseBox();
                                       }}));
    }
}

TEST_F(PropertySheet, EscapeOnTheTabsEndsIt)
{
    EXPECT_TRUE(Open(OnNothing(), {[&] { PostKey(Tabs(), VK_ESCAPE); }}));
}

TEST_F(PropertySheet, TabReachesThePageFromTheTabsAndGoesRoundInIt)
{
    Open(OnNothing(), {[&] {
                           ::SetFocus(Tabs());
                           PostKey(Tabs(), VK_TAB);
                       },
                       [&] {
                           EXPECT_EQ(::GetFocus(), Item(Id::ok));
                           PostKey(::GetFocus(), VK_TAB);
                       },
                       [&] {
                           EXPECT_EQ(::GetFocus(), Item(Id::cancel));
                           PostKey(::GetFocus(), VK_TAB);
                       },
                       [&] {
                           EXPECT_EQ(::GetFocus(), Item(Id::backColor))
                               << "what is disabled is left out";
                           ::SetFocus(Item(Id::doubleBuffer));
                           PostKey(Item(Id::doubleBuffer), VK_TAB);
                       },
                       [&] { EXPECT_EQ(::GetFocus(), Item(Id::ok)) << "round"; }});
}

TEST_F(PropertySheet, TheArrowKeysOnTheTabsChangeThePage)
{
    Open(OnNothing(), {[&] {
                           ::SetFocus(Tabs());
                           PostKey(Tabs(), VK_RIGHT);
                       },
                       [&] { EXPECT_EQ(Shown(), Page(Axis)); }});
}

TEST_F(PropertySheet, OkAppliesTheShownPageAloneAndCloses)
{
    EXPECT_TRUE(Open(OnNothing(), {[&] {
                         Press(Id::doubleBuffer);
                         ClickTab(Axis);
                         Enter(Id::label, L"from the axis page");
                         Press(Id::ok);
                     }}));
    long bDoubleBuffer = 0;
    graph->GetDoubleBuffer(&bDoubleBuffer);
    EXPECT_NE(bDoubleBuffer, 0) << "pending on the other page";
    Text label;
    YAxis()->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L"from the axis page");
}

TEST_F(PropertySheet, CancelOfAPageClosesItWithoutApplying)
{
    EXPECT_TRUE(Open(OnYAxis(), {[&] {
                         Enter(Id::label, L"dropped");
                         Press(Id::cancel);
                     }}));
    Text label;
    YAxis()->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L" ");
}

TEST_F(PropertySheet, OkWithARefusedValueStaysOpen)
{
    MessageBoxes boxes;
    Open(OnNothing(), {[&] {
             Enter(Id::snapRange, L"101");
             (void)boxes.Take();
             Press(Id::ok);
             EXPECT_EQ(boxes.Take(),
                       std::vector<std::wstring>{L"Please enter an integer between 0 and 100."});
             EXPECT_NE(Sheet(), nullptr);
         }});
}

// The double click is reported, and answered only where there is something to show.
TEST_F(PropertySheet, AGraphWithoutDataOpensNone)
{
    const DialogCloser closer;
    const POINT at = OnNothing(), onAxis = OnYAxis();
    graph->DeleteCurve(0);
    Heards();
    BareDoubleClick(at);
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_GRAPHDBLCLICK)});
    BareDoubleClick(onAxis);
    graph->ResetAll();
    BareDoubleClick(at);
    EXPECT_EQ(closer.m_nClosed, 0);
}
