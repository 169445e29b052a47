// What two hundred openings of the sheet's curve page and its dialogs leave behind.

#include "CurvePageHost.h"
#include "support/GdiCount.h"

#include <psapi.h>

using namespace CurvePage;
using namespace DialogHands;

namespace
{

class CurveEndurance : public CurvePageTest
{
protected:
    static SIZE_T Memory()
    {
        PROCESS_MEMORY_COUNTERS counters = {};
        ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
        return counters.PagefileUsage;
    }
    void ExpectNothingLeft(const std::function<void()>& once)
    {
        for (int i = 0; i < 5; ++i)
            once();
        HostWindow::Pump();
        const int nObjects = GdiCount::All();
        const int nWindows = CountWindows();
        const SIZE_T nMemory = Memory();
        for (int i = 0; i < 200; ++i)
            once();
        HostWindow::Pump();
        EXPECT_EQ(GdiCount::All(), nObjects);
        EXPECT_EQ(CountWindows(), nWindows);
        EXPECT_LT(Memory(), nMemory + 2'000'000) << "10 kB an opening would be a leak";
    }
};

} // namespace

TEST_F(CurveEndurance, TheSheetOnACurve)
{
    ExpectNothingLeft([this] {
        OpenAnd([](HWND hPage) {
            Click(hPage, visible);
            Click(hPage, visible);
            Click(hPage, apply);
        });
        Curve(0)->SetLineStyle(0);
        Curve(0)->SetType(gtLine);
    });
}

TEST_F(CurveEndurance, TrendAndAverageAndTheirMessageBox)
{
    OpenAnd([this](HWND hPage) {
        ExpectNothingLeft([=, this] {
            Ask(
                hPage, linearTrend, kTrend,
                [this](HWND hDialog) {
                    Paste(hDialog, degree, L"1");
                    EXPECT_NE(BoxFrom([=] { DialogHands::Click(hDialog, ok); }), L"");
                    DialogHands::Click(hDialog, cancel);
                },
                false);
            Ask(
                hPage, average, kAverage, [](HWND hDialog) { DialogHands::Click(hDialog, cancel); },
                false);
        });
    });
}
