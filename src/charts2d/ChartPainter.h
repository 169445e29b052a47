#pragma once
// Painting that the charts share, on a device context that is handed in. What is selected or
// set for a call is put back by it.

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "base/Geometry.h"
#include "charts2d/ChartMeasures.h"
#include "charts2d/LegendLayout.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"

#include <windows.h>

namespace ChartPainter
{

// Keeps an object selected for a scope. Selects nothing for null.
class CSelection
{
public:
    CSelection(HDC hDC, HGDIOBJ hObject) noexcept
        : m_hDC(hDC), m_hOld(hObject ? ::SelectObject(hDC, hObject) : nullptr)
    {
    }
    CSelection(const CSelection&) = delete;
    CSelection& operator=(const CSelection&) = delete;
    ~CSelection()
    {
        if (m_hOld)
            ::SelectObject(m_hDC, m_hOld);
    }

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};

// Keeps a text colour set for a scope.
class CTextColor
{
public:
    CTextColor(HDC hDC, COLORREF color) noexcept : m_hDC(hDC), m_crOld(::SetTextColor(hDC, color)) {}
    CTextColor(const CTextColor&) = delete;
    CTextColor& operator=(const CTextColor&) = delete;
    ~CTextColor() { ::SetTextColor(m_hDC, m_crOld); }

private:
    HDC m_hDC;
    COLORREF m_crOld;
};

// A font of the charts. A width of 0 lets the font mapper choose.
[[nodiscard]] std::unique_ptr<CFont> MakeFont(std::int32_t height, std::int32_t width, int weight,
                                              LPCWSTR face);

// Without a background, at the current alignment. What GDI takes no more than is left out: the
// end of a text of more than 8192 units lies far outside any window.
void PutText(HDC hDC, TPoint at, std::wstring_view text);
[[nodiscard]] std::int32_t TextHeight(HDC hDC, std::wstring_view text);

[[nodiscard]] CString TextOf(std::u16string_view text);

void FillRectangle(HDC hDC, const TRect& rect, COLORREF color);

// Outlined in the current pen.
void DrawRectangle(HDC hDC, const TRect& rect, COLORREF fill);

void DrawAxes(HDC hDC, std::span<const ChartMeasures::TLine> lines);

// In the current text colour.
void DrawValueLabels(HDC hDC, const CFont* font, std::span<const ChartMeasures::TValueLabel> labels);
void DrawSegmentLabel(HDC hDC, TPoint upperMiddle, std::u16string_view text);

struct TLegendRow {
    COLORREF crMark = 0;
    CString strText;
    CString strName; // its height is the row's
};

void DrawLegend(HDC hDC, const CFont* font, const LegendLayout::TShape& shape, TPoint position,
                TSize size, std::span<const TLegendRow> rows, COLORREF text, COLORREF background);

} // namespace ChartPainter
