#include "framework/windowing/ThreadState.h"

#include <new>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/Window.h"

namespace
{

void CALLBACK FreeThreadState(void* state) noexcept
{
    delete static_cast<AFX_THREAD_STATE*>(state);
}

// The system's own per-thread slot rather than the compiler's: it ends with the thread in a
// library as well as in a program, and when the library goes, for all threads at once.
class CThreadSlot
{
public:
    CThreadSlot() noexcept : m_index(::FlsAlloc(&FreeThreadState)) {}
    CThreadSlot(const CThreadSlot&) = delete;
    CThreadSlot& operator=(const CThreadSlot&) = delete;
    ~CThreadSlot()
    {
        if (IsValid())
            ::FlsFree(m_index);
    }

    [[nodiscard]] bool IsValid() const noexcept { return m_index != FLS_OUT_OF_INDEXES; }
    [[nodiscard]] AFX_THREAD_STATE* Get() const noexcept
    {
        return IsValid() ? static_cast<AFX_THREAD_STATE*>(::FlsGetValue(m_index)) : nullptr;
    }
    [[nodiscard]] bool Set(AFX_THREAD_STATE* state) const noexcept
    {
        return IsValid() && ::FlsSetValue(m_index, state);
    }

private:
    DWORD m_index;
};

const CThreadSlot& Slot() noexcept
{
    static const CThreadSlot slot;
    return slot;
}

} // namespace

AFX_THREAD_STATE* AfxFindThreadState() noexcept
{
    // Reading the slot clears the last error, which callers in between may still want.
    const DWORD error = ::GetLastError();
    AFX_THREAD_STATE* const state = Slot().Get();
    ::SetLastError(error);
    return state;
}

AFX_THREAD_STATE& AfxGetThreadState()
{
    if (AFX_THREAD_STATE* const state = AfxFindThreadState())
        return *state;
    std::unique_ptr<AFX_THREAD_STATE> state(new (std::nothrow) AFX_THREAD_STATE);
    if (!state || !Slot().Set(state.get()))
        AfxThrowMemoryException();
    return *state.release();
}

AFX_THREAD_STATE::~AFX_THREAD_STATE()
{
    if (hCreateHook)
        ::UnhookWindowsHookEx(hCreateHook);
    if (hMessageHook)
        ::UnhookWindowsHookEx(hMessageHook);
}

CWndMap::CWndMap() = default;
CWndMap::~CWndMap() = default;

CWnd* CWndMap::LookupPermanent(HWND hWnd) const noexcept
{
    const auto found = m_permanent.find(hWnd);
    return found == m_permanent.end() ? nullptr : found->second;
}

CWnd* CWndMap::FromHandle(HWND hWnd, bool inScope)
{
    if (!hWnd)
        return nullptr;
    if (CWnd* const permanent = LookupPermanent(hWnd))
        return permanent;
    const auto known = m_temporary.find(hWnd);
    if (known != m_temporary.end())
        return known->second.pWnd.get();
    auto made = std::make_unique<CWnd>();
    made->m_hWnd = hWnd;
    CWnd* const result = made.get();
    m_temporary.emplace(hWnd, TTemporary{std::move(made), inScope});
    return result;
}

void CWndMap::FreeTemporary(bool all) noexcept
{
    std::erase_if(m_temporary, [all](const auto& entry) { return all || entry.second.inScope; });
}
