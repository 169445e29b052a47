#pragma once
// Vantoplex for C++17 and later: owners for the interfaces, charts that own their windows, texts
// and points as C++ has them. Header-only; needs vantoplex.h and vantoplex_png.hpp beside it and
// ole32, oleaut32, user32, gdi32.
//
//     vantoplex::Graph graph(window);
//     graph.Plot(points, L"sine");
//     graph.Fit();
//
// Every object belongs to the thread that made it, which has called CoInitializeEx and pumps
// messages. Indices count from 0 in the graph and from 1 in the business chart. Colours are COLORREF.
//
// Errors: each maker exists twice. The constructor throws vantoplex::Error; the static Make takes a
// Status instead and never throws for a missing library or class. Indices are checked here before
// they reach a chart, which ends the process for a wrong one: a wrong index does nothing and gives
// false, or an empty result.

#include "vantoplex.h"
#include "vantoplex_png.hpp"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#if __cplusplus >= 202002L || (defined(_MSVC_LANG) && _MSVC_LANG >= 202002L)
#include <span>
#endif

namespace vantoplex
{

// A sequence of points: made from a vector, an array or, from C++20 on, a span of them.
#if __cplusplus >= 202002L || (defined(_MSVC_LANG) && _MSVC_LANG >= 202002L)
using Points = std::span<const TDataPoint>;
#else
class Points
{
public:
    Points() noexcept = default;
    Points(const TDataPoint* data, std::size_t size) noexcept : m_data(data), m_size(size) {}
    Points(const std::vector<TDataPoint>& points) noexcept : Points(points.data(), points.size()) {}
    template <std::size_t N> Points(const TDataPoint (&points)[N]) noexcept : Points(points, N) {}
    const TDataPoint* data() const noexcept { return m_data; }
    std::size_t size() const noexcept { return m_size; }
    bool empty() const noexcept { return m_size == 0; }
    const TDataPoint* begin() const noexcept { return m_data; }
    const TDataPoint* end() const noexcept { return m_data + m_size; }

private:
    const TDataPoint* m_data = nullptr;
    std::size_t m_size = 0;
};
#endif

// Why a chart could not be made: a code of the system and a sentence that says what to do.
struct Status {
    HRESULT code = S_OK;
    std::wstring text;
    explicit operator bool() const noexcept { return SUCCEEDED(code); }
};

class Error : public std::runtime_error
{
public:
    explicit Error(Status status)
        : std::runtime_error(Narrow(status.text)), m_status(std::move(status))
    {
    }
    const Status& Why() const noexcept { return m_status; }

private:
    static std::string Narrow(const std::wstring& text)
    {
        std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(
                               CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr)),
                           '\0');
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                            static_cast<int>(narrow.size()), nullptr, nullptr);
        return narrow;
    }
    Status m_status;
};

// Owns one reference.
template <class Interface> class Pointer
{
public:
    Pointer() noexcept = default;
    Pointer(const Pointer& other) noexcept : m_raw(other.m_raw)
    {
        if (m_raw)
            m_raw->AddRef();
    }
    Pointer(Pointer&& other) noexcept : m_raw(std::exchange(other.m_raw, nullptr)) {}
    Pointer& operator=(Pointer other) noexcept
    {
        std::swap(m_raw, other.m_raw);
        return *this;
    }
    ~Pointer()
    {
        if (m_raw)
            m_raw->Release();
    }
    // For a call that gives an interface: what was owned before is released.
    Interface** Receive() noexcept
    {
        *this = Pointer();
        return &m_raw;
    }
    Interface* Get() const noexcept { return m_raw; }
    Interface* operator->() const noexcept { return m_raw; }
    explicit operator bool() const noexcept { return m_raw != nullptr; }

private:
    Interface* m_raw = nullptr;
};

// Owns a string of the interfaces.
class Text
{
public:
    Text() noexcept = default;
    explicit Text(std::wstring_view text) : m_raw(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())))
    {
        if (!m_raw)
            throw std::bad_alloc();
    }
    Text(Text&& other) noexcept : m_raw(std::exchange(other.m_raw, nullptr)) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(m_raw); }
    BSTR Get() const noexcept { return m_raw; }
    // In and out: a getter replaces the string that is there.
    BSTR* Receive() noexcept { return &m_raw; }
    std::wstring_view View() const noexcept { return {m_raw ? m_raw : L"", SysStringLen(m_raw)}; }

private:
    BSTR m_raw = nullptr;
};

// A library file, for use without registration: its classes are made from the file itself. Must
// outlive the charts that it made.
class Library
{
public:
    explicit Library(const std::wstring& path)
    {
        Status status;
        *this = Load(path, status);
        if (!status)
            throw Error(std::move(status));
    }
    static Library Load(const std::wstring& path, Status& status)
    {
        Library library;
        status = Status();
        library.m_module = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
        if (!library.m_module)
            status = Refusal(path, GetLastError());
        else if (!library.Entry())
            status = {E_NOINTERFACE, path + L" is not Vantoplex.dll: it has no class objects."};
        return library;
    }
    Library(Library&& other) noexcept : m_module(std::exchange(other.m_module, nullptr)) {}
    Library& operator=(Library&& other) noexcept
    {
        std::swap(m_module, other.m_module);
        return *this;
    }
    ~Library()
    {
        if (m_module)
            FreeLibrary(m_module);
    }
    HRESULT Make(REFCLSID clsid, REFIID iid, void** object) const
    {
        using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
        Pointer<IClassFactory> factory;
        const auto get = reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(Entry()));
        const HRESULT result = get ? get(clsid, IID_IClassFactory, reinterpret_cast<void**>(factory.Receive()))
                                   : E_UNEXPECTED;
        return FAILED(result) ? result : factory->CreateInstance(nullptr, iid, object);
    }

private:
    Library() noexcept = default;
    FARPROC Entry() const noexcept { return m_module ? GetProcAddress(m_module, "DllGetClassObject") : nullptr; }
    static Status Refusal(const std::wstring& path, DWORD error)
    {
        const HRESULT code = HRESULT_FROM_WIN32(error);
        if (error == ERROR_BAD_EXE_FORMAT)
            return {code, path + L" is of the other bitness: Vantoplex.dll needs a 64-bit program."};
        if (error == ERROR_MOD_NOT_FOUND || error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
            return {code, path + L" was not found: put Vantoplex.dll beside the program."};
        return {code, path + L" could not be loaded: error " + std::to_wstring(error) + L"."};
    }
    HMODULE m_module = nullptr;
};

namespace detail
{

inline Status Refusal(HRESULT code)
{
    if (code == REGDB_E_CLASSNOTREG)
        return {code, L"Vantoplex is not registered: run regsvr32 Vantoplex.dll, or name the library's file."};
    if (code == CO_E_NOTINITIALIZED)
        return {code, L"Call CoInitializeEx on this thread first."};
    return {code, L"Vantoplex could not make a chart: error " + std::to_wstring(static_cast<unsigned long>(code)) + L"."};
}

template <class Interface> HRESULT New(REFCLSID clsid, const Library* library, Pointer<Interface>& object)
{
    const auto target = reinterpret_cast<void**>(object.Receive());
    return library ? library->Make(clsid, __uuidof(Interface), target)
                   : CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), target);
}

inline RECT ClientOf(HWND window) noexcept
{
    RECT place{};
    GetClientRect(window, &place);
    return place;
}

// What the three charts share: an interface, a window of theirs in one of the host's.
template <class Interface> class Chart
{
public:
    Interface* operator->() const noexcept { return m_chart.Get(); }
    Interface* Get() const noexcept { return m_chart.Get(); }
    explicit operator bool() const noexcept { return static_cast<bool>(m_chart); }

    HWND Window() const noexcept
    {
        wireHWND window = nullptr;
        return m_chart && m_chart->GetHandle(&window) == S_OK ? FromWire(window) : nullptr;
    }
    void Move(const RECT& place) const noexcept
    {
        MoveWindow(Window(), place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
    }
    // Fills the parent's client area and paints: a host's answer to WM_SIZE.
    void Fit() const noexcept
    {
        const HWND parent = GetParent(Window());
        if (parent)
            Move(ClientOf(parent));
        Repaint();
    }
    void Repaint() const noexcept { m_chart->Invalidate(TRUE); }
    // A PNG file of the chart as it is painted now. False if it isn't visible or the file can't be written.
    bool SavePng(const std::wstring& path) const { return SUCCEEDED(vantoplex::SavePng(Window(), path.c_str())); }

protected:
    Pointer<Interface> m_chart;
};

} // namespace detail

namespace detail
{

// What the interface gives back of an axis.
class AxisSettings
{
public:
    explicit AxisSettings(ISGraphAxis& axis)
    {
        axis.GetAxisType(&m_type);
        axis.GetShowMarker(&m_showMarker);
        axis.GetDateTime(&m_dateTime);
        axis.GetShowGrid(&m_showGrid);
        axis.GetArcSize(&m_arcSize);
        axis.GetMarkerSize(&m_markerSize);
        axis.GetTickSize(&m_tickSize);
        axis.GetGridStyle(&m_gridStyle);
        axis.GetGridColor(&m_gridColor);
        axis.GetColor(&m_color);
        axis.GetVisible(&m_visible);
        axis.GetLabel(m_label.Receive());
        axis.GetDisplayFmt(m_format.Receive());
    }
    void PutInto(ISGraphAxis& axis) const
    {
        axis.SetAxisType(m_type);
        axis.SetShowMarker(m_showMarker);
        axis.SetDateTime(m_dateTime);
        axis.SetShowGrid(m_showGrid);
        axis.SetArcSize(m_arcSize);
        axis.SetMarkerSize(m_markerSize);
        axis.SetTickSize(m_tickSize);
        axis.SetGridStyle(m_gridStyle);
        axis.SetGridColor(m_gridColor);
        axis.SetColor(m_color);
        axis.SetVisible(m_visible);
        axis.SetLabel(m_label.Get());
        axis.SetDisplayFmt(m_format.Get());
    }

private:
    EAxisType m_type = atLinear;
    long m_showMarker = TRUE, m_dateTime = FALSE, m_showGrid = TRUE, m_visible = TRUE;
    int m_arcSize = 0, m_markerSize = 0, m_tickSize = 0;
    unsigned int m_gridStyle = 0;
    unsigned long m_gridColor = 0, m_color = 0;
    Text m_label, m_format;
};

} // namespace detail

// An X and a Y axis by index. The number of axes there are makes the next one.
struct Axes {
    int x = 0;
    int y = 0;
};

enum class Trend { Linear, Cubic, Polynomial };

// The interactive XY graph and its window, which goes with it.
class Graph : public detail::Chart<ISGraph>
{
public:
    // In the parent's whole client area, or at `place` in it.
    explicit Graph(HWND parent, const RECT* place = nullptr, unsigned id = 1, const Library* library = nullptr)
    {
        Status status = Open(parent, place, id, library);
        if (!status)
            throw Error(std::move(status));
    }
    static Graph Make(HWND parent, Status& status, const RECT* place = nullptr, unsigned id = 1,
                      const Library* library = nullptr)
    {
        Graph graph;
        status = graph.Open(parent, place, id, library);
        return graph;
    }
    Graph(Graph&& other) noexcept = default;
    Graph& operator=(Graph&& other) noexcept
    {
        std::swap(m_chart, other.m_chart);
        std::swap(m_arrays, other.m_arrays);
        return *this;
    }
    // The graph itself would leave its window to the parent.
    ~Graph()
    {
        if (const HWND window = m_chart ? Window() : nullptr)
            DestroyWindow(window);
        for (const Handed& handed : m_arrays)
            CoTaskMemFree(handed.array);
    }

    int CurveCount() const noexcept { return Count(&ISGraph::GetCurveCount); }
    int XAxisCount() const noexcept { return Count(&ISGraph::GetXAxisCount); }
    int YAxisCount() const noexcept { return Count(&ISGraph::GetYAxisCount); }

    // A new curve with a copy of the points. Its index, -1 without points or for axes that can't be.
    int Plot(Points points, std::wstring_view name = L"", Axes axes = {}) { return Add(points, name, axes, TRUE); }
    // A new curve that reads the caller's points wherever it paints: they must outlive it.
    int PlotInPlace(Points points, std::wstring_view name = L"", Axes axes = {})
    {
        return Add(points, name, axes, FALSE);
    }
    // Other points for a curve, copied; color, name and styles stay, its axes are `axes`.
    bool Replace(int curve, Points points, Axes axes = {})
    {
        if (!HasCurve(curve) || points.empty() || !CanUse(axes))
            return false;
        auto* const copy = static_cast<TDataPoint*>(CoTaskMemAlloc(points.size() * sizeof(TDataPoint)));
        if (!copy)
            throw std::bad_alloc();
        std::copy(points.begin(), points.end(), copy);
        if (m_chart->SetData(nullptr, copy, static_cast<long>(points.size()), curve, axes.x, axes.y, FALSE) != S_OK) {
            CoTaskMemFree(copy);
            return false;
        }
        Forget(curve);
        m_arrays.push_back({curve, copy});
        return true;
    }
    // Later curves move down by one. Measures and a forced snap go too: they would refer to others.
    bool Delete(int curve)
    {
        if (!HasCurve(curve))
            return false;
        m_chart->DeleteMeasures();
        m_chart->ForceSnap(VPX_NO_CURVE);
        m_chart->DeleteCurve(curve);
        Forget(curve);
        for (Handed& handed : m_arrays)
            handed.curve -= handed.curve > curve;
        Repaint();
        return true;
    }

    // Views, good until a curve or an axis is added or deleted. Empty for a wrong index.
    Pointer<ISGraphDataSerie> Curve(int index) const noexcept
    {
        return View<ISGraphDataSerie>(&ISGraph::GetCurve, index, CurveCount());
    }
    Pointer<ISGraphAxis> XAxis(int index) const noexcept
    {
        return View<ISGraphAxis>(&ISGraph::GetXAxis, index, XAxisCount());
    }
    Pointer<ISGraphAxis> YAxis(int index) const noexcept
    {
        return View<ISGraphAxis>(&ISGraph::GetYAxis, index, YAxisCount());
    }

    // Widens an axis's range to hold both bounds, and makes the axis with exactly this range if its
    // index is the next one. An earlier zoom is gone. To fix a range, make the axis before the curve
    // and plot with PlotKeepingRanges.
    bool WidenX(int axis, double lower, double upper) { return Widen({axis, 0}, lower, upper, true); }
    bool WidenY(int axis, double lower, double upper) { return Widen({0, axis}, lower, upper, false); }

    // A new curve that leaves the ranges of its axes as they are, with a copy of the points.
    int PlotKeepingRanges(Points points, std::wstring_view name = L"", Axes axes = {})
    {
        if (points.empty() || !CanUse(axes))
            return -1;
        auto* const copy = static_cast<TDataPoint*>(CoTaskMemAlloc(points.size() * sizeof(TDataPoint)));
        if (!copy)
            throw std::bad_alloc();
        // A value that is no number widens nothing. The curve reads the real ones when it paints.
        std::fill_n(copy, points.size(), TDataPoint{NotANumber(), NotANumber()});
        const int curve = Add(Points(copy, points.size()), name, axes, FALSE);
        std::copy(points.begin(), points.end(), copy);
        m_arrays.push_back({curve, copy});
        return curve;
    }

    // The trend of a curve as a new curve on its axes. `terms` counts the terms of a polynomial: 3 is
    // a parabola; 1 to 21. `beyond` points go on past the end. -1 where nothing can be fitted.
    int AddTrend(int curve, Trend trend, int terms = 3, int beyond = 0)
    {
        long count = 0;
        Axes axes;
        const auto view = Curve(curve);
        if (!view || view->GetCount(&count) != S_OK || count < 2 || beyond < 0)
            return -1;
        view->GetXAxis(&axes.x);
        view->GetYAxis(&axes.y);
        TDataPoint* points = nullptr;
        if (trend == Trend::Linear)
            view->GetLinearTrend(&points, beyond);
        else if (trend == Trend::Cubic)
            view->GetCubicTrend(&points, beyond);
        else if (terms >= 1)
            view->GetPolynomialTrend(&points, terms, beyond);
        const struct Freed {
            TDataPoint* points;
            ~Freed() { CoTaskMemFree(points); }
        } freed{points};
        if (!points)
            return -1;
        Text name;
        view->GetLabel(name.Receive());
        return Plot(Points(points, static_cast<std::size_t>(count) + static_cast<std::size_t>(beyond)),
                    std::wstring(name.View()) + L" trend", axes);
    }

    // Gives the last X axis this range, exactly, under whatever data: a window that moves over live
    // data. The axis is made anew: its settings are kept, but not its markers, colour ranges and
    // fonts, and views of it are stale. Later axes are in the way: false for any but the last.
    bool ShowX(double lower, double upper)
    {
        const int axis = XAxisCount() - 1;
        if (axis < 0 || !(lower < upper))
            return false;
        UpdateWindow(Window()); // the new axis takes the width of its steps from a frame
        const detail::AxisSettings settings(*XAxis(axis).Get());
        m_chart->DeleteXAxis(axis);
        // No message is handled before the axis is there again, so no frame misses it.
        Widen({axis, 0}, lower, upper, true);
        settings.PutInto(*XAxis(axis).Get());
        XAxis(axis)->SetAutoScale(0);
        Repaint();
        return true;
    }

    // The points that a curve holds.
    std::vector<TDataPoint> PointsOf(int curve) const
    {
        long count = 0;
        const auto view = Curve(curve);
        if (!view || view->GetCount(&count) != S_OK || count < 1)
            return {};
        TDataPoint* points = nullptr;
        view->GetSimpleMovingAverage(&points, 1); // an average of one value is the value
        std::vector<TDataPoint> copy(points, points ? points + count : points);
        CoTaskMemFree(points);
        return copy;
    }

    // Where a point lay in the last frame, by a curve's axes: pixels of the graph's window, of what
    // lies outside the plot the nearest.
    POINT PixelOf(int curve, TDataPoint point) const
    {
        Axes axes;
        const auto view = Curve(curve);
        if (!view)
            return {};
        view->GetXAxis(&axes.x);
        view->GetYAxis(&axes.y);
        const RECT area = detail::ClientOf(Window());
        return {PixelAlong(XAxis(axes.x), 0, area.right, point.fXVal), PixelAlong(YAxis(axes.y), 0, area.bottom, point.fYVal)};
    }

    // Selects a visible curve as a click on it does, which is the selection that the trend commands
    // work on; the parent gets the click's messages. False where no click meets it: it is hidden,
    // outside the plot, or covered by a later one.
    bool Choose(int curve)
    {
        if (!HasCurve(curve))
            return false;
        Unselect();
        UpdateWindow(Window());
        const std::vector<TDataPoint> points = PointsOf(curve);
        const std::size_t step = points.size() / 50 + 1;
        for (std::size_t i = 0; i < points.size(); i += step) {
            ClickAt(PixelOf(curve, points[i]));
            if (IsChosen(curve))
                return true;
        }
        return false;
    }

    // The command that adds a curve's linear or cubic trend, as a person's menu sends it.
    bool SendTrend(int curve, Trend trend)
    {
        if (trend == Trend::Polynomial || !Choose(curve))
            return false;
        return m_chart->SendMessage(WM_COMMAND, trend == Trend::Linear ? VPX_COMMAND_LINEAR_TREND : VPX_COMMAND_CUBIC_TREND,
                                    0) == S_OK;
    }

    // One of VpxCommand. The two trend commands and the cursor end the process in some states: use
    // AddTrend or SendTrend; the cursor is entered without stored measures.
    bool Send(VpxCommand command)
    {
        if (command == VPX_COMMAND_LINEAR_TREND || command == VPX_COMMAND_CUBIC_TREND)
            return false;
        if (command == VPX_COMMAND_CURSOR)
            m_chart->DeleteMeasures();
        return m_chart->SendMessage(WM_COMMAND, command, 0) == S_OK;
    }

private:
    struct Handed { // an array that a curve reads and the graph doesn't own
        int curve;
        TDataPoint* array;
    };

    Graph() noexcept = default;

    Status Open(HWND parent, const RECT* place, unsigned id, const Library* library)
    {
        const HRESULT made = detail::New(__uuidof(SGraph), library, m_chart);
        if (FAILED(made))
            return detail::Refusal(made);
        RECT where = place ? *place : detail::ClientOf(parent);
        m_chart->Create(nullptr, &where, ToWire(parent), id);
        if (Window())
            return {};
        m_chart = {};
        return {E_INVALIDARG, L"The graph's window could not be made: the parent is no window of this thread."};
    }
    int Count(HRESULT (STDMETHODCALLTYPE ISGraph::*count)(int*)) const noexcept
    {
        int number = 0;
        (m_chart.Get()->*count)(&number);
        return number;
    }
    template <class Interface>
    Pointer<Interface> View(HRESULT (STDMETHODCALLTYPE ISGraph::*get)(Interface**, int), int index,
                            int count) const noexcept
    {
        Pointer<Interface> view;
        if (index >= 0 && index < count)
            (m_chart.Get()->*get)(view.Receive(), index);
        return view;
    }
    bool HasCurve(int curve) const noexcept { return curve >= 0 && curve < CurveCount(); }
    bool CanUse(Axes axes) const noexcept
    {
        return axes.x >= 0 && axes.x <= XAxisCount() && axes.y >= 0 && axes.y <= YAxisCount();
    }
    static double NotANumber() noexcept { return std::numeric_limits<double>::quiet_NaN(); }

    int Add(Points points, std::wstring_view name, Axes axes, long copy)
    {
        const int curve = CurveCount();
        if (points.empty() || points.size() > MaxPoints || !CanUse(axes))
            return -1;
        m_chart->SetData(nullptr, const_cast<TDataPoint*>(points.data()), static_cast<long>(points.size()), curve,
                         axes.x, axes.y, copy);
        if (!name.empty())
            Curve(curve)->SetLabel(Text(name).Get());
        return curve;
    }
    // GetValueForPos goes one way along an axis.
    static int PixelAlong(const Pointer<ISGraphAxis>& axis, int first, int last, double value) noexcept
    {
        double atFirst = 0;
        double atLast = 0;
        axis->GetValueForPos(first, &atFirst);
        axis->GetValueForPos(last, &atLast);
        const bool rising = atLast > atFirst;
        while (last - first > 1) {
            const int middle = first + (last - first) / 2;
            double here = 0;
            axis->GetValueForPos(middle, &here);
            ((here < value) == rising ? first : last) = middle;
        }
        axis->GetValueForPos(first, &atFirst);
        axis->GetValueForPos(last, &atLast);
        return (atFirst < value ? value - atFirst : atFirst - value) < (atLast < value ? value - atLast : atLast - value)
                   ? first
                   : last;
    }
    // A click beside a selected axis would put a marker there.
    void Unselect()
    {
        m_chart->NoOp();
        m_chart->SetInteraction(TRUE);
        for (int i = 0; i < XAxisCount(); ++i)
            XAxis(i)->SetSelected(FALSE);
        for (int i = 0; i < YAxisCount(); ++i)
            YAxis(i)->SetSelected(FALSE);
    }
    void ClickAt(POINT place) const noexcept
    {
        const LPARAM where = MAKELPARAM(place.x, place.y);
        m_chart->SendMessage(WM_MOUSEMOVE, 0, where);
        m_chart->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
        m_chart->SendMessage(WM_LBUTTONUP, 0, where);
    }
    // Where curves cross, the last of them is the one that the click chose.
    bool IsChosen(int curve) const noexcept
    {
        for (int i = CurveCount() - 1; i >= curve; --i) {
            long selected = FALSE;
            Curve(i)->GetSelected(&selected);
            if (selected)
                return i == curve;
        }
        return false;
    }
    bool Widen(Axes axes, double lower, double upper, bool alongX)
    {
        if (!CanUse(axes) || !(lower <= upper))
            return false;
        const double none = NotANumber();
        const TDataPoint bounds[] = {alongX ? TDataPoint{lower, none} : TDataPoint{none, lower},
                                     alongX ? TDataPoint{upper, none} : TDataPoint{none, upper}};
        const int helper = Add(Points(bounds, 2), L"", axes, TRUE);
        m_chart->DeleteCurve(helper);
        Repaint();
        return true;
    }
    void Forget(int curve)
    {
        for (std::size_t i = 0; i < m_arrays.size(); ++i) {
            if (m_arrays[i].curve != curve)
                continue;
            CoTaskMemFree(m_arrays[i].array);
            m_arrays.erase(m_arrays.begin() + static_cast<std::ptrdiff_t>(i));
            return;
        }
    }

    static constexpr std::size_t MaxPoints = 0x7FFFFFFF;
    std::vector<Handed> m_arrays;
};

// Bars, lines or a flat pie, and its window. Segments first, then series, then values: a series has
// a value for each segment that was there when it was added.
class BusinessChart : public detail::Chart<IChart2d>
{
public:
    BusinessChart(HWND parent, VpxChart kind, const RECT* place = nullptr, unsigned id = 1,
                  const Library* library = nullptr)
    {
        Status status = Open(parent, kind, place, id, library);
        if (!status)
            throw Error(std::move(status));
    }
    static BusinessChart Make(HWND parent, VpxChart kind, Status& status, const RECT* place = nullptr,
                              unsigned id = 1, const Library* library = nullptr)
    {
        BusinessChart chart;
        status = chart.Open(parent, kind, place, id, library);
        return chart;
    }

    void SetTitles(std::wstring_view title, std::wstring_view subtitle)
    {
        m_chart->SetGraphTitle(Text(title).Get());
        m_chart->SetGraphSubtitle(Text(subtitle).Get());
    }
    // A group of bars or a place along the lines. Its number from 1; 0 for a pie, and once there are series.
    int AddSegment(std::wstring_view name)
    {
        if (m_kind == VPX_CHART_PIE || m_series > 0)
            return 0;
        const Text text(name);
        m_kind == VPX_CHART_BAR ? m_chart->Add2DBarGraphSegment(text.Get()) : m_chart->Add2DLineGraphSegment(text.Get());
        return ++m_segments;
    }
    // Its number from 1; 0 for a pie, and without segments.
    int AddSeries(std::wstring_view name, COLORREF color)
    {
        if (m_kind == VPX_CHART_PIE || m_segments == 0)
            return 0;
        const Text text(name);
        m_kind == VPX_CHART_BAR ? m_chart->Add2DBarGraphSeries(text.Get(), color)
                                : m_chart->Add2DLineGraphSeries(text.Get(), color);
        return ++m_series;
    }
    bool SetValue(int segment, int series, int value)
    {
        if (segment < 1 || segment > m_segments || series < 1 || series > m_series)
            return false;
        m_kind == VPX_CHART_BAR ? m_chart->Set2DBarGraphValue(segment, series, value)
                                : m_chart->Set2DLineGraphValue(segment, series, value);
        return true;
    }
    // A slice of a flat pie; what would bring the sum above 100 is cut.
    bool AddSlice(std::wstring_view name, double percent, COLORREF color)
    {
        if (m_kind != VPX_CHART_PIE || !(percent > 0))
            return false;
        m_chart->Add2DPieGraphSegment(percent, color, Text(name).Get());
        return true;
    }
    // The animation must be one of the chart's kind.
    bool Animate(VpxAnimation animation)
    {
        const int first = m_kind == VPX_CHART_PIE ? 10 : m_kind == VPX_CHART_BAR ? 20 : 30;
        if (animation < first || animation >= first + 10)
            return false;
        m_chart->SetGraphAnimation(VPX_ANIMATE_ON, animation);
        return true;
    }
    void Still() { m_chart->SetGraphAnimation(VPX_ANIMATE_OFF, 0); }
    // The window keeps 200 by 200 pixels at least.
    void Fit() const noexcept
    {
        if (const HWND parent = GetParent(Window())) {
            const RECT area = detail::ClientOf(parent);
            m_chart->SetGraphPosition(0, 0);
            m_chart->SetGraphSize(area.right, area.bottom);
        }
        Repaint();
    }

private:
    BusinessChart() noexcept = default;
    Status Open(HWND parent, VpxChart kind, const RECT* place, unsigned id, const Library* library)
    {
        const HRESULT made = detail::New(__uuidof(Chart2d), library, m_chart);
        if (FAILED(made))
            return detail::Refusal(made);
        RECT where = place ? *place : detail::ClientOf(parent);
        m_chart->Create(&where, ToWire(parent), id);
        if (!Window()) {
            m_chart = {};
            return {E_INVALIDARG, L"The chart's window could not be made: the parent is no window of this thread."};
        }
        m_chart->CreateGraph(kind);
        m_kind = kind;
        return {};
    }
    VpxChart m_kind = VPX_CHART_BAR;
    int m_segments = 0;
    int m_series = 0;
};

// The 3D pie and its window.
class Pie : public detail::Chart<IPieChart3d>
{
public:
    // An element. Good until it is removed; empty where there is none.
    class Item
    {
    public:
        Item() noexcept = default;
        explicit operator bool() const noexcept { return m_raw != nullptr; }
        // For the methods of IPieChart3d.
        VARIANT* Raw() const noexcept { return m_raw; }

    private:
        friend class Pie;
        explicit Item(VARIANT* raw) noexcept : m_raw(raw) {}
        VARIANT* m_raw = nullptr;
    };

    explicit Pie(HWND parent, std::wstring_view title = L"", const RECT* place = nullptr, unsigned id = 1,
                 const Library* library = nullptr)
    {
        Status status = Open(parent, title, place, id, library);
        if (!status)
            throw Error(std::move(status));
    }
    static Pie Make(HWND parent, Status& status, std::wstring_view title = L"", const RECT* place = nullptr,
                    unsigned id = 1, const Library* library = nullptr)
    {
        Pie pie;
        status = pie.Open(parent, title, place, id, library);
        return pie;
    }

    // Empty for a name that is empty or there already, and for a value that isn't above 0.
    Item Insert(std::wstring_view name, std::wstring_view label, double value, COLORREF color)
    {
        if (Find(name))
            return {};
        m_chart->InsertItem(Text(name).Get(), Text(label).Get(), value, color);
        return Find(name);
    }
    Item Find(std::wstring_view name) const
    {
        VARIANT* item = nullptr;
        m_chart->GetPieChartItem(Text(name).Get(), &item);
        return Item(item);
    }
    // What the last click selected.
    Item Selected() const noexcept
    {
        VARIANT* item = nullptr;
        m_chart->GetSelectedElement(&item);
        return Item(item);
    }
    std::wstring NameOf(Item item) const
    {
        Text name;
        if (item)
            m_chart->GetElementName(item.Raw(), name.Receive());
        return std::wstring(name.View());
    }
    void Remove(std::wstring_view name) { m_chart->RemoveItem(Text(name).Get()); }
    bool SetValue(Item item, double value)
    {
        if (!item || !(value > 0))
            return false;
        return m_chart->UpdateItemValue(item.Raw(), value) == S_OK;
    }
    bool SetLabel(Item item, std::wstring_view label)
    {
        return item && m_chart->UpdateItemLabel(item.Raw(), Text(label).Get()) == S_OK;
    }
    bool SetColor(Item item, COLORREF color)
    {
        return item && m_chart->UpdateItemColor(item.Raw(), color) == S_OK;
    }

private:
    Pie() noexcept = default;
    Status Open(HWND parent, std::wstring_view title, const RECT* place, unsigned id, const Library* library)
    {
        const HRESULT made = detail::New(__uuidof(PieChart3d), library, m_chart);
        if (FAILED(made))
            return detail::Refusal(made);
        RECT where = place ? *place : detail::ClientOf(parent);
        m_chart->Create(Text(title).Get(), &where, ToWire(parent), id);
        if (Window())
            return {};
        m_chart = {};
        return {E_INVALIDARG, L"The pie's window could not be made: the parent is no window of this thread."};
    }
};

} // namespace vantoplex
