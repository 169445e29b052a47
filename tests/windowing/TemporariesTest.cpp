// How long the temporary objects of handles live. What a temporary object is made as shows whether
// it is still the same one: a pen that is found as a plain object stays a pen until it is freed.

#include <gtest/gtest.h>

#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/ThreadState.h"
#include "windowing/TestWindows.h"

namespace
{

class TemporaryHandles : public testing::Test
{
public:
    // Other tests may have left some from outside of any call.
    void SetUp() override { AfxGetThreadState().FreeTemporaries(true); }
    void TearDown() override
    {
        ::DeleteObject(pen);
        ::DeleteDC(canvas);
    }

    void MakeTemporaries() const
    {
        (void)CPen::FromHandle(pen);
        CDC::FromHandle(canvas)->m_bPrinting = TRUE;
    }
    bool PenIsKept() const
    {
        return CGdiObject::FromHandle(pen)->IsKindOf(RUNTIME_CLASS(CPen)) != FALSE;
    }
    bool ContextIsKept() const { return CDC::FromHandle(canvas)->IsPrinting() != FALSE; }

    const HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
    const HDC canvas = ::CreateCompatibleDC(nullptr);
};

} // namespace

TEST_F(TemporaryHandles, EndWithTheOutermostCall)
{
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        {
            AFX_MANAGE_STATE(AfxGetStaticModuleState());
            MakeTemporaries();
        }
        EXPECT_TRUE(PenIsKept());
        EXPECT_TRUE(ContextIsKept());
    }
    EXPECT_FALSE(PenIsKept());
    EXPECT_FALSE(ContextIsKept());
    EXPECT_EQ(::GetObjectType(pen), static_cast<DWORD>(OBJ_PEN)) << "it owned nothing";
    EXPECT_EQ(::GetObjectType(canvas), static_cast<DWORD>(OBJ_MEMDC));
}

TEST_F(TemporaryHandles, EndWithTheMessage)
{
    class CMakingWnd : public CWnd
    {
    public:
        explicit CMakingWnd(const TemporaryHandles& test) : m_test(test) {}

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
                m_test.MakeTemporaries();
            return CWnd::WindowProc(message, wParam, lParam);
        }

    private:
        const TemporaryHandles& m_test;
    };
    const CHostWindow host;
    CMakingWnd window(*this);
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    window.SendMessage(WM_APP);
    EXPECT_FALSE(PenIsKept());
    EXPECT_FALSE(ContextIsKept());
}

TEST_F(TemporaryHandles, ThoseOutsideOfAnyCallStayUntilTheNextMessageIsFetched)
{
    const CHostWindow host;
    CWnd child; // while there is one, the thread's queue is watched
    ASSERT_TRUE(child.Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    MakeTemporaries();
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
    }
    EXPECT_TRUE(PenIsKept());
    EXPECT_TRUE(ContextIsKept());
    ::PostMessageW(host.Handle(), WM_NULL, 0, 0);
    HostWindow::Pump();
    EXPECT_FALSE(PenIsKept());
    EXPECT_FALSE(ContextIsKept());
}
