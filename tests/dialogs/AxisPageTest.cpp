// The page of an axis: what it shows, what it opens and what Apply does.

#include "dialogs/AxisPageHost.h"

namespace
{
class AxisPage : public AxisPageHost
{
};
} // namespace

TEST_F(AxisPage, ShowsWhatTheAxisHas)
{
    for (const int on : {0, 1}) {
        const auto axis = YAxis();
        axis->SetLabel(Text(L"Ω title"));
        axis->SetShowGrid(on);
        axis->SetShowMarker(on);
        axis->SetArcSize(3);
        axis->SetTickSize(4);
        axis->SetMarkerSize(15);
        axis->SetGridStyle(1);
        axis->SetPlacement(on ? apLeft : apRight);
        axis->SetDisplayFmt(Text(L"%5.2f"));
        Frame();
        OpenAxis({[&] {
            EXPECT_EQ(Shows(Id::label), L"Ω title");
            EXPECT_EQ(Checked(Id::showGrid), on != 0);
            EXPECT_EQ(Checked(Id::showKeys), on != 0);
            EXPECT_TRUE(Checked(Id::visible));
            EXPECT_FALSE(Checked(Id::autoScale));
            EXPECT_FALSE(Checked(Id::dateTime));
            EXPECT_EQ(Shows(Id::arcSize), L"3");
            EXPECT_EQ(Shows(Id::tickSize), L"4");
            EXPECT_EQ(Shows(Id::markerSize), L"15");
            EXPECT_EQ(Row(Id::gridStyle), 1);
            EXPECT_EQ(Row(Id::placement), on ? apLeft : apRight);
            EXPECT_EQ(Shows(Id::decimals), L"2");
            EXPECT_EQ(Shows(Id::min), L"0");
            EXPECT_EQ(Shows(Id::max), L"10");
            EXPECT_FALSE(Enabled(Id::apply));
        }});
    }
}

TEST_F(AxisPage, TheSpinsHaveTheirRangesAndTheTicksStartsFromTheArrow)
{
    YAxis()->SetArcSize(7);
    YAxis()->SetTickSize(3);
    YAxis()->SetMarkerSize(12);
    OpenAxis({[&] {
        const auto Range = [](int id) { return ::SendMessageW(Item(id), UDM_GETRANGE, 0, 0); };
        EXPECT_EQ(Range(Id::decimalsSpin), MAKELONG(6, 0));
        EXPECT_EQ(Range(Id::arcSpin), MAKELONG(10, 1));
        EXPECT_EQ(Range(Id::tickSpin), MAKELONG(10, 1));
        EXPECT_EQ(Range(Id::markerSpin), MAKELONG(20, 1));
        EXPECT_EQ(Shows(Id::tickSize), L"3") << "the edit has the right size";
        ::SetFocus(Item(Id::markerSize));
        ::SendMessageW(Item(Id::markerSize), WM_KEYDOWN, VK_UP, 1);
        EXPECT_EQ(Shows(Id::markerSize), L"13");
    }});
}

// The rows that the lists have are this build's choice.
TEST_F(AxisPage, TheListsHaveTheRowsOfThisBuild)
{
    OpenAxis({[&] {
        EXPECT_EQ(Rows(Id::gridStyle).size(), 5u);
        EXPECT_EQ(Rows(Id::placement), (Texts{L"左", L"右", L"自动"}));
        EXPECT_EQ(Rows(Id::timeUnit), (Texts{L"秒", L"分", L"时", L"天"}));
    }});
}

TEST_F(AxisPage, AutoscaleAndDatesCloseWhatTheyDecide)
{
    OpenAxis({[&] {
        ExpectStates(true, false, true, false);
        Press(Id::autoScale);
        ExpectStates(false, false, true, false);
        Press(Id::dateTime);
        ExpectStates(false, false, false, true);
        Press(Id::autoScale);
        ExpectStates(false, true, false, true);
        Press(Id::dateTime);
        ExpectStates(true, false, true, false);
    }});
}

TEST_F(AxisPage, OpensWithTheStatesOfItsAxis)
{
    YAxis()->SetDateTime(1);
    Frame();
    OpenAxis({[&] {
        ExpectStates(false, true, false, true);
        EXPECT_FALSE(Enabled(Id::apply));
    }});
    YAxis()->SetAutoScale(1);
    OpenAxis({[&] { ExpectStates(false, false, false, true); }});
}

TEST_F(AxisPage, EveryChangeEnablesApply)
{
    std::vector<std::function<void()>> changes;
    for (const int id : {Id::autoScale, Id::dateTime, Id::showGrid, Id::visible, Id::showKeys})
        changes.push_back([id] { Press(id); });
    for (const int id : {Id::arcSize, Id::dateFormat, Id::markerSize, Id::max, Id::min, Id::label,
                         Id::decimals, Id::step, Id::tickSize, Id::timeStep})
        changes.push_back([id] { Enter(id, L"2"); });
    changes.push_back([] { Choose(Id::placement, 1); });
    changes.push_back([] { Choose(Id::gridStyle, 4); });
    for (const int id : {Id::placement, Id::gridStyle, Id::timeUnit}) {
        changes.push_back([id] {
            ::SendMessageW(Shown(), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(Item(id)));
        });
    }
    for (const int id : {Id::minDate, Id::minTime, Id::maxDate, Id::maxTime})
        changes.push_back([id] { SetTime(id, {2020, 3, 0, 1, 6, 30, 15, 0}); });
    changes.push_back([] { EXPECT_EQ(::SendMessageW(Shown(), 2025, 0x123456, Id::color), 0); });
    for (std::size_t i = 0; i < changes.size(); ++i) {
        OpenAxis({[&] {
            EXPECT_FALSE(Enabled(Id::apply));
            changes[i]();
            EXPECT_TRUE(Enabled(Id::apply)) << i;
        }});
    }
}

TEST_F(AxisPage, ApplyStoresAndRepaints)
{
    OpenAxis({[&] {
        Enter(Id::label, L"new");
        Press(Id::showGrid);
        Press(Id::showKeys);
        Enter(Id::arcSize, L"10");
        Enter(Id::tickSize, L"9");
        Enter(Id::markerSize, L"20");
        Choose(Id::gridStyle, 3);
        Choose(Id::placement, 1);
        EXPECT_EQ(Got(&ISGraphAxis::GetArcSize), 5) << "not yet";
        Clean();
        Press(Id::apply);
        EXPECT_TRUE(IsDirty());
        EXPECT_FALSE(Enabled(Id::apply));
    }});
    Text label;
    YAxis()->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L"new");
    EXPECT_EQ(Got(&ISGraphAxis::GetShowGrid), 0);
    EXPECT_EQ(Got(&ISGraphAxis::GetShowMarker), 0);
    EXPECT_EQ(Got(&ISGraphAxis::GetArcSize), 10);
    EXPECT_EQ(Got(&ISGraphAxis::GetTickSize), 9);
    EXPECT_EQ(Got(&ISGraphAxis::GetMarkerSize), 20);
    EXPECT_EQ(Got(&ISGraphAxis::GetGridStyle), 3u);
    EXPECT_EQ(Got(&ISGraphAxis::GetPlacement), apRight);
    EXPECT_EQ(Got(&ISGraphAxis::GetDateTime), 0);
}

TEST_F(AxisPage, TheVisibleCheckHidesTheAxis)
{
    Apply([] { Press(Id::visible); });
    long bVisible = 1;
    YAxis()->GetVisible(&bVisible);
    EXPECT_EQ(bVisible, 0);
}

TEST_F(AxisPage, ApplyShowsTheRange)
{
    ShowRange(L"-5", L"25.5");
    ExpectBounds(-5, 25.5);
    OpenAxis({[&] {
        EXPECT_EQ(Shows(Id::min), L"-5");
        EXPECT_EQ(Shows(Id::max), L"25.5");
        Enter(Id::step, L"2.5");
        Press(Id::apply);
    }});
    OpenAxis({[&] { EXPECT_EQ(Shows(Id::step), L"2.5"); }});
}

TEST_F(AxisPage, ARangeUpsideDownIsNotTakenAndTheRestIs)
{
    Apply([] {
        Enter(Id::min, L"7");
        Enter(Id::max, L"3");
        Enter(Id::label, L"taken");
    });
    ExpectBounds(0, 10);
    Text label;
    YAxis()->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L"taken");
}

TEST_F(AxisPage, WithAutoscaleApplyDoesNotTouchTheRange)
{
    Apply([] {
        Enter(Id::min, L"2");
        Press(Id::autoScale);
    });
    EXPECT_EQ(Got(&ISGraphAxis::GetAutoScale), 1);
    OpenAxis({[&] { EXPECT_EQ(Shows(Id::min), L"0"); }});
}

TEST_F(AxisPage, TheDecimalsMakeTheFormat)
{
    const struct {
        const wchar_t *min, *max, *format;
    } rows[] = {{L"0", L"10", L"%5.3f"},      {L"0", L"1e6", L"%5.3f"},  {L"0", L"2e6", L"%5.3e"},
                {L"-2e6", L"0", L"%5.3e"},    {L"1e-7", L"1", L"%5.3e"}, {L"-1e-7", L"1", L"%5.3e"},
                {L"0.000001", L"1", L"%5.3f"}};
    for (const auto& row : rows) {
        Apply([&] {
            Enter(Id::min, row.min);
            Enter(Id::max, row.max);
            Enter(Id::decimals, L"3");
        });
        EXPECT_EQ(Format(), row.format) << Narrow(row.min) << " to " << Narrow(row.max);
    }
}

TEST_F(AxisPage, AFormatWithoutAPointLeavesTheDecimals)
{
    YAxis()->SetDisplayFmt(Text(L"%g"));
    OpenAxis({[&] { EXPECT_EQ(Shows(Id::decimals), L"0"); }});
    YAxis()->SetDisplayFmt(Text(L"%5.4f"));
    OpenAxis({[&] {
        EXPECT_EQ(Shows(Id::decimals), L"4");
        EXPECT_EQ(::SendMessageW(Item(Id::decimalsSpin), UDM_GETPOS, 0, 0), 4);
    }});
}

// A host's robot can leave the list without a row; then no placement is chosen.
TEST_F(AxisPage, ApplyWithoutAPlacementLeavesTheAxisAtNone)
{
    Apply([] {
        ::SendMessageW(Item(Id::placement), CB_RESETCONTENT, 0, 0);
        ::SendMessageW(Item(Id::gridStyle), CB_RESETCONTENT, 0, 0);
        Press(Id::showGrid);
    });
    EXPECT_EQ(static_cast<int>(Got(&ISGraphAxis::GetPlacement)), -1);
    EXPECT_EQ(Got(&ISGraphAxis::GetGridStyle), 0xFFFFFFFFu);
    Shoot();
    OpenAxis({[&] {
        EXPECT_EQ(Row(Id::placement), -1);
        EXPECT_EQ(Row(Id::gridStyle), -1);
    }});
}

TEST_F(AxisPage, OkAppliesAndCloses)
{
    EXPECT_TRUE(OpenAxis({[&] {
        Enter(Id::label, L"by OK");
        Press(Id::ok);
    }}));
    Text label;
    YAxis()->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L"by OK");
}

TEST_F(AxisPage, TheColoursAreThoseOfTheAxisAndItsGrid)
{
    YAxis()->SetColor(0x2030F0);
    YAxis()->SetGridColor(0x40F050);
    OpenAxis({[&] {
        const auto ShownColor = [](int id) {
            ::UpdateWindow(Item(id));
            return Picture(Item(id)).At(12, 8);
        };
        EXPECT_EQ(ShownColor(Id::color), 0x2030F0u);
        EXPECT_EQ(ShownColor(Id::gridColor), 0x40F050u);
        Enter(Id::label, L"x");
        Press(Id::apply);
    }});
    ULONG color = 0;
    YAxis()->GetColor(&color);
    EXPECT_EQ(color, 0x2030F0u);
    EXPECT_EQ(Got(&ISGraphAxis::GetGridColor), 0x40F050u);
}

TEST_F(AxisPage, TheGridStylesAreDrawnAsLines)
{
    OpenAxis({[&] {
                  ::SetFocus(Item(Id::label));
                  Choose(Id::gridStyle, 0);
                  ::SetFocus(Item(Id::label));
              },
              [&] {
                  const HWND list = Item(Id::gridStyle);
                  ::UpdateWindow(list);
                  COMBOBOXINFO info = {};
                  info.cbSize = sizeof info;
                  ::GetComboBoxInfo(list, &info);
                  const Picture picture(list);
                  const int x = (info.rcItem.left + info.rcItem.right) / 2;
                  int black = 0;
                  for (int y = info.rcItem.top; y < info.rcItem.bottom; ++y)
                      black += picture.At(x, y) == 0 ? 1 : 0;
                  EXPECT_EQ(black, 1) << "a solid line of one pixel";
                  MEASUREITEMSTRUCT item = {};
                  item.CtlType = ODT_COMBOBOX;
                  item.CtlID = Id::gridStyle;
                  ::SendMessageW(Shown(), WM_MEASUREITEM, Id::gridStyle,
                                 reinterpret_cast<LPARAM>(&item));
                  EXPECT_EQ(item.itemHeight, 16u);
                  EXPECT_EQ(item.itemWidth, 16u);
              }});
}

TEST_F(AxisPage, AGridStyleIsDrawnInTheColoursOfItsStateAndOnlyTheFirstFive)
{
    OpenAxis({[&] {
        const HDC hScreen = ::GetDC(nullptr);
        const HDC hDC = ::CreateCompatibleDC(hScreen);
        const HBITMAP hBitmap = ::CreateCompatibleBitmap(hScreen, 40, 16);
        const HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
        const auto Draw = [&](UINT row, UINT state) {
            ::PatBlt(hDC, 0, 0, 40, 16, BLACKNESS);
            ::SetPixel(hDC, 1, 1, 0x0000FF);
            DRAWITEMSTRUCT item = {
                ODT_COMBOBOX, Id::gridStyle,  row, ODA_DRAWENTIRE, state, Item(Id::gridStyle),
                hDC,          {0, 0, 40, 16}, 0};
            ::SendMessageW(Shown(), WM_DRAWITEM, Id::gridStyle, reinterpret_cast<LPARAM>(&item));
        };
        Draw(0, 0);
        EXPECT_EQ(::GetPixel(hDC, 1, 1), ::GetSysColor(COLOR_WINDOW));
        EXPECT_EQ(::GetPixel(hDC, 0, 6), 0u);
        EXPECT_EQ(::GetPixel(hDC, 39, 6), 0u);
        EXPECT_EQ(::GetPixel(hDC, 20, 5), ::GetSysColor(COLOR_WINDOW));
        Draw(4, ODS_SELECTED);
        EXPECT_EQ(::GetPixel(hDC, 1, 1), ::GetSysColor(COLOR_HIGHLIGHT));
        Draw(5, 0);
        EXPECT_EQ(::GetPixel(hDC, 1, 1), 0x0000FFu) << "left as it was";
        Draw(static_cast<UINT>(-1), 0);
        EXPECT_EQ(::GetPixel(hDC, 1, 1), 0x0000FFu);
        ::SelectObject(hDC, hOld);
        ::DeleteObject(hBitmap);
        ::DeleteDC(hDC);
        ::ReleaseDC(nullptr, hScreen);
    }});
}
