// The label list and the percents.

#include "pie3d/PieChartWnd.h"

#include "pie3d/PieShares.h"

#include <algorithm>
#include <string>
#include <utility>

namespace
{

constexpr INT LineLimit = 8192; // StringFormatFlagsLineLimit

std::wstring PercentText(const SPieElement& element, bool bTwoDigits = false)
{
    const std::u16string text = PieShares::PercentText(element.fPercent, bTwoDigits);
    return {text.begin(), text.end()};
}

float AsFloat(std::int32_t value) noexcept
{
    return static_cast<float>(value);
}

// Whether a column has room for a text; no width at all is no limit. Without room for the margins
// nothing is shown, but the platform may lose a memory context in the attempt.
bool HasRoom(float width, float margins) noexcept
{
    return width <= 0 || width >= margins;
}

} // namespace

void CPieChartWnd::DrawLabels(const GdiPlus::CGraphics& graphics) const
{
    const TRect pie = GetPieRect();
    const GdiPlus::CStringFormat format = GdiPlus::NewStringFormat(LineLimit);
    const GdiPlus::CSolidBrush mark = GdiPlus::NewSolidBrush(0xFF000000);
    const GdiPlus::CPen edge = GdiPlus::NewPen(0xFF000000, 2.0f);
    const GdiPlus::CSolidBrush ink = GdiPlus::NewSolidBrush(m_crLabel);
    const GdiPlus::CFont font = NewFont(LabelFontLook(PieLabels::LabelFontSize(pie)));

    const std::int32_t firstY = PieLabels::FirstRow(pie, m_nElements, m_nRowHeight, m_nRowGap);
    const float textX = AsFloat(6 * pie.right / 5 + m_nMarkWidth);
    const float longest = graphics.Measure(m_strLongestLabel.View(), font, {textX, 0, 0, 0}).width;
    const float margins = graphics.Measure(L" ", font).width;
    const PieGeometry::TRectF percentSize = graphics.Measure(L"100.00%", font);
    const PieLabels::TColumns columns = PieLabels::ColumnsFor(
        pie, m_nMarkWidth, ClientRect().right - m_nScrollBarInset, longest, percentSize.width);
    const auto first = m_mapElements.find(m_nFirstLabel);
    if (m_bLabelPercent)
        DrawPercentBox(graphics, columns, firstY);

    std::int32_t y = firstY;
    for (auto row = first; row != m_mapElements.end() && y + m_nRowHeight <= pie.bottom; ++row) {
        const SPieElement& element = *row->second;
        const PieGeometry::TRectF rcMark{AsFloat(columns.nMarkX), AsFloat(y), AsFloat(m_nMarkWidth),
                                         AsFloat(m_nRowHeight)};
        GdiPlus::SetColor(mark, element.crColor);
        GdiPlus::SetColor(edge, PieColors::LightenColor(element.crColor, 200.0f));
        graphics.FillRectangle(mark.Get(), rcMark);
        graphics.DrawRectangle(edge, rcMark);
        if (HasRoom(columns.fTextWidth, margins)) {
            graphics.DrawString(element.strLabel.View(), font,
                                {textX, AsFloat(y), columns.fTextWidth, AsFloat(m_nRowHeight)},
                                ink.Get(), &format);
        }
        if (m_bLabelPercent && columns.fPercentWidth > 0) {
            DrawPercentSeparator(graphics, columns, firstY, y);
            const std::wstring percent = PercentText(element, true);
            if (HasRoom(columns.fPercentWidth, margins)) {
                graphics.DrawString(
                    percent, font,
                    {columns.fPercentX + 1, AsFloat(y), columns.fPercentWidth, percentSize.height},
                    ink.Get(), &format);
            }
        }
        y += m_nRowGap + m_nRowHeight;
    }
}

void CPieChartWnd::DrawPercentBox(const GdiPlus::CGraphics& graphics, const PieLabels::TColumns& columns,
                                  std::int32_t nFirstY) const
{
    const GdiPlus::CSolidBrush box = GdiPlus::NewSolidBrush(m_crLabelBox);
    graphics.FillRectangle(box.Get(), {columns.fPercentX, AsFloat(nFirstY), columns.fPercentWidth,
                                       AsFloat(std::min(m_nLabelsHeight, m_nVisibleHeight))});
}

void CPieChartWnd::DrawPercentSeparator(const GdiPlus::CGraphics& graphics,
                                        const PieLabels::TColumns& columns, std::int32_t nFirstY,
                                        std::int32_t nRowY) const
{
    const std::int32_t y = nRowY + m_nRowHeight + m_nRowGap / 2;
    if (m_nVisibleHeight > y - nFirstY) {
        const GdiPlus::CPen light = GdiPlus::NewPen(PieColors::LightenColor(m_crLabelBox, 200.0f), 1.0f);
        graphics.DrawLine(light, {columns.fPercentX, AsFloat(y)},
                          {columns.fPercentX + columns.fPercentWidth, AsFloat(y)});
    }
}

void CPieChartWnd::DrawPercents(const GdiPlus::CGraphics& graphics)
{
    const TRect pie = GetPieRect();
    const PieGeometry::TFaces faces = Faces();
    const TPieFont fontLook = LabelFontLook(PieLabels::PercentFontSize(pie));
    const GdiPlus::CFont font = NewFont(fontLook);
    const GdiPlus::CSolidBrush ink = GdiPlus::NewSolidBrush(m_crLabel);
    float start = m_fStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        const PieGeometry::TPointF centre =
            PieLabels::PercentCentre(pie, faces, m_nChartStyle == 2, start, element->fSweep);
        const std::wstring text = PercentText(*element);
        const PieGeometry::TRectF size = m_PercentSizes.Of(text, graphics, font, fontLook);
        graphics.DrawString(
            text, font, {centre.x - size.width * 0.5f, centre.y - size.height * 0.5f, 0, 0}, ink.Get());
        start += element->fSweep;
    }
}

// Whether a percent may overlap the label list, so that it matters which is drawn first.
bool CPieChartWnd::PercentsReachLabels(const GdiPlus::CGraphics& graphics)
{
    std::wstring longest;
    for (const auto& [key, element] : m_mapElements) {
        std::wstring text = PercentText(*element);
        if (text.size() > longest.size())
            longest = std::move(text);
    }
    const TRect pie = GetPieRect();
    const std::int32_t farthest = PieGeometry::CentreOf(pie).x + 2 * pie.Width() / 5;
    const std::int32_t list = pie.right + pie.right / 10;
    constexpr float margin = 4.0f; // the mark's edge, and digits of unequal width
    const TPieFont fontLook = LabelFontLook(PieLabels::PercentFontSize(pie));
    const float width = m_PercentSizes.Of(longest, graphics, NewFont(fontLook), fontLook).width;
    return AsFloat(farthest) + width * 0.5f + margin > AsFloat(list);
}
