#include "framework/windowing/GdiObjects.h"

#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ThreadState.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

namespace
{
constinit HandleTable<CGdiObject> g_gdiTable;

// Frees the temporary objects when the module ends.
struct TGdiTableEnd {
    ~TGdiTableEnd() { g_gdiTable.DeleteTemporaries(0); }
} g_gdiTableEnd;

template <class TClass> TClass* FindGdiObject(HGDIOBJ handle)
{
    return g_gdiTable.Find<TClass>(handle, [handle] {
        AfxNoteTemporaryHandle();
        auto* object = new TClass;
        object->m_hObject = handle;
        return object;
    });
}
} // namespace

void AfxFreeTemporaryGdiObjects(DWORD thread) noexcept
{
    g_gdiTable.DeleteTemporaries(thread);
}

CGdiObject::~CGdiObject()
{
    // A temporary object has left the table, with its mark, before it is destroyed; what it
    // leaves behind is a handle that somebody else owns.
    if (m_Link.handle)
        DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (!hObject)
        return FALSE;
    g_gdiTable.Leave(this);
    m_hObject = hObject;
    g_gdiTable.Enter(this, hObject);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() noexcept
{
    g_gdiTable.Leave(this);
    const HGDIOBJ handle = m_hObject;
    m_hObject = nullptr;
    return handle;
}

BOOL CGdiObject::DeleteObject() noexcept
{
    if (!m_hObject)
        return FALSE;
    return ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const noexcept
{
    return ::GetObject(m_hObject, nCount, lpObject);
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return FindGdiObject<CGdiObject>(hObject);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

CPen* CPen::FromHandle(HPEN hPen)
{
    return FindGdiObject<CPen>(hPen);
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

CBrush* CBrush::FromHandle(HBRUSH hBrush)
{
    return FindGdiObject<CBrush>(hBrush);
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                               cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                               nPitchAndFamily, lpszFacename));
}

int CFont::GetLogFont(LOGFONT* pLogFont) const noexcept
{
    return GetObject(sizeof *pLogFont, pLogFont);
}

CFont* CFont::FromHandle(HFONT hFont)
{
    return FindGdiObject<CFont>(hFont);
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap)
{
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) const noexcept
{
    return GetObject(sizeof *pBitMap, pBitMap);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const noexcept
{
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
}

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap)
{
    return FindGdiObject<CBitmap>(hBitmap);
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateRectRgnIndirect(lpRect));
}

CRgn* CRgn::FromHandle(HRGN hRgn)
{
    return FindGdiObject<CRgn>(hRgn);
}

BOOL CPalette::CreatePalette(const LOGPALETTE* lpLogPalette)
{
    return Attach(::CreatePalette(lpLogPalette));
}

CPalette* CPalette::FromHandle(HPALETTE hPalette)
{
    return FindGdiObject<CPalette>(hPalette);
}
