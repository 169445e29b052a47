#pragma once
// A business chart in a host's window. Unless a test asks for another size, the window is
// 640 x 400 with a border of one pixel; by the factors of the layout that is
//
//   bars and lines: the graph area at (32, 140), 448 x 200; the axes meet at (99, 330)
//   flat pie:       its box at (32, 140), 320 x 200

#include "Host.h"
#include "support/MessageBoxes.h"
#include "support/Picture.h"

class Chart2dTest : public testing::Test
{
protected:
    enum EKind { Bar = 0, Pie = 1, Line = 2 };
    static constexpr UINT_PTR Timer = 50000;
    static constexpr COLORREF White = 0xFFFFFF;
    static constexpr COLORREF Red = 0x0000FF;
    static constexpr COLORREF Green = 0x00C000;
    static constexpr COLORREF Blue = 0xFF0000;

    Chart2dTest() : chart(Server::Shared().Make<Chart2d, IChart2d>()) {}

    void SetUp() override { ASSERT_TRUE(chart); }

    void Create(int kind, RECT rect = {10, 20, 650, 420})
    {
        ASSERT_EQ(chart->Create(&rect, WireHandle(host.m_hWnd), 7), S_OK);
        ASSERT_EQ(chart->CreateGraph(kind), S_OK);
        chart->SetGraphTitle(Text(L""));
        chart->SetGraphSubtitle(Text(L""));
    }

    [[nodiscard]] HWND Handle() const
    {
        wireHWND hWnd = nullptr;
        chart->GetHandle(&hWnd);
        return reinterpret_cast<HWND>(hWnd);
    }
    [[nodiscard]] SIZE WindowSize() const
    {
        RECT rect = {};
        ::GetWindowRect(Handle(), &rect);
        return {rect.right - rect.left, rect.bottom - rect.top};
    }

    // Bars: segments s1, s2, ...; then one series for each row of values.
    void FillBars(std::initializer_list<std::initializer_list<int>> rows)
    {
        const COLORREF colors[] = {Red, Green, Blue};
        for (std::size_t segment = 0; segment < rows.begin()->size(); ++segment)
            chart->Add2DBarGraphSegment(Text(L"s"));
        int series = 0;
        for (const auto& row : rows) {
            chart->Add2DBarGraphSeries(Text(L"row"), colors[series % 3]);
            ++series;
            int segment = 0;
            for (const int value : row)
                chart->Set2DBarGraphValue(++segment, series, value);
        }
    }
    void FillLines(std::initializer_list<std::initializer_list<int>> rows)
    {
        const COLORREF colors[] = {Red, Green, Blue};
        for (std::size_t segment = 0; segment < rows.begin()->size(); ++segment)
            chart->Add2DLineGraphSegment(Text(L"s"));
        int series = 0;
        for (const auto& row : rows) {
            chart->Add2DLineGraphSeries(Text(L"row"), colors[series % 3]);
            ++series;
            int segment = 0;
            for (const int value : row)
                chart->Set2DLineGraphValue(++segment, series, value);
        }
    }

    // Paints what is marked for painting, and reads it back.
    Picture Shoot() const
    {
        ::UpdateWindow(Handle());
        return Picture(Handle());
    }
    Picture Redrawn(bool erase = true) const
    {
        chart->Invalidate(erase ? 1 : 0);
        return Shoot();
    }
    // Ticks of the animation, each with its paint, without waiting for the timer.
    void Tick(int ticks = 1) const
    {
        while (ticks-- > 0) {
            ::SendMessageW(Handle(), WM_TIMER, Timer, 0);
            ::UpdateWindow(Handle());
        }
    }
    // Starts an animation and goes on to that tick, of which the start is the first.
    Picture AtTick(int type, int tick) const
    {
        chart->SetGraphAnimation(1, type);
        Redrawn();
        Tick(tick - 1);
        return Picture(Handle());
    }
    [[nodiscard]] bool HasTimer() const
    {
        // An existing timer can be taken away; it is put back.
        if (!::KillTimer(Handle(), Timer))
            return false;
        ::SetTimer(Handle(), Timer, 50, nullptr);
        return true;
    }

    // The color of `over` on `under` with that alpha, within one step of rounding.
    static testing::AssertionResult IsBlend(COLORREF color, COLORREF under, COLORREF over, int alpha)
    {
        for (int shift = 0; shift <= 16; shift += 8) {
            const int from = static_cast<int>(under >> shift & 0xFF);
            const int to = static_cast<int>(over >> shift & 0xFF);
            const int expected = from + (to - from) * alpha / 255;
            const int is = static_cast<int>(color >> shift & 0xFF);
            if (is < expected - 2 || is > expected + 2)
                return testing::AssertionFailure() << std::hex << color << " is not " << expected;
        }
        return testing::AssertionSuccess();
    }
    // Rows of a column that have the color, as [first, last]; {-1, -1} for none.
    static POINT Column(const Picture& picture, int x, COLORREF color, int height = 398)
    {
        POINT rows = {-1, -1};
        for (int y = 0; y < height; ++y) {
            if (picture.At(x, y) != color)
                continue;
            if (rows.x < 0)
                rows.x = y;
            rows.y = y;
        }
        return rows;
    }

    // Pixels by which the picture differs from the text as the same font draws it on the
    // background, inside the text's own rectangle. alignment: TA_LEFT, TA_RIGHT or TA_CENTER.
    struct TFont {
        int height;
        int width = 0;
        int weight = 400;
        const wchar_t* face = L"Arial";
    };
    static int TextDifferences(const Picture& picture, POINT at, const std::wstring& text,
                               const TFont& font, UINT alignment = TA_LEFT, COLORREF color = 0,
                               COLORREF background = White)
    {
        const HDC hDC = ::CreateCompatibleDC(nullptr);
        const HDC hScreen = ::GetDC(nullptr);
        const HBITMAP hBitmap = ::CreateCompatibleBitmap(hScreen, 640, 400);
        const HFONT hFont =
            ::CreateFontW(font.height, font.width, 0, 0, font.weight, 0, 0, 0, 1, 2, 1, 2, 0, font.face);
        const HBRUSH hBrush = ::CreateSolidBrush(background);
        const HGDIOBJ hOldBitmap = ::SelectObject(hDC, hBitmap);
        const HGDIOBJ hOldFont = ::SelectObject(hDC, hFont);
        const RECT all = {0, 0, 640, 400};
        ::FillRect(hDC, &all, hBrush);
        ::SetBkMode(hDC, TRANSPARENT);
        ::SetTextColor(hDC, color);
        ::SetTextAlign(hDC, alignment);
        ::TextOutW(hDC, at.x, at.y, text.c_str(), static_cast<int>(text.size()));
        SIZE size = {};
        ::GetTextExtentPoint32W(hDC, text.c_str(), static_cast<int>(text.size()), &size);
        const int left = alignment == TA_LEFT    ? at.x
                         : alignment == TA_RIGHT ? at.x - size.cx
                                                 : at.x - size.cx / 2;
        int differences = 0;
        int inked = 0;
        for (int y = at.y; y < at.y + size.cy; ++y) {
            for (int x = left; x < left + size.cx; ++x) {
                const COLORREF expected = ::GetPixel(hDC, x, y);
                differences += expected != picture.At(x, y) ? 1 : 0;
                inked += expected != background ? 1 : 0;
            }
        }
        ::SelectObject(hDC, hOldFont);
        ::SelectObject(hDC, hOldBitmap);
        ::DeleteObject(hBrush);
        ::DeleteObject(hFont);
        ::DeleteObject(hBitmap);
        ::ReleaseDC(nullptr, hScreen);
        ::DeleteDC(hDC);
        return inked > 0 ? differences : -1; // a text without ink proves nothing
    }
    static int TextHeight(const TFont& font)
    {
        const HDC hDC = ::CreateCompatibleDC(nullptr);
        const HFONT hFont =
            ::CreateFontW(font.height, font.width, 0, 0, font.weight, 0, 0, 0, 1, 2, 1, 2, 0, font.face);
        const HGDIOBJ hOld = ::SelectObject(hDC, hFont);
        SIZE size = {};
        ::GetTextExtentPoint32W(hDC, L"ABCDEFGHIJKLMNOPQRSTUVWXYZ", 26, &size);
        ::SelectObject(hDC, hOld);
        ::DeleteObject(hFont);
        ::DeleteDC(hDC);
        return size.cy;
    }

    HostWindow host;
    Holder<IChart2d> chart;
    MessageBoxes boxes;
};

inline bool operator==(const POINT& a, const POINT& b)
{
    return a.x == b.x && a.y == b.y;
}
inline void PrintTo(const POINT& point, std::ostream* stream)
{
    *stream << '[' << point.x << ", " << point.y << ']';
}
