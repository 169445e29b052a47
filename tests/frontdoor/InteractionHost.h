#pragma once
// A graph under a hand: mouse and keys as the window gets them, and what its parent hears.

#include "FrontDoorGraph.h"

#include <cmath>
#include <cstdint>
#include <ostream>

// A notification as the host's window gets it.
struct Heard {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Heard&) const = default;
};

inline void PrintTo(const Heard& heard, std::ostream* stream)
{
    *stream << heard.message << " (" << heard.wParam << ", " << heard.lParam << ')';
}

namespace Command
{
enum : WPARAM {
    noOp = VPX_COMMAND_SELECT,
    insertLabel = VPX_COMMAND_INSERT_LABEL,
    zoom = VPX_COMMAND_ZOOM,
    resetZoom = VPX_COMMAND_RESET_ZOOM,
    pan = VPX_COMMAND_PAN,
    properties = VPX_COMMAND_PROPERTIES,
    linearTrend = VPX_COMMAND_LINEAR_TREND,
    cubicTrend = VPX_COMMAND_CUBIC_TREND,
    cursor = VPX_COMMAND_CURSOR,
    passOn = VPX_COMMAND_PASS_ON,
    zoomBack = VPX_COMMAND_ZOOM_BACK,
    edit = VPX_COMMAND_EDIT,
    measure = VPX_COMMAND_MEASURE
};
} // namespace Command

class FrontDoorInteraction : public FrontDoorGraph
{
protected:
    static constexpr COLORREF InnerColour = 0x2040F0;

    // One curve from (0, 0) to (10, 10), no legend, and axes that show what they are set to.
    void SetUp() override
    {
        // The pointer of the screen sends its window moves, and must not be in ours.
        ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
        FrontDoorGraph::SetUp();
        graph->SetShowLegend(0);
        graph->SetInnerColor(InnerColour);
        AddLine(0);
        ShowAsTold();
        Frame();
        Send(Command::passOn);
        HostWindow::Pump();
        ASSERT_EQ(host.m_notifications.size(), 1u);
        graphHalf = host.m_notifications[0].lParam;
        host.m_notifications.clear();
    }

    void ShowAsTold()
    {
        int nCount = 0;
        graph->GetXAxisCount(&nCount);
        for (int i = 0; i < nCount; ++i)
            XAxis(i)->SetAutoScale(0);
        graph->GetYAxisCount(&nCount);
        for (int i = 0; i < nCount; ++i)
            YAxis(i)->SetAutoScale(0);
    }
    void Frame()
    {
        ::InvalidateRect(Handle(), nullptr, TRUE);
        ::UpdateWindow(Handle());
    }

    // Messages of the mouse, the keys and the host's menus, past the queue.
    LRESULT Mouse(UINT message, POINT at, WPARAM nFlags = 0)
    {
        return ::SendMessageW(Handle(), message, nFlags, MAKELPARAM(at.x, at.y));
    }
    void Hover(POINT at) { Mouse(WM_MOUSEMOVE, at); }
    void Press(POINT at) { Mouse(WM_LBUTTONDOWN, at, MK_LBUTTON); }
    void DragTo(POINT at) { Mouse(WM_MOUSEMOVE, at, MK_LBUTTON); }
    void Release(POINT at) { Mouse(WM_LBUTTONUP, at); }
    void Click(POINT at)
    {
        Hover(at);
        Press(at);
        Release(at);
    }
    void RightClick(POINT at)
    {
        Hover(at);
        Mouse(WM_RBUTTONDOWN, at, MK_RBUTTON);
        Mouse(WM_RBUTTONUP, at);
    }
    void DoubleClick(POINT at)
    {
        Click(at);
        Mouse(WM_LBUTTONDBLCLK, at, MK_LBUTTON);
        Release(at);
    }
    void DragAcross(POINT from, POINT to)
    {
        Hover(from);
        Press(from);
        DragTo(to);
        Frame();
        Release(to);
        Frame();
    }
    void Key(WPARAM nKey) { ::SendMessageW(Handle(), WM_KEYUP, nKey, 0); }
    LRESULT Send(WPARAM nCommand) { return ::SendMessageW(Handle(), WM_COMMAND, nCommand, 0); }

    // What the parent has heard since the last question, without what its children send.
    std::vector<Heard> Heards()
    {
        HostWindow::Pump();
        std::vector<Heard> heards;
        for (const HostWindow::Notification& one : host.m_notifications)
            heards.push_back({one.message, one.wParam, one.lParam});
        host.m_notifications.clear();
        return heards;
    }
    [[nodiscard]] Heard FromGraph(UINT message, WPARAM wParam = 0) const
    {
        return {message, wParam, graphHalf};
    }
    [[nodiscard]] Heard FromWindow(UINT message) const
    {
        return {message, 0, static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(Handle()))};
    }

    EOperation Operation()
    {
        EOperation operation = opReset;
        graph->GetOperation(&operation);
        return operation;
    }
    int ZoomDepth()
    {
        int nDepth = -1;
        graph->GetZoomDepth(&nDepth);
        return nDepth;
    }
    static double ValueAt(ISGraphAxis* pAxis, int nPos)
    {
        double fValue = NAN;
        pAxis->GetValueForPos(nPos, &fValue);
        return fValue;
    }
    double XAt(int nPos, int nAxis = 0) { return ValueAt(XAxis(nAxis).Get(), nPos); }
    double YAt(int nPos, int nAxis = 0) { return ValueAt(YAxis(nAxis).Get(), nPos); }
    // The pixel of a value on a linear axis, by the axis's own mapping.
    POINT At(double x, double y, int nXAxis = 0, int nYAxis = 0)
    {
        const double x0 = XAt(0, nXAxis), xStep = (XAt(1000, nXAxis) - x0) / 1000;
        const double y0 = YAt(0, nYAxis), yStep = (YAt(1000, nYAxis) - y0) / 1000;
        return {std::lround((x - x0) / xStep), std::lround((y - y0) / yStep)};
    }
    // The plot's rectangle, found by its colour.
    RECT Inner()
    {
        const Picture picture = Shoot();
        RECT found = {Width, Height, 0, 0};
        for (LONG y = 0; y < Height; ++y) {
            for (LONG x = 0; x < Width; ++x) {
                if (picture.At(x, y) != InnerColour)
                    continue;
                found = {std::min(found.left, x), std::min(found.top, y), std::max(found.right, x + 1),
                         std::max(found.bottom, y + 1)};
            }
        }
        return found;
    }
    static RECT RectOf(ISGraphObject* pObject)
    {
        RECT rect = {};
        pObject->GetRect(&rect);
        return rect;
    }
    static POINT Middle(const RECT& rect)
    {
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }
    static bool IsSelected(ISGraphObject* pObject)
    {
        long bSelected = -1;
        pObject->GetSelected(&bSelected);
        return bSelected != 0;
    }
    long MarkerCount(ISGraphAxis* pAxis)
    {
        long nCount = -1;
        pAxis->GetAxisMarkerCount(&nCount);
        return nCount;
    }
    Holder<ISGraphDataSerie> Curve(int nCurve)
    {
        Holder<ISGraphDataSerie> curve;
        graph->GetCurve(curve.Out(), nCurve);
        return curve;
    }
    Holder<ISGraphLabel> AddLabel(RECT rect, const wchar_t* pszText = L"label")
    {
        Holder<ISGraphLabel> label;
        graph->InsertLabel(Text(pszText), &rect, label.Out());
        Frame();
        return label;
    }
    // Whether something waits to be painted.
    bool IsDirty() { return ::GetUpdateRect(Handle(), nullptr, FALSE) != FALSE; }
    void Clean() { ::ValidateRect(Handle(), nullptr); }

    LPARAM graphHalf = 0; // of the native object's address, as notifications carry it
};
