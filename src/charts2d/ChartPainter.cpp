#include "charts2d/ChartPainter.h"

#include <algorithm>

#include "base/Wrap.h"

namespace ChartPainter
{

namespace
{

constexpr std::size_t LongestText = 8192;

std::wstring_view Drawable(std::wstring_view text) noexcept
{
    return text.substr(0, LongestText);
}

HFONT HandleOf(const CFont* font) noexcept
{
    return font ? static_cast<HFONT>(*font) : nullptr;
}

// Alignment 0 is the context's own, and OPAQUE its background: both are set back to these.
class CAlignment
{
public:
    CAlignment(HDC hDC, UINT alignment) noexcept : m_hDC(hDC) { ::SetTextAlign(hDC, alignment); }
    CAlignment(const CAlignment&) = delete;
    CAlignment& operator=(const CAlignment&) = delete;
    ~CAlignment() { ::SetTextAlign(m_hDC, TA_LEFT | TA_TOP); }

private:
    HDC m_hDC;
};

} // namespace

std::unique_ptr<CFont> MakeFont(std::int32_t height, std::int32_t width, int weight, LPCWSTR face)
{
    auto font = std::make_unique<CFont>();
    font->CreateFont(height, width, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                     OUT_CHARACTER_PRECIS, CLIP_CHARACTER_PRECIS, PROOF_QUALITY,
                     DEFAULT_PITCH | FF_DONTCARE, face);
    return font;
}

void PutText(HDC hDC, TPoint at, std::wstring_view text)
{
    const std::wstring_view shown = Drawable(text);
    ::SetBkMode(hDC, TRANSPARENT);
    ::TextOutW(hDC, at.x, at.y, shown.data(), static_cast<int>(shown.size()));
    ::SetBkMode(hDC, OPAQUE);
}

std::int32_t TextHeight(HDC hDC, std::wstring_view text)
{
    const std::wstring_view shown = Drawable(text);
    SIZE extent{};
    ::GetTextExtentPoint32W(hDC, shown.data(), static_cast<int>(shown.size()), &extent);
    return extent.cy;
}

CString TextOf(std::u16string_view text)
{
    return CString(text);
}

void FillRectangle(HDC hDC, const TRect& rect, COLORREF color)
{
    CBrush brush;
    brush.CreateSolidBrush(color);
    const RECT target{rect.left, rect.top, rect.right, rect.bottom};
    ::FillRect(hDC, &target, brush);
}

void DrawRectangle(HDC hDC, const TRect& rect, COLORREF fill)
{
    CBrush brush;
    brush.CreateSolidBrush(fill);
    const CSelection selection(hDC, brush);
    ::Rectangle(hDC, rect.left, rect.top, rect.right, rect.bottom);
}

void DrawAxes(HDC hDC, std::span<const ChartMeasures::TLine> lines)
{
    for (const ChartMeasures::TLine& line : lines) {
        ::MoveToEx(hDC, line.ptFrom.x, line.ptFrom.y, nullptr);
        ::LineTo(hDC, line.ptTo.x, line.ptTo.y);
    }
}

void DrawValueLabels(HDC hDC, const CFont* font, std::span<const ChartMeasures::TValueLabel> labels)
{
    const CSelection selection(hDC, HandleOf(font));
    const CAlignment alignment(hDC, TA_RIGHT);
    for (const ChartMeasures::TValueLabel& label : labels) {
        CString text;
        text.Format(L"%d", label.nValue);
        PutText(hDC, label.ptRight, text.View());
    }
}

void DrawSegmentLabel(HDC hDC, TPoint upperMiddle, std::u16string_view text)
{
    const CAlignment alignment(hDC, TA_CENTER);
    PutText(hDC, upperMiddle, TextOf(text).View());
}

void DrawLegend(HDC hDC, const CFont* font, const LegendLayout::TShape& shape, TPoint position,
                TSize size, std::span<const TLegendRow> rows, COLORREF text, COLORREF background)
{
    const CSelection selection(hDC, HandleOf(font));
    const std::int32_t lineHeight = TextHeight(hDC, L"ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    const auto legend =
        LegendLayout::Layout(shape, position, size, static_cast<std::int32_t>(rows.size()), lineHeight);
    DrawRectangle(hDC, legend.rcBox, background);

    const CTextColor textColor(hDC, text);
    std::int32_t top = legend.nTop;
    for (const TLegendRow& row : rows) {
        FillRectangle(hDC, LegendLayout::Mark(shape, legend, size, top), row.crMark);
        PutText(hDC, {legend.nTextLeft, top}, row.strText.View());
        top = Wrap::Add(top, TextHeight(hDC, row.strName.View()));
    }
}

} // namespace ChartPainter
