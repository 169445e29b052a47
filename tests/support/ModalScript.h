#pragma once
// Works dialogs out of their own modal loops, as a person would: each step waits until the
// window that it is for takes input, and then runs on the thread of the loop. A step may open
// another dialog; the steps that follow then run inside of it.
//
// A window that a step waits for and that never comes, and one that is left when all steps have
// run, fails the test and is closed, so that no test hangs. After CancelWhatIsLeft a window may be
// left: it is cancelled at once.

#include <windows.h>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>

class ModalScript
{
public:
    using Action = std::function<void(HWND)>;

    ModalScript()
    {
        Current() = this;
        m_nTimer = ::SetTimer(nullptr, 0, 10, &ModalScript::OnTimer);
    }
    ModalScript(const ModalScript&) = delete;
    ModalScript& operator=(const ModalScript&) = delete;
    ~ModalScript()
    {
        ::KillTimer(nullptr, m_nTimer);
        Current() = nullptr;
        EXPECT_TRUE(m_steps.empty()) << "no window came for the step " << NextName();
    }

    // For the dialog, message box or platform dialog of that caption that takes input.
    void When(std::wstring caption, Action action)
    {
        m_steps.push_back({std::move(caption), std::move(action)});
    }
    // For the popup menu that is open.
    void WhenMenu(Action action) { m_steps.push_back({Menu, std::move(action)}); }

    void CancelWhatIsLeft() { m_bCancels = true; }
    [[nodiscard]] bool HasCancelled() const { return m_hCancelled != nullptr; }

    static constexpr const wchar_t* Menu = L"a popup menu";
    // In place of captions of the platform's, which are in the user's language.
    static constexpr const wchar_t* FontDialog = L"the platform's fonts";
    static constexpr const wchar_t* ColorDialog = L"the platform's colours";

    // The dialog of this thread that takes input, or with `bOwner` also one that waits for a dialog
    // of its own; null if there is none.
    [[nodiscard]] static HWND Find(const std::wstring& caption, bool bOwner = false)
    {
        return Find(Search{&caption, bOwner, nullptr});
    }
    // Any window at all that a modal loop would belong to.
    [[nodiscard]] static HWND FindAny() { return Find(Search{nullptr, false, nullptr}); }

private:
    struct Step {
        std::wstring caption;
        Action action;
    };
    struct Search {
        const std::wstring* pCaption;
        bool bOwner;
        HWND hFound;
    };
    static constexpr int Patience = 1500; // ticks without a step that could run

    static ModalScript*& Current()
    {
        static ModalScript* pCurrent = nullptr;
        return pCurrent;
    }

    static HWND Find(Search search)
    {
        ::EnumThreadWindows(::GetCurrentThreadId(), &ModalScript::Test,
                            reinterpret_cast<LPARAM>(&search));
        return search.hFound;
    }
    static std::wstring NameOf(HWND hDialog)
    {
        constexpr int fontSizes = 0x472, fontScripts = 0x474,
                      colorRed = 706; // as dlgs.h and colordlg.h have them
        if (::GetDlgItem(hDialog, fontSizes) && ::GetDlgItem(hDialog, fontScripts))
            return FontDialog;
        if (::GetDlgItem(hDialog, colorRed))
            return ColorDialog;
        wchar_t text[128] = {};
        ::GetWindowTextW(hDialog, text, 128);
        return text;
    }
    static BOOL CALLBACK Test(HWND hWnd, LPARAM lParam)
    {
        auto& search = *reinterpret_cast<Search*>(lParam);
        wchar_t className[16] = {};
        ::GetClassNameW(hWnd, className, 16);
        const bool bMenu = std::wstring(className) == L"#32768";
        if (!::IsWindowVisible(hWnd) || (!search.bOwner && !::IsWindowEnabled(hWnd)) ||
            (!bMenu && std::wstring(className) != L"#32770"))
            return TRUE;
        if (search.pCaption == nullptr || (bMenu ? Menu : NameOf(hWnd)) == *search.pCaption) {
            search.hFound = hWnd;
            return FALSE;
        }
        return TRUE;
    }

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        if (Current() != nullptr)
            Current()->Tick();
    }

    void Tick()
    {
        const HWND hWnd = m_steps.empty() ? nullptr : Find(m_steps.front().caption);
        if (hWnd != nullptr) {
            m_nWaited = 0;
            const Step step = std::move(m_steps.front());
            m_steps.pop_front();
            step.action(hWnd);
            return;
        }
        const HWND hLeft = FindAny();
        if (m_bCancels && m_steps.empty() && hLeft != nullptr && hLeft != m_hCancelled) {
            m_hCancelled = hLeft;
            ::PostMessageW(hLeft, WM_COMMAND, IDCANCEL, 0);
            return;
        }
        if (hLeft == nullptr || ++m_nWaited < (m_steps.empty() ? Patience / 3 : Patience))
            return;
        ADD_FAILURE() << "a window is left open, while waited for: " << NextName();
        m_steps.clear();
        m_nWaited = Patience - 20;
        ::PostMessageW(hLeft, WM_CLOSE, 0, 0);
    }

    [[nodiscard]] std::string NextName() const
    {
        if (m_steps.empty())
            return "nothing";
        std::string name;
        for (const wchar_t unit : m_steps.front().caption)
            name += unit < 128 ? static_cast<char>(unit) : '?';
        return name;
    }

    UINT_PTR m_nTimer = 0;
    std::deque<Step> m_steps;
    int m_nWaited = 0;
    bool m_bCancels = false;
    HWND m_hCancelled = nullptr;
};
