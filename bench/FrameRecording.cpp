#include "FrameRecording.h"

#include "draw/DCEx.h"
#include "graph/XGraph.h"

#include <algorithm>

namespace
{
template <class Record> const Record& As(const ENHMETARECORD& record)
{
    return reinterpret_cast<const Record&>(record);
}

template <class Point> std::vector<POINT> PointsOf(const Point* pPoints, DWORD nCount)
{
    std::vector<POINT> points;
    for (DWORD i = 0; i < nCount; ++i)
        points.push_back({pPoints[i].x, pPoints[i].y});
    return points;
}

bool Holds(const RECT& outer, const RECT& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

bool Meets(const RECT& a, const RECT& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

void Fill(HDC hDC, const RECT& rect)
{
    if (rect.right > rect.left && rect.bottom > rect.top)
        ::ExtTextOutW(hDC, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
}
} // namespace

FrameRecording::FrameRecording(CXGraph& graph)
{
    const HDC hScreen = ::GetDC(nullptr);
    const HDC hMeta = ::CreateEnhMetaFileW(hScreen, nullptr, nullptr, nullptr);
    ::ReleaseDC(nullptr, hScreen);
    CDCEx canvas;
    canvas.Attach(hMeta);
    graph.m_pDrawDC = &canvas;
    graph.Invalidate();
    graph.UpdateWindow();
    graph.m_pDrawDC = nullptr;
    canvas.Detach();
    const HENHMETAFILE hFile = ::CloseEnhMetaFile(hMeta);
    m_state.hPen = ::GetStockObject(BLACK_PEN);
    m_state.hBrush = ::GetStockObject(WHITE_BRUSH);
    m_state.hFont = ::GetStockObject(SYSTEM_FONT);
    ::EnumEnhMetaFile(nullptr, hFile, &OnRecord, this, nullptr);
    ::DeleteEnhMetaFile(hFile);
    SplitCoveredFills();
}

FrameRecording::~FrameRecording()
{
    for (const HGDIOBJ hObject : m_owned)
        ::DeleteObject(hObject);
}

int FrameRecording::OnRecord(HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int, LPARAM lParam)
{
    reinterpret_cast<FrameRecording*>(lParam)->Take(*pRecord);
    return 1;
}

void FrameRecording::Take(const ENHMETARECORD& record)
{
    TakeObject(record);
    TakeState(record);
    TakeClip(record);
    TakeShape(record);
    if (record.iType == EMR_EXTTEXTOUTW)
        TakeText(As<EMREXTTEXTOUTW>(record));
}

void FrameRecording::Keep(DWORD nObject, HGDIOBJ hObject)
{
    m_table.resize(std::max<std::size_t>(m_table.size(), nObject + 1));
    m_table[nObject] = hObject;
    m_owned.push_back(hObject);
}

void FrameRecording::Select(HGDIOBJ hObject)
{
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        m_state.hPen = hObject;
        break;
    case OBJ_BRUSH:
        m_state.hBrush = hObject;
        break;
    case OBJ_FONT:
        m_state.hFont = hObject;
        break;
    default:
        break;
    }
}

void FrameRecording::TakeObject(const ENHMETARECORD& record)
{
    switch (record.iType) {
    case EMR_CREATEPEN:
        Keep(As<EMRCREATEPEN>(record).ihPen, ::CreatePenIndirect(&As<EMRCREATEPEN>(record).lopn));
        break;
    case EMR_CREATEBRUSHINDIRECT: {
        const auto& brush = As<EMRCREATEBRUSHINDIRECT>(record);
        const LOGBRUSH logical = {brush.lb.lbStyle, brush.lb.lbColor,
                                  static_cast<ULONG_PTR>(brush.lb.lbHatch)};
        Keep(brush.ihBrush, ::CreateBrushIndirect(&logical));
        break;
    }
    case EMR_EXTCREATEFONTINDIRECTW: {
        const auto& font = As<EMREXTCREATEFONTINDIRECTW>(record);
        Keep(font.ihFont, ::CreateFontIndirectW(&font.elfw.elfLogFont));
        break;
    }
    case EMR_SELECTOBJECT: {
        constexpr DWORD stock = 0x80000000;
        const DWORD nObject = As<EMRSELECTOBJECT>(record).ihObject;
        Select(nObject & stock ? ::GetStockObject(static_cast<int>(nObject & ~stock))
                               : m_table[nObject]);
        break;
    }
    default:
        break;
    }
}

void FrameRecording::TakeState(const ENHMETARECORD& record)
{
    const DWORD first = As<EMRSETBKMODE>(record).iMode; // of the records with one number
    switch (record.iType) {
    case EMR_SETBKMODE:
        m_state.nBackMode = static_cast<int>(first);
        break;
    case EMR_SETROP2:
        m_state.nRop = static_cast<int>(first);
        break;
    case EMR_SETTEXTALIGN:
        m_state.nAlign = first;
        break;
    case EMR_SETTEXTCOLOR:
        m_state.textColor = first;
        break;
    case EMR_SETBKCOLOR:
        m_state.backColor = first;
        break;
    case EMR_MOVETOEX:
        m_state.at = {As<EMRMOVETOEX>(record).ptl.x, As<EMRMOVETOEX>(record).ptl.y};
        break;
    case EMR_SAVEDC:
        m_saved.push_back(m_state);
        break;
    case EMR_RESTOREDC:
        for (LONG n = As<EMRRESTOREDC>(record).iRelative; n < 0 && !m_saved.empty(); ++n) {
            m_state = m_saved.back();
            m_saved.pop_back();
        }
        break;
    default:
        break;
    }
}

void FrameRecording::TakeClip(const ENHMETARECORD& record)
{
    if (record.iType == EMR_EXTSELECTCLIPRGN) {
        const auto& clip = As<EMREXTSELECTCLIPRGN>(record);
        m_state.bClip = clip.cbRgnData != 0;
        if (m_state.bClip)
            m_state.clip = reinterpret_cast<const RGNDATA*>(clip.RgnData)->rdh.rcBound;
    } else if (record.iType == EMR_INTERSECTCLIPRECT) {
        const RECTL& rect = As<EMRINTERSECTCLIPRECT>(record).rclClip;
        const RECT clip = {rect.left, rect.top, rect.right, rect.bottom};
        if (!m_state.bClip || !::IntersectRect(&m_state.clip, &m_state.clip, &clip))
            m_state.clip = clip;
        m_state.bClip = true;
    }
}

void FrameRecording::TakeShape(const ENHMETARECORD& record)
{
    const auto addPoints = [&](Kind kind, std::vector<POINT> points) {
        m_items.push_back({kind, m_state, {}, std::move(points), {}, {}, 0, {}});
    };
    const auto addBox = [&](Kind kind, const RECTL& box) {
        m_items.push_back(
            {kind, m_state, {box.left, box.top, box.right, box.bottom}, {}, {}, {}, 0, {}});
    };
    switch (record.iType) {
    case EMR_LINETO: {
        const POINT to = {As<EMRLINETO>(record).ptl.x, As<EMRLINETO>(record).ptl.y};
        addPoints(Kind::line, {m_state.at, to});
        m_state.at = to;
        break;
    }
    case EMR_POLYLINE16:
        addPoints(Kind::polyline,
                  PointsOf(As<EMRPOLYLINE16>(record).apts, As<EMRPOLYLINE16>(record).cpts));
        break;
    case EMR_POLYLINE:
        addPoints(Kind::polyline, PointsOf(As<EMRPOLYLINE>(record).aptl, As<EMRPOLYLINE>(record).cptl));
        break;
    case EMR_POLYGON16:
        addPoints(Kind::polygon,
                  PointsOf(As<EMRPOLYLINE16>(record).apts, As<EMRPOLYLINE16>(record).cpts));
        break;
    case EMR_RECTANGLE: // the record's box ends one pixel earlier than the call's
        addBox(Kind::rectangle,
               {As<EMRRECTANGLE>(record).rclBox.left, As<EMRRECTANGLE>(record).rclBox.top,
                As<EMRRECTANGLE>(record).rclBox.right + 1, As<EMRRECTANGLE>(record).rclBox.bottom + 1});
        break;
    case EMR_ELLIPSE:
        addBox(Kind::ellipse,
               {As<EMRELLIPSE>(record).rclBox.left, As<EMRELLIPSE>(record).rclBox.top,
                As<EMRELLIPSE>(record).rclBox.right + 1, As<EMRELLIPSE>(record).rclBox.bottom + 1});
        break;
    default:
        break;
    }
}

void FrameRecording::TakeText(const EMREXTTEXTOUTW& record)
{
    const EMRTEXT& text = record.emrtext;
    TItem item = {
        text.nChars == 0 ? Kind::fill : Kind::text, m_state, {}, {}, {}, {}, text.fOptions, {}};
    item.rect = {text.rcl.left, text.rcl.top, text.rcl.right, text.rcl.bottom};
    item.at = {text.ptlReference.x, text.ptlReference.y};
    const auto* pBytes = reinterpret_cast<const BYTE*>(&record);
    item.text.assign(reinterpret_cast<const wchar_t*>(pBytes + text.offString), text.nChars);
    if (text.offDx != 0) {
        const auto* pWidths = reinterpret_cast<const INT*>(pBytes + text.offDx);
        item.widths.assign(pWidths, pWidths + text.nChars);
    }
    m_items.push_back(std::move(item));
}

// A fill that a later one covers in part is cut to what stays of it, as long as nothing between
// them meets the later one.
void FrameRecording::SplitCoveredFills()
{
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        if (m_items[i].kind != Kind::fill)
            continue;
        for (std::size_t k = i + 1; k < m_items.size() && m_items[k].kind == Kind::fill; ++k) {
            const RECT outer = m_items[i].rect, inner = m_items[k].rect;
            if (!Meets(outer, inner) || !Holds(outer, inner))
                continue;
            TItem bottom = m_items[i], left = m_items[i], right = m_items[i];
            m_items[i].rect.bottom = inner.top;
            bottom.rect.top = inner.bottom;
            left.rect = {outer.left, inner.top, inner.left, inner.bottom};
            right.rect = {inner.right, inner.top, outer.right, inner.bottom};
            m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(i) + 1, {bottom, left, right});
            break;
        }
    }
}

void FrameRecording::SetState(HDC hDC, const TState& before, const TState& state, Kind kind)
{
    const bool bText = kind == Kind::text, bFill = kind == Kind::fill;
    if (state.bClip != before.bClip || (state.bClip && !::EqualRect(&state.clip, &before.clip))) {
        ::SelectClipRgn(hDC, nullptr);
        if (state.bClip)
            ::IntersectClipRect(hDC, state.clip.left, state.clip.top, state.clip.right,
                                state.clip.bottom);
    }
    if (state.backColor != before.backColor)
        ::SetBkColor(hDC, state.backColor);
    if (bFill)
        return;
    if (state.nBackMode != before.nBackMode)
        ::SetBkMode(hDC, state.nBackMode);
    if (state.nRop != before.nRop)
        ::SetROP2(hDC, state.nRop);
    if (bText && state.textColor != before.textColor)
        ::SetTextColor(hDC, state.textColor);
    if (bText && state.nAlign != before.nAlign)
        ::SetTextAlign(hDC, state.nAlign);
    if (bText && state.hFont != before.hFont)
        ::SelectObject(hDC, state.hFont);
    if (!bText && state.hPen != before.hPen)
        ::SelectObject(hDC, state.hPen);
    if (!bText && state.hBrush != before.hBrush)
        ::SelectObject(hDC, state.hBrush);
}

void FrameRecording::DrawItem(HDC hDC, const TItem& item)
{
    const RECT& box = item.rect;
    const int nPoints = static_cast<int>(item.points.size());
    switch (item.kind) {
    case Kind::fill:
        Fill(hDC, box);
        break;
    case Kind::line:
        ::MoveToEx(hDC, item.points[0].x, item.points[0].y, nullptr);
        ::LineTo(hDC, item.points[1].x, item.points[1].y);
        break;
    case Kind::polyline:
        ::Polyline(hDC, item.points.data(), nPoints);
        break;
    case Kind::polygon:
        ::Polygon(hDC, item.points.data(), nPoints);
        break;
    case Kind::rectangle:
        ::Rectangle(hDC, box.left, box.top, box.right, box.bottom);
        break;
    case Kind::ellipse:
        ::Ellipse(hDC, box.left, box.top, box.right, box.bottom);
        break;
    case Kind::text:
        ::ExtTextOutW(hDC, item.at.x, item.at.y, item.nOptions, &box, item.text.c_str(),
                      static_cast<UINT>(item.text.size()),
                      item.widths.empty() ? nullptr : item.widths.data());
        break;
    }
}

// The context's own state at the start is whatever the last drawing left; it is named in full once.
void FrameRecording::Draw(HDC hDC) const
{
    TState current;
    ::SelectClipRgn(hDC, nullptr);
    ::SetBkColor(hDC, current.backColor);
    ::SetBkMode(hDC, current.nBackMode);
    ::SetROP2(hDC, current.nRop);
    ::SetTextColor(hDC, current.textColor);
    ::SetTextAlign(hDC, current.nAlign);
    for (const TItem& item : m_items) {
        SetState(hDC, current, item.state, item.kind);
        const TState before = current;
        current = item.state;
        if (item.kind == Kind::text || item.kind == Kind::fill) { // what was not set stays to be set
            current.hPen = before.hPen;
            current.hBrush = before.hBrush;
        }
        if (item.kind != Kind::text) {
            current.hFont = before.hFont;
            current.textColor = before.textColor;
            current.nAlign = before.nAlign;
        }
        if (item.kind == Kind::fill) {
            current.nBackMode = before.nBackMode;
            current.nRop = before.nRop;
        }
        DrawItem(hDC, item);
    }
}
