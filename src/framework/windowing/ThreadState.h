#pragma once
// What the framework keeps for each thread. Made at first need; the system frees it when the
// thread ends, and for all threads when the module goes.

#include <memory>
#include <unordered_map>

#include <windows.h>

class CWnd;
struct AFX_MODULE_STATE;

// Held while a window gets or loses its permanent object. An object may be destroyed on another
// thread than its window's, as at the end of the module.
class CWindowOwnership
{
public:
    CWindowOwnership() noexcept;
    CWindowOwnership(const CWindowOwnership&) = delete;
    CWindowOwnership& operator=(const CWindowOwnership&) = delete;
    ~CWindowOwnership();
};

// Which object belongs to which window of this thread. Permanent objects belong to somebody;
// temporary ones belong to the map and end with their scope.
class CWndMap
{
public:
    CWndMap();
    CWndMap(const CWndMap&) = delete;
    CWndMap& operator=(const CWndMap&) = delete;
    ~CWndMap();

    [[nodiscard]] CWnd* LookupPermanent(HWND hWnd) const noexcept;
    [[nodiscard]] bool HasPermanent() const noexcept { return !m_permanent.empty(); }

    // Under CWindowOwnership.
    void SetPermanent(HWND hWnd, CWnd* pWnd) { m_permanent[hWnd] = pWnd; }
    [[nodiscard]] bool Holds(const CWnd& wnd) const noexcept;
    void RemovePermanent(HWND hWnd) noexcept { m_permanent.erase(hWnd); }
    // The windows that are left live on without their objects, and these without a window: the
    // thread ends, or a host unloads the module too early.
    void ReleaseWindows() noexcept;

    // The permanent object, else a temporary one.
    [[nodiscard]] CWnd* FromHandle(HWND hWnd, bool inScope);
    // Frees the temporary objects made inside of a scope; with `all`, the others too.
    void FreeTemporary(bool all) noexcept;

private:
    struct TTemporary {
        std::unique_ptr<CWnd> pWnd;
        bool inScope;
    };
    std::unordered_map<HWND, CWnd*> m_permanent;
    std::unordered_map<HWND, TTemporary> m_temporary;
};

struct AFX_THREAD_STATE {
    AFX_THREAD_STATE() noexcept;
    AFX_THREAD_STATE(const AFX_THREAD_STATE&) = delete;
    AFX_THREAD_STATE& operator=(const AFX_THREAD_STATE&) = delete;
    ~AFX_THREAD_STATE();

    // Whose map has the object as a window's permanent one; null: nobody's. Under CWindowOwnership.
    [[nodiscard]] static AFX_THREAD_STATE* OwnerOf(const CWnd& wnd) noexcept;

    // Frees the temporary objects of this thread: those made inside of a scope, or all. While the
    // thread holds a GDI object or context from outside of any, the others wait with it.
    void FreeTemporaries(bool all) noexcept;
    // Ends the watch of the queue when no permanent window is left.
    void UnwatchQueue() noexcept;

    const DWORD thread = ::GetCurrentThreadId();
    AFX_THREAD_STATE* next = nullptr; // in the list of all threads, under CWindowOwnership
    CWndMap windows;
    bool bHandlesInScope = false; // temporary GDI objects or contexts were made inside of a scope,
    bool bHandlesOutside = false; // and outside of any
    int nScopeDepth = 0;          // calls and messages under way, one in another
    AFX_MODULE_STATE* pModuleState = nullptr; // set as current; null: none

    MSG current{};            // the message under way, for CWnd::Default
    CWnd* pWndInit = nullptr; // waits for its window to be created
    HHOOK hCreateHook = nullptr;
    HHOOK hMessageHook = nullptr; // there while the thread has permanent windows
    bool bPumping = false;        // a loop of ours fetches and translates messages itself
    WCHAR szWndClass[96] = {};    // the result of AfxRegisterWndClass
};

// Raises a CMemoryException if there is no memory for it.
[[nodiscard]] AFX_THREAD_STATE& AfxGetThreadState();
// The state if the thread has one already.
[[nodiscard]] AFX_THREAD_STATE* AfxFindThreadState() noexcept;

// Notes that a temporary GDI object or context was made on this thread, which has no state if it
// runs nothing of ours; those of such a thread live until the module ends.
void AfxNoteTemporaryHandle() noexcept;
void AfxFreeTemporaryGdiObjects(DWORD thread) noexcept;
void AfxFreeTemporaryDCs(DWORD thread) noexcept;

// Lets the permanent windows of this thread see queued messages before they are dispatched,
// also where a host's loop fetches them; ends by itself with the last of those windows.
void AfxWatchQueue(AFX_THREAD_STATE& state) noexcept;
