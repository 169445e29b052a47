#pragma once
// A 3D pie in a host's window, 800 by 600 unless a test says otherwise: the pie is at
// (30, 100, 500, 570), centre (265, 335), radius 235; tilted by 60 its faces are at
// (30, 217, 500, 375) and (30, 295, 500, 453). The marks of the list are at 550 to 596.

#include "Host.h"
#include "support/Picture.h"

class PieChart3dTest : public testing::Test
{
protected:
    static constexpr COLORREF White = 0xFFFFFF;
    static constexpr COLORREF Red = 0x0000FF;
    static constexpr COLORREF Green = 0x00C000;
    static constexpr COLORREF Blue = 0xFF0000;
    enum EStyle { Tilted = 0, Doughnut = 1, Flat = 2 };

    PieChart3dTest() : pie(Server::Shared().Make<PieChart3d, IPieChart3d>()) {}

    void SetUp() override { ASSERT_TRUE(pie); }

    void Create(RECT rect = {0, 0, 800, 600}, const wchar_t* caption = L"Title")
    {
        ASSERT_EQ(pie->Create(Text(caption), &rect, WireHandle(host.m_hWnd), 9), S_OK);
    }
    // Elements named e0, e1, ... of these values, red, green and blue in turn.
    void Fill(std::initializer_list<double> values)
    {
        const COLORREF colors[] = {Red, Green, Blue};
        for (const double value : values) {
            const std::wstring name = L"e" + std::to_wstring(inserted);
            EXPECT_EQ(pie->InsertItem(Text(name.c_str()), Text(L"label"), value, colors[inserted % 3]),
                      S_OK);
            ++inserted;
        }
    }
    // One color for each slice, a white background, no title.
    void Plain()
    {
        pie->SetPieElementGradientLightAll(0);
        pie->SetPieElementGradientDarkAll(0);
        pie->SetBackgrndColor(White);
        pie->SetBackGroundGradientDark(0);
        pie->SetPieChartTitle(Text(L""));
    }

    [[nodiscard]] HWND Handle() const
    {
        wireHWND hWnd = nullptr;
        pie->GetHandle(&hWnd);
        return reinterpret_cast<HWND>(hWnd);
    }
    [[nodiscard]] HWND Bar() const { return ::GetDlgItem(Handle(), 1); }
    [[nodiscard]] VARIANT* Item(const wchar_t* name) const
    {
        VARIANT* item = nullptr;
        EXPECT_EQ(pie->GetPieChartItem(Text(name), &item), S_OK);
        return item;
    }
    [[nodiscard]] int Id(const wchar_t* name) const
    {
        int id = -2;
        EXPECT_EQ(pie->GetElementID(Text(name), &id), S_OK);
        return id;
    }
    [[nodiscard]] std::wstring NameOf(VARIANT* item) const
    {
        Text name;
        EXPECT_EQ(pie->GetElementName(item, name.Out()), S_OK);
        return name.Str();
    }
    [[nodiscard]] std::wstring Selected() const
    {
        VARIANT* item = nullptr;
        EXPECT_EQ(pie->GetSelectedElement(&item), S_OK);
        return item != nullptr ? NameOf(item) : L"";
    }
    // The name of what a click there selects.
    std::wstring Clicked(int x, int y) const
    {
        ::SendMessageW(Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        return Selected();
    }
    void Scroll(int code) const
    {
        ::SendMessageW(Handle(), WM_VSCROLL, static_cast<WPARAM>(code), reinterpret_cast<LPARAM>(Bar()));
    }
    [[nodiscard]] int BarPosition() const { return ::GetScrollPos(Bar(), SB_CTL); }

    // Paints what is marked for painting, and reads it back.
    Picture Shoot() const
    {
        ::UpdateWindow(Handle());
        return Picture(Handle());
    }
    Picture Redrawn() const
    {
        EXPECT_EQ(pie->Invalidate(1), S_OK);
        return Shoot();
    }
    [[nodiscard]] bool NeedsPaint() const { return ::GetUpdateRect(Handle(), nullptr, FALSE) != FALSE; }

    // The marks of the list from top to bottom, as the letters of their colors.
    [[nodiscard]] std::string Marks() const
    {
        const Picture picture = Shoot();
        std::string marks;
        COLORREF last = White;
        for (int y = 100; y < 570; ++y) {
            const COLORREF color = picture.At(570, y);
            const char letter = color == Red ? 'r' : color == Green ? 'g' : color == Blue ? 'b' : 0;
            if (color != last && letter != 0)
                marks.push_back(letter);
            last = color;
        }
        return marks;
    }

    HostWindow host;
    Holder<IPieChart3d> pie;
    int inserted = 0;
};
