// What many openings of dialogs leave behind.

#include <gtest/gtest.h>

#include "framework/windowing/Dialog.h"
#include "framework/windowing/ThreadState.h"
#include "support/GdiCount.h"
#include "support/HeapUse.h"
#include "windowing/TestWindows.h"

namespace
{

// Closes itself by its first message.
class CShortDialog : public CDialog
{
public:
    using CDialog::CDialog;
    BOOL OnInitDialog() override
    {
        PostMessage(WM_COMMAND, IDCANCEL);
        return CDialog::OnInitDialog();
    }
};

int CountWindows()
{
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND, LPARAM result) -> BOOL {
            ++*reinterpret_cast<int*>(result);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

} // namespace

TEST(DialogEndurance, TwoHundredOpeningsLeaveNothing)
{
    CHostWindow host;
    ::SetActiveWindow(host.Handle());
    const auto open = [](int times) {
        for (int count = 0; count < times; ++count) {
            EXPECT_EQ(CShortDialog(30000).DoModal(), IDCANCEL);
            HostWindow::Pump();
        }
    };
    open(20);
    const int objects = GdiCount::All();
    const int windows = CountWindows();
    const std::ptrdiff_t bytes = HeapUse::Bytes();
    open(200);
    EXPECT_EQ(GdiCount::All(), objects);
    EXPECT_EQ(CountWindows(), windows);
    EXPECT_LT(HeapUse::Bytes() - bytes, 200 * 16);
    EXPECT_EQ(AfxGetThreadState().hMessageHook, nullptr);
    EXPECT_EQ(AfxGetThreadState().hCreateHook, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.Handle()));
}
