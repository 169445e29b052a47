#pragma once
// Owners of GDI handles. An object that is attached to a handle deletes it when it is
// destroyed, unless the handle was detached before. A handle can be found back from its
// object (GetSafeHandle) and the object from its handle (FromHandle): a handle that no
// object owns gets a temporary one of the calling thread, which owns nothing and ends with the
// call or message that made it.
// Objects are not copied and not moved. Constructors that take the look of a pen, a brush
// or a palette throw CResourceException where the platform refuses; the Create functions
// return FALSE instead and leave the object empty.

#include "framework/windowing/Geometry.h"
#include "framework/windowing/HandleTable.h"
#include "framework/windowing/Object.h"

class CDC;

class CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject() noexcept = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    ~CGdiObject() override;

    HGDIOBJ m_hObject = nullptr;

    operator HGDIOBJ() const noexcept { return m_hObject; }
    [[nodiscard]] HGDIOBJ GetSafeHandle() const noexcept { return m_hObject; }
    // FALSE for a null handle, with nothing changed. A handle owned before must have been
    // detached or deleted.
    BOOL Attach(HGDIOBJ hObject);
    // The caller owns the result.
    HGDIOBJ Detach() noexcept;
    BOOL DeleteObject() noexcept;

    int GetObject(int nCount, LPVOID lpObject) const noexcept;
    bool operator==(const CGdiObject& object) const noexcept { return m_hObject == object.m_hObject; }

    static CGdiObject* FromHandle(HGDIOBJ hObject);

private:
    friend class HandleTable<CGdiObject>;
    HandleTableLink<CGdiObject> m_Link;
};

class CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen() noexcept = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor);

    operator HPEN() const noexcept { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    static CPen* FromHandle(HPEN hPen);
};

class CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() noexcept = default;
    explicit CBrush(COLORREF crColor);
    // Hatch styles 0 to 5 are the platform's.
    CBrush(int nIndex, COLORREF crColor);

    operator HBRUSH() const noexcept { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    static CBrush* FromHandle(HBRUSH hBrush);
};

class CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont() noexcept = default;

    operator HFONT() const noexcept { return static_cast<HFONT>(m_hObject); }
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                    BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    int GetLogFont(LOGFONT* pLogFont) const noexcept;
    static CFont* FromHandle(HFONT hFont);
};

class CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() noexcept = default;

    operator HBITMAP() const noexcept { return static_cast<HBITMAP>(m_hObject); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) const noexcept;
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const noexcept;
    static CBitmap* FromHandle(HBITMAP hBitmap);
};

class CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn() noexcept = default;

    operator HRGN() const noexcept { return static_cast<HRGN>(m_hObject); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    static CRgn* FromHandle(HRGN hRgn);
};

class CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette() noexcept = default;

    operator HPALETTE() const noexcept { return static_cast<HPALETTE>(m_hObject); }
    BOOL CreatePalette(const LOGPALETTE* lpLogPalette);
    static CPalette* FromHandle(HPALETTE hPalette);
};
