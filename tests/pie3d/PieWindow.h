#pragma once
// A pie window of its own, in a host's window. Its client area is 800 by 600 unless a test
// says otherwise: the pie is at (30, 100, 500, 570), centre (265, 335), radius 235.

#include "pie3d/PieChartWnd.h"
#include "support/HostWindow.h"
#include "support/Picture.h"

#include <gtest/gtest.h>

#include <string>

class PieWindow : public testing::Test
{
protected:
    static constexpr PieColors::Argb Red = 0xFFFF0000;
    static constexpr PieColors::Argb Green = 0xFF00C000;
    static constexpr PieColors::Argb Blue = 0xFF0000FF;

    PieWindow() { Make(pie); }
    ~PieWindow() override { pie.DestroyWindow(); }

    void Make(CPieChartWnd& wnd, int width = 800, int height = 600) const
    {
        wnd.Create(L"Title", CRect(0, 0, width, height), CWnd::FromHandle(host.m_hWnd), 5);
    }

    // Elements of these values, named e0, e1, ... and red, green, blue in turn.
    void Fill(std::initializer_list<double> values)
    {
        const PieColors::Argb colors[] = {Red, Green, Blue};
        for (const double value : values) {
            const int number = pie.m_nElements;
            pie.InsertItem(Name(number), L"label", value, colors[number % 3]);
        }
        pie.Settle();
    }
    static CString Name(int number)
    {
        CString name;
        name.Format(L"e%d", number);
        return name;
    }
    // One colour each, a white background, no texts: what is drawn is known by its pixel.
    void Plain()
    {
        pie.SetPieElementGradientLightAll(0);
        pie.SetPieElementGradientDarkAll(0);
        pie.SetBackgrndColor(0xFFFFFFFF);
        pie.SetBackGroundGradientDark(0);
        pie.SetPieChartTitle(L"");
        pie.m_bShowPercent = FALSE;
    }
    SPieElement& Element(int key) { return *pie.m_mapElements.at(key); }
    // The names in the order of drawing.
    std::wstring Order() const
    {
        std::wstring order;
        for (const auto& [key, element] : pie.m_mapElements)
            order += (order.empty() ? L"" : L" ") + std::wstring(element->strName.View());
        return order;
    }
    Picture Shoot()
    {
        pie.UpdateWindow();
        return Picture(pie.m_hWnd);
    }
    void Click(int x, int y) { pie.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    std::wstring ClickedName(int x, int y)
    {
        Click(x, y);
        const SPieElement* element = pie.GetSelectedElement();
        return element != nullptr ? std::wstring(element->strName.View()) : L"";
    }
    void Scroll(int code, int position = 0)
    {
        pie.SendMessage(WM_VSCROLL, MAKEWPARAM(code, position),
                        reinterpret_cast<LPARAM>(pie.m_wndScrollBar.m_hWnd));
    }
    bool NeedsPaint() const { return ::GetUpdateRect(pie.m_hWnd, nullptr, FALSE) != FALSE; }

    HostWindow host;
    CPieChartWnd pie;
};

inline COLORREF Ref(PieColors::Argb color)
{
    return RGB(color >> 16 & 0xFF, color >> 8 & 0xFF, color & 0xFF);
}
