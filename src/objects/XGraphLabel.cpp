#include "objects/XGraphLabel.h"

#include "base/Colors.h"
#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "framework/windowing/Archive.h"
#include "framework/windowing/Window.h"
#include "objects/ObjectFont.h"
#include "objects/PlotHost.h"
#include "objects/XGraphAxis.h"
#include "objects/XGraphDataSerie.h"

#include <optional>

IMPLEMENT_SERIAL(CXGraphLabel, CXGraphObject, 1)

namespace
{

constexpr UINT EditorId = 65534;
constexpr DWORD EditorStyle =
    WS_CHILD | WS_VISIBLE | ES_WANTRETURN | ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE;
// Styles that a stray alignment may hold and that would leave no usable child window.
constexpr DWORD NoEditorStyle = WS_POPUP | WS_DISABLED | WS_MINIMIZE | WS_MAXIMIZE;
constexpr UINT PropertiesItem = 40006;

} // namespace

CXGraphLabel::CXGraphLabel() : m_cText(L" "), m_crFillColor(::GetSysColor(COLOR_WINDOW))
{
    m_bCanResize = true;
    m_bCanMove = true;
    SetFont(ObjectFont::Arial(14, FW_NORMAL));
}

CXGraphLabel::~CXGraphLabel() = default;

void CXGraphLabel::SetFont(const LOGFONTW& font)
{
    m_Font.DeleteObject();
    m_Font.CreateFontIndirect(&font);
    if (m_Edit.m_hWnd)
        m_Edit.SetFont(&m_Font); // it writes in the one that has gone
}

void CXGraphLabel::Serialize(CArchive& ar)
{
    CXGraphObject::Serialize(ar);
    LOGFONTW font = {};
    static_assert(sizeof font == 92);
    if (ar.IsStoring()) {
        m_Font.GetLogFont(&font);
        ar << m_cText;
        ar.Write(&font, sizeof font);
        ar << m_crFillColor << m_crTextColor << m_bBorder << m_bTransparent << m_nAlignment << m_nCurve;
    } else {
        ar >> m_cText;
        ar.ReadExactly(&font, sizeof font);
        font.lfFaceName[LF_FACESIZE - 1] = 0;
        SetFont(font);
        ar >> m_crFillColor >> m_crTextColor >> m_bBorder >> m_bTransparent >> m_nAlignment >> m_nCurve;
    }
}

void CXGraphLabel::Draw(CDCEx* pDC)
{
    if (!m_bVisible)
        return;
    const bool bMono = pDC->m_bMono;
    const COLORREF crFill = bMono ? White : m_crFillColor;

    const CFontSelector selectFont(&m_Font, pDC, true);
    std::optional<CBrushSelector> selectBrush;
    HGDIOBJ hOldBrush = nullptr;
    if (m_bTransparent)
        hOldBrush = pDC->SelectHandle(::GetStockObject(HOLLOW_BRUSH));
    else
        selectBrush.emplace(crFill, pDC);
    std::optional<CPenSelector> selectPen;
    if (m_bBorder)
        selectPen.emplace(Black, 1, pDC, PS_SOLID);

    if (m_nCurve != -1)
        DrawTie(pDC);
    if (m_bTransparent) {
        pDC->SetBkMode(TRANSPARENT);
    } else {
        pDC->SetBkMode(OPAQUE);
        pDC->FillSolidRect(&m_rcObject, crFill);
    }
    if (m_bBorder)
        pDC->Rectangle(&m_rcObject);

    pDC->SetBkColor(crFill);
    const COLORREF crOldText = pDC->SetTextColor(bMono ? Black : m_crTextColor);
    if (m_bSizing)
        m_Tracker.Draw(pDC);
    if (m_bEditing) {
        m_Edit.ShowWindow(SW_SHOW);
    } else {
        CRect rcText = m_rcObject;
        rcText.DeflateRect(1, 1);
        pDC->DrawText(m_cText, &rcText, m_nAlignment);
    }
    pDC->SetTextColor(crOldText);
    pDC->SelectHandle(hOldBrush);
}

// From the curve's middle point to the middle of the box, which then hides its inner part.
void CXGraphLabel::DrawTie(CDCEx* pDC)
{
    const CXGraphDataSerie& curve = PlotHost::Curve(*m_pGraph, m_nCurve);
    if (curve.m_nCount <= 0)
        return;
    const TDataPoint& middle = curve.m_pData[curve.m_nCount / 2];
    pDC->MoveTo(PlotHost::XAxis(*m_pGraph, curve.m_nXAxis).GetPointForValue(middle).x,
                PlotHost::YAxis(*m_pGraph, curve.m_nYAxis).GetPointForValue(middle).y);
    pDC->LineTo(m_rcObject.CenterPoint());
}

void CXGraphLabel::BeginEdit()
{
    if (!m_bCanEdit)
        return;
    if (m_Edit.m_hWnd)
        m_Edit.DestroyWindow();
    m_bSizing = false;
    m_bEditing = true;
    CRect rcEditor = m_rcObject;
    rcEditor.DeflateRect(1, 1);
    // The alignment's bits are the editor's own styles too.
    m_Edit.Create((m_nAlignment & ~NoEditorStyle) | EditorStyle, rcEditor, &PlotHost::Window(*m_pGraph),
                  EditorId);
    m_Edit.SetFont(&m_Font);
    m_Edit.SetWindowText(m_cText);
    m_Edit.ShowWindow(SW_SHOW);
    PlotHost::Repaint(*m_pGraph);
    // The window that loses the focus is notified at once, and may remove this label.
    const HWND hEdit = m_Edit.m_hWnd;
    ::SetFocus(hEdit);
    ::SendMessageW(hEdit, EM_SETSEL, 0, -1);
    ::SendMessageW(hEdit, EM_SCROLLCARET, 0, 0);
}

void CXGraphLabel::EndEdit()
{
    if (!m_bCanEdit)
        return;
    m_bEditing = false;
    if (!m_Edit.m_hWnd)
        return; // the editor went with the graph's window: the text stays
    m_Edit.GetWindowText(m_cText);
    m_Edit.DestroyWindow();
}

void CXGraphLabel::InvokeProperties()
{
    POINT cursor = {};
    ::GetCursorPos(&cursor);
    CXGraph& graph = *m_pGraph;
    const TObjectRef self(this);
    const HMENU hMenu = ::CreatePopupMenu();
    ::AppendMenuW(hMenu, MF_STRING, PropertiesItem, L"Properties");
    const UINT nChosen =
        static_cast<UINT>(::TrackPopupMenu(hMenu, TPM_RETURNCMD | TPM_NONOTIFY, cursor.x, cursor.y, 0,
                                           PlotHost::Window(graph).m_hWnd, nullptr));
    ::DestroyMenu(hMenu);
    // Messages ran while the menu was open, and may have removed this label.
    if (nChosen == PropertiesItem && PlotHost::Owns(graph, self))
        ShowLabelProperties(*this);
}
