#pragma once
// Drives modal dialogs of this thread from inside their loops. The steps run one after the
// other, each from a timer that fires when no other message waits: so what a step has posted
// is done before the next one starts. The first step waits for a dialog to be shown.

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <string>
#include <vector>

class ModalDriver
{
public:
    using Step = std::function<void()>;

    // Opens, and drives what has opened. A dialog that the last step leaves is cancelled.
    static void Run(const Step& open, std::vector<Step> steps)
    {
        ModalDriver driver(std::move(steps));
        open();
        EXPECT_EQ(driver.m_nStep, driver.m_steps.size()) << "steps that no dialog was left for";
        EXPECT_FALSE(driver.m_bForced) << "a dialog stayed open";
    }

    // The shown dialogs of this thread, the topmost first.
    static std::vector<HWND> Dialogs()
    {
        std::vector<HWND> dialogs;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND hWnd, LPARAM lParam) -> BOOL {
                WCHAR className[16] = {};
                ::GetClassNameW(hWnd, className, static_cast<int>(std::size(className)));
                if (std::wstring(className) == L"#32770" && ::IsWindowVisible(hWnd))
                    reinterpret_cast<std::vector<HWND>*>(lParam)->push_back(hWnd);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&dialogs));
        return dialogs;
    }

    // For the step under way: what it needs isn't there yet, and it is to run once more.
    static void Again()
    {
        if (++Current()->m_nLooks < 500)
            --Current()->m_nStep;
        else
            ADD_FAILURE() << "what a step waits for doesn't come";
    }

private:
    explicit ModalDriver(std::vector<Step> steps) : m_steps(std::move(steps))
    {
        m_pBefore = Current();
        Current() = this;
        m_nTimer = ::SetTimer(nullptr, 0, 10, &ModalDriver::OnTimer);
    }
    ~ModalDriver()
    {
        ::KillTimer(nullptr, m_nTimer);
        Current() = m_pBefore;
    }
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;

    static ModalDriver*& Current()
    {
        static ModalDriver* pCurrent = nullptr;
        return pCurrent;
    }

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR nTimer, DWORD)
    {
        ModalDriver* const driver = Current();
        if (driver != nullptr && driver->m_nTimer == nTimer)
            driver->Tick();
    }
    void Tick()
    {
        const std::vector<HWND> dialogs = Dialogs();
        if (dialogs.empty())
            return;
        if (m_nStep < m_steps.size()) {
            m_steps[m_nStep++](); // a step may open another dialog, whose loop runs the next ones
            return;
        }
        // After the last step; a second look means that cancelling didn't help.
        m_bForced = m_bCancelled && ++m_nLooks > 50;
        if (m_bForced)
            ::DestroyWindow(dialogs.front());
        else if (!m_bCancelled)
            ::PostMessageW(dialogs.front(), WM_COMMAND, IDCANCEL, 0);
        m_bCancelled = true;
    }

    std::vector<Step> m_steps;
    std::size_t m_nStep = 0;
    int m_nLooks = 0;
    bool m_bCancelled = false;
    bool m_bForced = false;
    UINT_PTR m_nTimer;
    ModalDriver* m_pBefore;
};
