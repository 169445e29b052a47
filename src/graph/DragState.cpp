#include "graph/DragState.h"

#include <windows.h>

#include <new>

namespace
{
constexpr ULONG_PTR Step = 0x10000; // the granularity of allocation
constexpr ULONG_PTR End = 0x80000000;

class CLowPage
{
public:
    CLowPage() noexcept
    {
        for (ULONG_PTR address = Step; address < End && !m_pPage; address += Step)
            m_pPage = VirtualAlloc(reinterpret_cast<void*>(address), sizeof(TPointChange),
                                   MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
        m_pRecord = m_pPage ? new (m_pPage) TPointChange : &m_Own;
    }
    ~CLowPage()
    {
        if (m_pPage)
            VirtualFree(m_pPage, 0, MEM_RELEASE);
    }
    CLowPage(const CLowPage&) = delete;
    CLowPage& operator=(const CLowPage&) = delete;

    [[nodiscard]] TPointChange& Record() const noexcept { return *m_pRecord; }

private:
    void* m_pPage = nullptr;
    TPointChange m_Own;
    TPointChange* m_pRecord = nullptr;
};
} // namespace

TDragState& DragState() noexcept
{
    static TDragState state;
    return state;
}

TPointChange& PointChange() noexcept
{
    static CLowPage page;
    return page.Record();
}
