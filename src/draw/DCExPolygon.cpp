// The polygons of the canvas: as they are, cut to the surroundings of what is visible, or row
// by row.

#include "draw/DCEx.h"

#include "draw/CanvasReach.h"
#include "draw/PolygonRows.h"

#include <algorithm>
#include <cstring>
#include <vector>

using CanvasReach::IsRecording;
using CanvasReach::Within;
using LongLines::TVertex;

namespace
{
// Beside what is visible of a polygon: edges that are cut at both ends move by half a pixel
// at most, others by much less.
constexpr int PolygonRoom = 1 << 15;

// Steps that a polygon may cost the platform: some hundredths of a second.
constexpr double MostCost = 1 << 23;

bool IsFilledAlone(HDC hDC) noexcept
{
    LOGPEN pen{};
    ::GetObject(::GetCurrentObject(hDC, OBJ_PEN), sizeof pen, &pen);
    return pen.lopnStyle == PS_NULL && ::GetPolyFillMode(hDC) == ALTERNATE;
}

// A clip region is in pixels of the device, which are the canvas's own but for their origin. (A
// printer's driver takes a polygon as one path, and would take the region rectangle by rectangle.)
bool CanFillRows(HDC hDC) noexcept
{
    return ::GetDeviceCaps(hDC, TECHNOLOGY) == DT_RASDISPLAY && ::GetMapMode(hDC) == MM_TEXT &&
           ::GetGraphicsMode(hDC) == GM_COMPATIBLE && IsFilledAlone(hDC);
}

// Those that the platform would get.
std::vector<TVertex> CutVertices(std::span<const TVertex> vertices, const LongLines::TArea& area)
{
    std::vector<TVertex> cut;
    for (const TPoint& pixel : LongLines::CutPolygon(vertices, area))
        cut.push_back({static_cast<double>(pixel.x), static_cast<double>(pixel.y)});
    return cut;
}

bool CreateFromBands(CRgn& region, const std::vector<TRect>& bands, const CRect& bounds)
{
    static_assert(sizeof(TRect) == sizeof(RECT));
    const auto nBytes = static_cast<DWORD>(bands.size() * sizeof(RECT));
    std::vector<char> data(sizeof(RGNDATAHEADER) + nBytes);
    const RGNDATAHEADER header = {sizeof header, RDH_RECTANGLES, static_cast<DWORD>(bands.size()),
                                  nBytes, bounds};
    std::memcpy(data.data(), &header, sizeof header);
    if (!bands.empty())
        std::memcpy(data.data() + sizeof header, bands.data(), nBytes);
    return region.Attach(::ExtCreateRegion(nullptr, static_cast<DWORD>(data.size()),
                                           reinterpret_cast<const RGNDATA*>(data.data())));
}
} // namespace

std::vector<TVertex> CDCEx::Vertices(const POINT* lpPoints, int nCount)
{
    std::vector<TVertex> vertices;
    vertices.reserve(static_cast<size_t>(nCount));
    for (const POINT* point = lpPoints; point != lpPoints + nCount; ++point) {
        CPoint scaled(*point);
        if (m_bScaling)
            ScalePoint(scaled);
        vertices.push_back(Vertex(*point, scaled));
    }
    return vertices;
}

BOOL CDCEx::Polygon(const POINT* lpPoints, int nCount)
{
    if (!lpPoints || nCount < 0)
        return FALSE;
    std::vector<POINT> scaled;
    const POINT* points = lpPoints;
    if (m_bScaling) {
        scaled.assign(lpPoints, lpPoints + nCount);
        for (POINT& point : scaled)
            ScalePoint(point);
        points = scaled.data();
    }
    // A recording has no clip box to cut to: it keeps every polygon that the platform can take.
    const bool recording = IsRecording(m_hDC);
    const LONG limit = recording ? LongLines::Limit : LongLines::TallPolygon;
    const bool isShort = std::all_of(points, points + nCount,
                                     [limit](const POINT& point) { return Within(point, limit); });
    const std::span pixels(points, static_cast<size_t>(nCount));
    constexpr LongLines::TArea everything;
    if (isShort &&
        (recording || PolygonRows::Cost(pixels, everything.top, everything.bottom) <= MostCost))
        return CDC::Polygon(points, nCount);

    const std::vector<TVertex> vertices = Vertices(lpPoints, nCount);
    CRect visible;
    const bool cut = !recording && ::GetClipBox(m_hDC, &visible) != ERROR;
    const LongLines::TArea area =
        cut && !isShort ? LongLines::AreaAround(visible, PolygonRoom) : LongLines::TArea{};
    if (cut && PolygonRows::Cost(std::span{vertices}, area.top, area.bottom) > MostCost &&
        CanFillRows(m_hDC))
        return FillRows(isShort ? vertices : CutVertices(vertices, area), visible);
    return isShort ? CDC::Polygon(points, nCount) : LongPolygon(vertices, area);
}

BOOL CDCEx::LongPolygon(std::span<const TVertex> vertices, const LongLines::TArea& area)
{
    const std::vector<TPoint> pixels = LongLines::CutPolygon(vertices, area);
    if (pixels.size() < 2)
        return TRUE; // wholly outside
    const std::vector<CPoint> points(pixels.begin(), pixels.end());
    return CDC::Polygon(points.data(), static_cast<int>(points.size()));
}

// As the inside of one rectangle within the rows' region: brush, raster operation and background
// mode count as for a polygon.
BOOL CDCEx::FillRows(std::span<const TVertex> vertices, const CRect& visible)
{
    std::vector<TRect> bands = PolygonRows::Fill(vertices, visible);
    if (bands.empty())
        return TRUE;
    POINT origin{};
    ::LPtoDP(m_hDC, &origin, 1);
    for (TRect& band : bands)
        band = CRect(band) + origin;
    CRgn region;
    if (!CreateFromBands(region, bands, CRect(visible) + origin))
        return FALSE;
    const int state = SaveDC();
    ::ExtSelectClipRgn(m_hDC, region, RGN_AND);
    const BOOL drawn =
        ::Rectangle(m_hDC, visible.left, visible.top, visible.right + 1, visible.bottom + 1);
    RestoreDC(state);
    return drawn;
}
