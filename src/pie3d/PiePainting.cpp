#include "pie3d/PieChartWnd.h"

#include "framework/windowing/DeviceContexts.h"

#include <algorithm>

namespace
{

// From here on the slices cost more time than a step of scrolling may take.
constexpr std::size_t nVeryMany = 256;

constexpr float fCorner = 30.0f;

// The frame needs this much, so a smaller window shows a part of it.
TRect FrameOf(TRect rcClient) noexcept
{
    rcClient.right = std::max(rcClient.right, 300);
    rcClient.bottom = std::max(rcClient.bottom, 150);
    return rcClient;
}

GdiPlus::CPath RoundedFrame(const TRect& rc) noexcept
{
    const auto left = static_cast<float>(rc.left);
    const auto top = static_cast<float>(rc.top);
    const auto right = static_cast<float>(rc.right);
    const auto bottom = static_cast<float>(rc.bottom);
    constexpr float round = 2 * fCorner;
    GdiPlus::CPath path = GdiPlus::NewPath();
    GdiPlus::AddLine(path, {left + fCorner, top}, {right - fCorner, top});
    GdiPlus::AddArc(path, {right - round, top, round, round}, 270, 90);
    GdiPlus::AddLine(path, {right, top + fCorner}, {right, bottom});
    GdiPlus::AddArc(path, {right - round, bottom - round, round, round}, 0, 90);
    GdiPlus::AddLine(path, {right - fCorner, bottom}, {left + fCorner, bottom});
    GdiPlus::AddArc(path, {left, bottom - round, round, round}, 90, 90);
    GdiPlus::AddLine(path, {left, bottom}, {left, top + fCorner});
    GdiPlus::AddArc(path, {left, top, round, round}, 180, 90);
    return path;
}

} // namespace

void CPieChartWnd::DrawFrame(CDC& dc, TSlicePainter pfnSlices)
{
    const TRect client = ClientRect();
    const TPicture picture = KeptOrNewPicture(client, pfnSlices);
    {
        const GdiPlus::CGraphics graphics = GdiPlus::CGraphics::Of(picture.Bitmap);
        graphics.SmoothHighQuality();
        DrawLabels(graphics);
        if (m_bShowPercent && !picture.bHasPercents) {
            DrawPercents(graphics);
        }
    }
    const GdiPlus::CGraphics screen = GdiPlus::CGraphics::Of(dc.m_hDC);
    if (m_nChartStyle == 2) {
        screen.SmoothHighQuality();
    }
    SaveImage(picture.Bitmap);
    screen.DrawWhole(picture.Bitmap, {client.left, client.top});
}

CPieChartWnd::TPicture CPieChartWnd::KeptOrNewPicture(const TRect& rcClient, TSlicePainter pfnSlices)
{
    if (m_KeptPicture) {
        GdiPlus::CBitmap copy = GdiPlus::CloneOf(m_KeptPicture);
        if (copy) {
            return {std::move(copy), true};
        }
    }
    return NewPicture(rcClient, pfnSlices);
}

// The background and the slices. With very many of these, and the percents clear of the
// list, the percents follow at once and the result is kept for the next steps of scrolling.
CPieChartWnd::TPicture CPieChartWnd::NewPicture(const TRect& rcClient, TSlicePainter pfnSlices)
{
    TPicture picture{GdiPlus::NewBitmap({rcClient.Width(), rcClient.Height()})};
    {
        const GdiPlus::CGraphics graphics = GdiPlus::CGraphics::Of(picture.Bitmap);
        graphics.SmoothHighQuality();
        DrawBackground(graphics);
        (this->*pfnSlices)(graphics);
        picture.bHasPercents = m_mapElements.size() >= nVeryMany && !PercentsReachLabels(graphics);
        if (picture.bHasPercents && m_bShowPercent) {
            DrawPercents(graphics);
        }
    }
    if (picture.bHasPercents) {
        m_KeptPicture = GdiPlus::CloneOf(picture.Bitmap);
    }
    return picture;
}

GdiPlus::CLineBrush CPieChartWnd::DiagonalBrush() const
{
    const TRect rc = FrameOf(ClientRect());
    return GdiPlus::NewLineBrush({rc.left, rc.top}, {rc.right, rc.bottom}, m_crBackgroundLight,
                                 m_crBackgroundDark);
}

void CPieChartWnd::DrawBackground(const GdiPlus::CGraphics& graphics) const
{
    const TRect client = ClientRect();
    const GdiPlus::CSolidBrush behind =
        GdiPlus::NewSolidBrush(PieColors::FromColorRef(m_crParentWindow));
    graphics.FillRectangle(behind.Get(), GdiPlus::ToFloats(client));

    const TRect frame = FrameOf(client);
    graphics.FillPath(DiagonalBrush().Get(), RoundedFrame(frame));
    DrawTitle(graphics, frame);
}

void CPieChartWnd::DrawTitle(const GdiPlus::CGraphics& graphics, const TRect& rcFrame) const
{
    const std::int32_t points = std::min(rcFrame.Height() / 10, 20);
    const GdiPlus::CFont font = GdiPlus::NewFont(m_strTitleFontName, points, m_nTitleFontStyle);
    const GdiPlus::CSolidBrush brush = GdiPlus::NewSolidBrush(m_crLabel);
    const GdiPlus::CStringFormat format = GdiPlus::NewStringFormat(0);
    const PieGeometry::TRectF size = graphics.Measure(m_strTitle.View(), font);
    const auto middle = static_cast<float>(PieGeometry::CentreOf(rcFrame).x);
    graphics.DrawString(
        m_strTitle.View(), font,
        {middle - size.width * 0.5f, static_cast<float>(rcFrame.top + 30), size.width, size.height},
        brush.Get(), &format);
}

int CPieChartWnd::SaveImage(const GdiPlus::CBitmap& bitmap)
{
    if (!m_bSaveImage) {
        return 0;
    }
    const int point = m_strImageFile.Find(L'.');
    const CString type = L"image/" + (point >= 0 ? m_strImageFile.Mid(point + 1) : CString());
    GdiPlus::Save(bitmap, m_strImageFile, type.View());
    m_bSaveImage = FALSE;
    return 1;
}
