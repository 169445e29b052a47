#include "pie3d/PieChartWnd.h"

#include "framework/windowing/DeviceContexts.h"

#include <algorithm>
#include <utility>

namespace
{

// From here on the slices cost more time than a step of scrolling may take.
constexpr std::size_t VeryMany = 256;

constexpr float Corner = 30.0f;

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
    constexpr float round = 2 * Corner;
    GdiPlus::CPath path = GdiPlus::NewPath();
    GdiPlus::AddLine(path, {left + Corner, top}, {right - Corner, top});
    GdiPlus::AddArc(path, {right - round, top, round, round}, 270, 90);
    GdiPlus::AddLine(path, {right, top + Corner}, {right, bottom});
    GdiPlus::AddArc(path, {right - round, bottom - round, round, round}, 0, 90);
    GdiPlus::AddLine(path, {right - Corner, bottom}, {left + Corner, bottom});
    GdiPlus::AddArc(path, {left, bottom - round, round, round}, 90, 90);
    GdiPlus::AddLine(path, {left, bottom}, {left, top + Corner});
    GdiPlus::AddArc(path, {left, top, round, round}, 180, 90);
    return path;
}

} // namespace

void CPieChartWnd::DrawFrame(CDC& dc, TSlicePainter pfnSlices)
{
    if (m_nChartStyle == 2)
        ProjectAngles(); // clicks go by them, kept picture or not
    const TPicture picture = KeptOrNewPicture(pfnSlices);
    {
        const GdiPlus::CGraphics graphics = GdiPlus::CGraphics::Of(picture.Bitmap);
        graphics.SmoothHighQuality();
        DrawLabels(graphics);
        if (m_bShowPercent && !picture.bHasPercents)
            DrawPercents(graphics);
    }
    const GdiPlus::CGraphics screen = GdiPlus::CGraphics::Of(dc.m_hDC);
    if (m_nChartStyle == 2)
        screen.SmoothHighQuality();
    SaveImage(picture.Bitmap);
    const TRect client = ClientRect();
    screen.DrawWhole(picture.Bitmap, {client.left, client.top});
}

// The background and the slices. With very many of these, and the percents clear of the
// list, the percents follow at once and are kept with them for the next steps of scrolling.
CPieChartWnd::TPicture CPieChartWnd::KeptOrNewPicture(TSlicePainter pfnSlices)
{
    TPieLook look = PieLook();
    TPicture picture{m_KeptPicture.CopyFor(look), m_bKeptPercents};
    if (picture.Bitmap)
        return picture;
    picture = {KeptOrNewBackground(), false};
    {
        const GdiPlus::CGraphics graphics = GdiPlus::CGraphics::Of(picture.Bitmap);
        graphics.SmoothHighQuality();
        (this->*pfnSlices)(graphics);
        picture.bHasPercents = m_mapElements.size() >= VeryMany && !PercentsReachLabels(graphics);
        if (picture.bHasPercents && m_bShowPercent)
            DrawPercents(graphics);
    }
    m_KeptPicture.Keep(std::move(look), picture.Bitmap);
    m_bKeptPercents = picture.bHasPercents;
    return picture;
}

// Frame and title, which no change of the elements touches.
GdiPlus::CBitmap CPieChartWnd::KeptOrNewBackground()
{
    TBackgroundLook look = BackgroundLook();
    GdiPlus::CBitmap picture = m_KeptBackground.CopyFor(look);
    if (picture)
        return picture;
    picture = GdiPlus::NewBitmap(look.size);
    {
        const GdiPlus::CGraphics graphics = GdiPlus::CGraphics::Of(picture);
        graphics.SmoothHighQuality();
        DrawBackground(graphics);
    }
    m_KeptBackground.Keep(std::move(look), picture);
    return picture;
}

TPieFont CPieChartWnd::TitleFontLook() const
{
    const std::int32_t points = std::min(FrameOf(ClientRect()).Height() / 10, 20);
    return {std::wstring(m_strTitleFontName.View()), points, m_nTitleFontStyle};
}

TPieFont CPieChartWnd::LabelFontLook(std::int32_t nPoints) const
{
    return {std::wstring(m_strLabelFontName.View()), nPoints, m_nLabelFontStyle};
}

TBackgroundLook CPieChartWnd::BackgroundLook() const
{
    const TRect client = ClientRect();
    return {{client.Width(), client.Height()},
            m_crParentWindow,
            m_crBackgroundLight,
            m_crBackgroundDark,
            m_crLabel,
            std::wstring(m_strTitle.View()),
            TitleFontLook()};
}

TPieLook CPieChartWnd::PieLook() const
{
    TPieLook look{.background = BackgroundLook(),
                  .nChartStyle = m_nChartStyle,
                  .nPieLimit = m_nPieLimit,
                  .fStartAngle = m_fStartAngle,
                  .fInclineAngle = m_fInclineAngle,
                  .fDepthRatio = m_fDepthRatio,
                  .crSelected = m_crSelected,
                  .crLabel = m_crLabel,
                  .bShowPercent = m_bShowPercent != FALSE,
                  .percentFont = LabelFontLook(PieLabels::PercentFontSize(GetPieRect())),
                  .slices = {}};
    look.slices.reserve(m_mapElements.size());
    for (const auto& [key, element] : m_mapElements) {
        look.slices.push_back({element->fSweep, element->fPercent, element->crLight, element->crDark,
                               element->crColor, element->bSelected != FALSE});
    }
    return look;
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
    const GdiPlus::CFont font = NewFont(TitleFontLook());
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
    if (!m_bSaveImage)
        return 0;
    const int point = m_strImageFile.Find(L'.');
    const CString type = L"image/" + (point >= 0 ? m_strImageFile.Mid(point + 1) : CString());
    GdiPlus::Save(bitmap, m_strImageFile, type.View());
    m_bSaveImage = FALSE;
    return 1;
}
