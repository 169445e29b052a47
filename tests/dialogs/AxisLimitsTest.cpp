// Values that the page of an axis refuses, and its fonts.

#include "dialogs/AxisPageHost.h"

namespace
{

class AxisLimits : public AxisPageHost
{
protected:
    // The text is refused as it is typed and by Apply; the focus comes back, nothing is stored.
    void ExpectRefused(int id, const wchar_t* text, const std::wstring& box)
    {
        MessageBoxes boxes;
        OpenAxis({[&] {
            Press(Id::showGrid);
            Enter(id, text);
            EXPECT_EQ(boxes.Take(), Texts{box}) << id << ' ' << Narrow(text);
            // A closed field takes no focus.
            EXPECT_TRUE(!Enabled(id) || DialogHands::IsOffered(Shown(), id))
                << id << ' ' << Narrow(text);
            Press(Id::apply);
            EXPECT_EQ(boxes.Take(), Texts{box}) << id << ' ' << Narrow(text);
            EXPECT_TRUE(Enabled(Id::apply));
        }});
        EXPECT_EQ(Got(&ISGraphAxis::GetShowGrid), 1) << id << ' ' << Narrow(text);
    }
};

constexpr const wchar_t* NoUnsigned = L"Please enter a positive integer.";
constexpr const wchar_t* NoNumber = L"Please enter a number.";

} // namespace

TEST_F(AxisLimits, WholeNumbersHaveTheirLimits)
{
    const struct {
        int id;
        const wchar_t *below, *above, *box;
    } rows[] = {{Id::decimals, nullptr, L"7", L"Please enter an integer between 0 and 6."},
                {Id::arcSize, L"0", L"11", L"Please enter an integer between 1 and 10."},
                {Id::tickSize, L"0", L"11", L"Please enter an integer between 1 and 10."},
                {Id::markerSize, L"0", L"21", L"Please enter an integer between 1 and 20."},
                {Id::timeStep, L"0", L"22118401", L"Please enter an integer between 1 and 22118400."}};
    for (const auto& row : rows) {
        if (row.below != nullptr)
            ExpectRefused(row.id, row.below, row.box);
        ExpectRefused(row.id, row.above, row.box);
        ExpectRefused(row.id, L"4294967295", row.box);
        ExpectRefused(row.id, L"99999999999999999999", row.box);
    }
}

TEST_F(AxisLimits, WholeNumbersAreOfDigits)
{
    for (const int id : {Id::decimals, Id::arcSize, Id::tickSize, Id::markerSize, Id::timeStep}) {
        for (const wchar_t* text : {L"", L" ", L"-1", L"1,5", L"1.5", L"two"})
            ExpectRefused(id, text, NoUnsigned);
    }
}

TEST_F(AxisLimits, BoundsAndStepAreNumbers)
{
    for (const int id : {Id::min, Id::max, Id::step}) {
        for (const wchar_t* text :
             {L"", L" ", L"1,5", L"ten", L"1e", L"--1", L"nan", L"0x10", L"1e999", L"-1e999"})
            ExpectRefused(id, text, NoNumber);
    }
}

TEST_F(AxisLimits, AStepThatLeadsNowhereIsTakenAndTheAxisIsDrawn)
{
    for (const wchar_t* text : {L"-1", L"0", L"1e-300", L"1e300"}) {
        Apply([&] { Enter(Id::step, text); });
        ExpectBounds(0, 10);
        Shoot();
    }
}

TEST_F(AxisLimits, AnyTextIsATitleOrADateFormat)
{
    const std::wstring texts[] = {
        L"", L"%n %s %", std::wstring(1500, L'%'), L"%Q%9999999d%ls%n%n%n%n", L"\\n%H\\n%", L"曲线 \\"};
    for (const std::wstring& text : texts) {
        Apply([&] {
            if (!Checked(Id::dateTime))
                Press(Id::dateTime);
            Enter(Id::label, text.c_str());
            Enter(Id::dateFormat, text.c_str());
        });
        Shoot();
        Text label;
        YAxis()->GetLabel(label.Out());
        EXPECT_EQ(label.Str(), text);
        YAxis()->SetLabel(Text(L"")); // a long title leaves no room for the axis
        Frame();
        OpenAxis({[&] { EXPECT_EQ(Shows(Id::dateFormat), text); }});
    }
}

// The page takes no special care of a picker that has no date: it is that of the zero date, and
// equal bounds are widened by one.
TEST_F(AxisLimits, PickersInErrorStandForTheZeroDate)
{
    const auto Silent = [](HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR) -> LRESULT {
        return message == DTM_GETSYSTEMTIME ? static_cast<LRESULT>(GDT_ERROR)
                                            : ::DefSubclassProc(hWnd, message, wParam, lParam);
    };
    Apply([&] {
        Press(Id::dateTime);
        for (const int id : {Id::minDate, Id::minTime, Id::maxDate, Id::maxTime})
            ::SetWindowSubclass(Item(id), Silent, 1, 0);
        Enter(Id::label, L"taken");
    });
    Text label;
    YAxis()->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L"taken");
    ExpectBounds(-1, 1);
    Shoot();
}

TEST_F(AxisLimits, HugeBoundsAreTaken)
{
    ShowRange(L"-1e300", L"1e300");
    EXPECT_EQ(Format(), L"%5.1e");
    Shoot();
}

TEST_F(AxisLimits, TheLastValuesInsideAreTaken)
{
    Apply([] {
        Enter(Id::decimals, L"6");
        Enter(Id::arcSize, L"1");
        Enter(Id::tickSize, L"1");
        Enter(Id::markerSize, L"1");
        Enter(Id::timeStep, L"22118400");
    });
    EXPECT_EQ(Got(&ISGraphAxis::GetArcSize), 1);
    EXPECT_EQ(Got(&ISGraphAxis::GetTickSize), 1);
    EXPECT_EQ(Got(&ISGraphAxis::GetMarkerSize), 1);
    EXPECT_EQ(Format(), L"%5.6f");
}

TEST_F(AxisLimits, AFontIsTheAxissAtOnceAndCancelKeepsIt)
{
    for (const int button : {Id::scaleFont, Id::titleFont}) {
        YAxis()->SetLabel(Text(L"title"));
        const Picture before = Shoot();
        OpenAxis({[&] { Press(button); },
                  {ModalScript::FontDialog,
                   [](HWND hFonts) {
                       EXPECT_EQ(::GetWindow(hFonts, GW_OWNER), Sheet());
                       ::SetDlgItemTextW(hFonts, 1138, L"30");    // cmb3, the size
                       ::SetDlgItemTextW(hFonts, 1136, L"Arial"); // cmb1, the face
                       ::PostMessageW(hFonts, WM_COMMAND, IDOK, 0);
                   }},
                  [&] {
                      EXPECT_TRUE(Enabled(Id::apply));
                      Press(Id::cancel);
                  }});
        EXPECT_GT(Shoot().CountDifferences(before), 50) << button;
    }
}

TEST_F(AxisLimits, ACancelledFontDialogChangesNothing)
{
    OpenAxis(
        {[&] { Press(Id::scaleFont); },
         {ModalScript::FontDialog, [](HWND hFonts) { ::PostMessageW(hFonts, WM_COMMAND, IDCANCEL, 0); }},
         [&] { EXPECT_FALSE(Enabled(Id::apply)); }});
}
