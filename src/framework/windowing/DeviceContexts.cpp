#include "framework/windowing/DeviceContexts.h"

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

namespace
{
constinit HandleTable<CDC> g_dcTable;

// Frees the temporary contexts when the module ends.
struct TDCTableEnd {
    ~TDCTableEnd() { g_dcTable.DeleteTemporaries(0); }
} g_dcTableEnd;

HGDIOBJ HandleOf(const CGdiObject* pObject) noexcept
{
    return pObject ? pObject->GetSafeHandle() : nullptr;
}

bool IsPrinterDC(HDC hDC)
{
    // A memory context takes the technology of the device that it is compatible with.
    return ::GetObjectType(hDC) == OBJ_DC && ::GetDeviceCaps(hDC, TECHNOLOGY) == DT_RASPRINTER;
}
} // namespace

void AfxFreeTemporaryDCs(DWORD thread) noexcept
{
    g_dcTable.DeleteTemporaries(thread);
}

CDC::~CDC()
{
    // A temporary context has left the table, with its mark, before it is destroyed; what it
    // leaves behind is a handle that somebody else owns.
    if (m_Link.handle)
        DeleteDC();
}

CDC* CDC::FromHandle(HDC hDC)
{
    return g_dcTable.Find<CDC>(hDC, [hDC] {
        AfxNoteTemporaryHandle();
        auto* temporary = new CDC;
        temporary->m_hDC = temporary->m_hAttribDC = hDC;
        temporary->m_bPrinting = IsPrinterDC(hDC);
        return temporary;
    });
}

BOOL CDC::Attach(HDC hDC)
{
    if (!hDC)
        return FALSE;
    g_dcTable.Leave(this);
    m_hDC = hDC;
    g_dcTable.Enter(this, hDC);
    SetAttribDC(hDC);
    m_bPrinting = IsPrinterDC(hDC);
    return TRUE;
}

HDC CDC::Detach() noexcept
{
    g_dcTable.Leave(this);
    const HDC handle = m_hDC;
    m_hDC = nullptr;
    ReleaseAttribDC();
    return handle;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() noexcept
{
    if (!m_hDC)
        return FALSE;
    return ::DeleteDC(Detach());
}

void CDC::SetAttribDC(HDC hDC) noexcept
{
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC) noexcept
{
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC() noexcept
{
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC() noexcept
{
    m_hDC = nullptr;
}

int CDC::GetDeviceCaps(int nIndex) const noexcept
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

int CDC::SaveDC()
{
    int level = 0;
    if (m_hAttribDC)
        level = ::SaveDC(m_hAttribDC);
    if (m_hDC && m_hDC != m_hAttribDC && ::SaveDC(m_hDC) != 0)
        level = -1; // the two count apart; -1 is the latest of either
    return level;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    BOOL restored = TRUE;
    if (m_hDC && m_hDC != m_hAttribDC)
        restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC)
        restored = ::RestoreDC(m_hAttribDC, nSavedDC) && restored;
    return restored;
}

HGDIOBJ CDC::SelectHandle(HGDIOBJ hObject) const noexcept
{
    if (!hObject)
        return nullptr;
    HGDIOBJ old = nullptr;
    if (m_hDC && m_hDC != m_hAttribDC)
        old = ::SelectObject(m_hDC, hObject);
    if (m_hAttribDC)
        old = ::SelectObject(m_hAttribDC, hObject);
    return old;
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return CGdiObject::FromHandle(SelectHandle(::GetStockObject(nIndex)));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return CPen::FromHandle(static_cast<HPEN>(SelectHandle(HandleOf(pPen))));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectHandle(HandleOf(pBrush))));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return CFont::FromHandle(static_cast<HFONT>(SelectHandle(HandleOf(pFont))));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    // A bitmap fits one context at a time.
    if (!pBitmap || !pBitmap->GetSafeHandle())
        return nullptr;
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, *pBitmap)));
}

int CDC::SelectObject(CRgn* pRgn)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(SelectHandle(HandleOf(pRgn))));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    if (!pPalette || !pPalette->GetSafeHandle())
        return nullptr;
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::SelectPalette(m_hAttribDC, *pPalette, bForceBackground);
    return CPalette::FromHandle(::SelectPalette(m_hDC, *pPalette, bForceBackground));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

namespace
{
HWND SafeWindow(const CWnd* pWnd)
{
    return pWnd ? pWnd->m_hWnd : nullptr;
}
} // namespace

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(SafeWindow(pWnd))
{
    // For a null window the platform would return the screen.
    if (!m_hWnd || !Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(SafeWindow(pWnd))
{
    if ((pWnd && !m_hWnd) || !Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(SafeWindow(pWnd))
{
    if ((pWnd && !m_hWnd) || !Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
