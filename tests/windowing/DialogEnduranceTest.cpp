// What many openings of dialogs leave behind.

#include <gtest/gtest.h>

#include "framework/windowing/Dialog.h"
#include "framework/windowing/ThreadState.h"
#include "support/GdiCount.h"
#include "support/HeapUse.h"
#include "support/Openings.h"
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

} // namespace

TEST(DialogEndurance, OpeningsLeaveNothing)
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
    const int windows = Openings::CountWindows();
    const std::ptrdiff_t bytes = HeapUse::Bytes();
    open(Openings::Count());
    EXPECT_EQ(GdiCount::All(), objects);
    EXPECT_EQ(Openings::CountWindows(), windows);
    EXPECT_LT(HeapUse::Bytes() - bytes, Openings::Count() * 16);
    EXPECT_EQ(AfxGetThreadState().hMessageHook, nullptr);
    EXPECT_EQ(AfxGetThreadState().hCreateHook, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.Handle()));
}
