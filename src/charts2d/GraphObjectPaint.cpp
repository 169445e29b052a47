// How a frame is painted: background, chart, texts and legend on the frame bitmap, then one copy
// to the window.

#include "charts2d/ChartPainter.h"
#include "charts2d/GraphObject.h"
#include "charts2d/GraphObjectCharts.h"

namespace
{

constexpr COLORREF ShadowColor = 0x808080;

// A picture of the window's size, selected into a memory context. Both stay null where the
// platform has no room for it.
void MakePicture(CDC& dc, TSize size, std::unique_ptr<CBitmap>& pBitmap, std::unique_ptr<CDC>& pMemDC)
{
    pMemDC.reset();
    pBitmap.reset();
    if (!WindowLayout::HasFrame(size))
        return;
    auto bitmap = std::make_unique<CBitmap>();
    auto memory = std::make_unique<CDC>();
    if (!memory->CreateCompatibleDC(&dc) || !bitmap->CreateCompatibleBitmap(&dc, size.cx, size.cy))
        return;
    memory->SelectObject(bitmap.get());
    pBitmap = std::move(bitmap);
    pMemDC = std::move(memory);
}

TRIVERTEX Vertex(LONG x, LONG y, COLORREF color) noexcept
{
    const auto channel = [](BYTE value) { return static_cast<COLOR16>(value << 8); };
    return {x, y, channel(GetRValue(color)), channel(GetGValue(color)), channel(GetBValue(color)), 0};
}

// Fills what the clip box of a context holds.
void EraseClipBox(CDC& dc, const CBrush& brush)
{
    const ChartPainter::CSelection selection(dc, brush);
    CRect box;
    dc.GetClipBox(&box);
    dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATCOPY);
}

} // namespace

void CGraphObject::MakeFrame()
{
    CClientDC dc(m_hWnd ? this : nullptr);
    MakePicture(dc, m_szGraph, m_pBitmap, m_pMemDC);
    MakePicture(dc, m_szGraph, m_pGradientBitmap, m_pGradientDC);
    if (m_pMemDC) // a bitmap is black at first
        ChartPainter::FillRectangle(*m_pMemDC, {0, 0, m_szGraph.cx, m_szGraph.cy}, m_crBackground);
    m_bRedraw = true;
    FillGradient();
}

void CGraphObject::FillGradient()
{
    if (!m_pGradientDC)
        return;
    TRIVERTEX vertices[] = {Vertex(0, 0, m_crGradient1),
                            Vertex(m_szGraph.cx, m_szGraph.cy, m_crGradient2)};
    GRADIENT_RECT mesh{0, 1};
    ::GdiGradientFill(*m_pGradientDC, vertices, 2, &mesh, 1, static_cast<ULONG>(m_nGradientMode));
}

void CGraphObject::OnPaint()
{
    CPaintDC paint(this);
    if (m_pMemDC && m_pGradientDC && HasChart())
        PaintFrame();
    else
        PaintBackgroundAlone(paint);
}

void CGraphObject::PaintBackgroundAlone(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    ChartPainter::FillRectangle(dc, static_cast<TRect>(client), m_crBackground);
}

void CGraphObject::PaintFrame()
{
    CDC& frame = *m_pMemDC;
    if (m_nFillType == solidFill)
        ChartPainter::FillRectangle(frame, WindowLayout::ClearRect(Kind(), m_szGraph), m_crBackground);
    else
        frame.BitBlt(0, 0, m_szGraph.cx, m_szGraph.cy, m_pGradientDC.get(), 0, 0, SRCCOPY);

    WithChart([&](auto& chart) { chart.Draw(frame); });
    if (m_nFillType == gradientFill) {
        DrawTexts();
    } else if (m_bRedraw) {
        const COLORREF oldBackground = frame.SetBkColor(m_crBackground);
        DrawTexts();
        frame.SetBkColor(oldBackground);
        m_bRedraw = false;
    }

    CRect client;
    GetClientRect(&client);
    CClientDC window(this);
    window.BitBlt(0, 0, client.Width(), client.Height(), &frame, 0, 0, SRCCOPY);
}

void CGraphObject::DrawTexts()
{
    DrawCaption(WindowLayout::Title(m_szGraph), m_strTitle, m_pTitleFont.get(), m_bTitleShadow == 1,
                m_crTitle);
    DrawCaption(WindowLayout::Subtitle(m_szGraph), m_strSubtitle, m_pSubtitleFont.get(),
                m_bSubtitleShadow == 1, m_crSubtitle);
    if (m_bLegend == 1)
        WithChart([&](auto& chart) { chart.DrawLegend(*m_pMemDC); });
}

void CGraphObject::DrawCaption(const WindowLayout::TTextPlace& place, const CString& text, CFont* pFont,
                               bool bShadow, COLORREF color)
{
    const HDC hDC = *m_pMemDC;
    const ChartPainter::CSelection font(hDC, pFont ? static_cast<HFONT>(*pFont) : nullptr);
    if (bShadow) {
        const ChartPainter::CTextColor shadow(hDC, ShadowColor);
        ChartPainter::PutText(hDC, place.Shadow, text.View());
    }
    const ChartPainter::CTextColor textColor(hDC, color);
    ChartPainter::PutText(hDC, place.Text, text.View());
}

BOOL CGraphObject::OnEraseBkgnd(CDC* pDC)
{
    m_bRedraw = true;
    CBrush brush;
    brush.CreateSolidBrush(m_crBackground);
    if (pDC) // none comes with the message where the platform has no room for one
        EraseClipBox(*pDC, brush);
    if (m_pMemDC)
        EraseClipBox(*m_pMemDC, brush);
    return TRUE;
}

void CGraphObject::OnTimer(UINT_PTR)
{
    if (HasChart()) {
        double percent = 0;
        WithChart([&](auto& chart) {
            chart.Animate();
            percent = chart.AnimationPercent();
        });
        if (percent >= 100 && m_pMemDC)
            ChartPainter::FillRectangle(*m_pMemDC, WindowLayout::TickClearRect(m_szGraph),
                                        m_crBackground);
        m_bRedraw = false;
        Repaint();
    }
    Default();
}
