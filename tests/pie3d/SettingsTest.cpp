// The settings of the window, and what it is made with.

#include "PieWindow.h"

#include <cmath>
#include <cwchar>

using PieSettings = PieWindow;

namespace
{

LOGFONTW Font(const wchar_t* face, LONG weight, BYTE italic = 0, BYTE underline = 0, BYTE strikeOut = 0)
{
    LOGFONTW font = {};
    font.lfWeight = weight;
    font.lfItalic = italic;
    font.lfUnderline = underline;
    font.lfStrikeOut = strikeOut;
    std::wcsncpy(font.lfFaceName, face, LF_FACESIZE);
    return font;
}

} // namespace

TEST_F(PieSettings, StartWithTheirDocumentedValues)
{
    const CPieChartWnd fresh;
    EXPECT_EQ(fresh.m_nChartStyle, 2);
    EXPECT_EQ(fresh.m_fDepthRatio, 0.5f);
    EXPECT_EQ(fresh.m_nPieLimit, 200);
    EXPECT_EQ(fresh.m_nMarkWidth, 50);
    EXPECT_EQ(fresh.m_nRowHeight, 20);
    EXPECT_EQ(fresh.m_nRowGap, 10);
    EXPECT_EQ(fresh.m_nScrollBarInset, 20);
    EXPECT_EQ(fresh.m_nVisibleHeight, 1000);
    EXPECT_EQ(fresh.m_crLabel, 0xFF000000u);
    EXPECT_EQ(fresh.m_crLabelBox, 0xFFFFFFFFu);
    EXPECT_EQ(fresh.m_crSelected, 0xFF6BE6FFu);
    EXPECT_EQ(fresh.m_crBackgroundLight, 0xFFFFFFFFu);
    EXPECT_EQ(fresh.m_crBackgroundDark, 0xFFFFFFFFu);
    EXPECT_EQ(fresh.GetBackGroungGrLight(), 200.0f);
    EXPECT_EQ(fresh.GetBackgroundGrDark(), 10.0f);
    EXPECT_EQ(fresh.m_crParentWindow, ::GetSysColor(COLOR_3DFACE));
    EXPECT_TRUE(fresh.m_bShowPercent);
    EXPECT_FALSE(fresh.m_bLabelPercent);
    EXPECT_FALSE(fresh.m_bSaveImage);
}

TEST_F(PieSettings, TheCaptionIsTheTitleAndTheWindowAVisibleChildWithClippedChildren)
{
    EXPECT_EQ(pie.m_strTitle, L"Title");
    EXPECT_EQ(pie.GetStyle() & (WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_BORDER),
              static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN));
    EXPECT_EQ(pie.GetDlgCtrlID(), 5);
    CString text;
    pie.GetWindowText(text);
    EXPECT_TRUE(text.IsEmpty());
    CPieChartWnd untitled;
    untitled.Create(nullptr, CRect(0, 0, 10, 10), CWnd::FromHandle(host.m_hWnd), 6);
    EXPECT_TRUE(untitled.m_strTitle.IsEmpty());
}

TEST_F(PieSettings, StartAnglesLoseTheirFullTurns)
{
    pie.SetStartAngle(725);
    EXPECT_EQ(pie.m_fStartAngle, 5.0f);
    EXPECT_EQ(pie.m_fDrawStartAngle, 5.0f);
    pie.SetStartAngle(-30);
    EXPECT_EQ(pie.m_fStartAngle, -30.0f);
    for (const float angle : {INFINITY, -INFINITY, NAN}) {
        pie.SetStartAngle(angle);
        EXPECT_EQ(pie.m_fStartAngle, -30.0f);
    }
    pie.SetStartAngle(3e38f);
    EXPECT_LT(pie.m_fStartAngle, 360.0f);
}

TEST_F(PieSettings, TheInclineHasNoUpperLimitAndIsNeverNegative)
{
    pie.SetInclineAngle(120);
    EXPECT_EQ(pie.m_fInclineAngle, 120.0f);
    pie.SetInclineAngle(-5);
    EXPECT_EQ(pie.m_fInclineAngle, 0.0f);
    pie.SetInclineAngle(NAN);
    EXPECT_EQ(pie.m_fInclineAngle, 0.0f);
}

TEST_F(PieSettings, DepthIsRelativeToThePieAndNotNegative)
{
    EXPECT_EQ(pie.SetDepth(20), 1);
    EXPECT_FLOAT_EQ(pie.m_fDepthRatio, 20.0f / 221); // 470 * 85 / 180
    EXPECT_EQ(pie.SetDepth(-1), 0);
    EXPECT_EQ(pie.SetDepth(NAN), 0);
    EXPECT_EQ(pie.SetDepth(INFINITY), 0);
    EXPECT_FLOAT_EQ(pie.m_fDepthRatio, 20.0f / 221);
    EXPECT_EQ(pie.SetDepth(0), 1);
    EXPECT_EQ(pie.m_fDepthRatio, 0.0f);
}

TEST_F(PieSettings, AtAnInclineOfEightyFiveTheWallIsAboutTheDepthHigh)
{
    pie.SetInclineAngle(85);
    pie.SetDepth(40);
    TRect upper;
    TRect lower;
    pie.GetFaceRects(upper, lower);
    EXPECT_NEAR(lower.top - upper.top, 40, 1);
}

TEST_F(PieSettings, BackgroundShadesFollowItsColorAndItsAmounts)
{
    pie.SetBackgrndColor(0xFF6496C8);
    EXPECT_EQ(pie.m_crBackground, 0xFF6496C8u);
    EXPECT_EQ(pie.m_crBackgroundLight, PieColors::LightenColor(0xFF6496C8, 200));
    EXPECT_EQ(pie.m_crBackgroundDark, PieColors::DarkenColor(0xFF6496C8, 10));
    pie.SetBackGroundGradientLight(0);
    pie.SetBackGroundGradientDark(255);
    EXPECT_EQ(pie.m_crBackgroundLight, 0xFF6496C8u);
    EXPECT_EQ(pie.m_crBackgroundDark, 0xFF000000u);
    pie.SetBackGroundGradientLight(NAN);
    pie.SetBackGroundGradientDark(INFINITY);
    EXPECT_EQ(pie.GetBackGroungGrLight(), 0.0f);
    EXPECT_EQ(pie.GetBackgroundGrDark(), 255.0f);
}

TEST_F(PieSettings, ALabelFontSetsItsStyleAndATitleFontAddsToIt)
{
    pie.SetLabelFont(Font(L"Arial", 100, 1));
    EXPECT_EQ(pie.m_strLabelFontName, L"Arial");
    EXPECT_EQ(pie.m_nLabelFontStyle, 3);
    pie.SetLabelFont(Font(L"Tahoma", 0, 0, 1));
    EXPECT_EQ(pie.m_nLabelFontStyle, 4);
    pie.SetTitleFont(Font(L"Arial", 400));
    pie.SetTitleFont(Font(L"Tahoma", 0, 0, 0, 1));
    EXPECT_EQ(pie.m_strTitleFontName, L"Tahoma");
    EXPECT_EQ(pie.m_nTitleFontStyle, 9);
}

TEST_F(PieSettings, AFaceWithoutItsEndIsReadNoFurther)
{
    pie.SetLabelFont(Font(L"12345678901234567890123456789012345", 0));
    EXPECT_EQ(pie.m_strLabelFontName.GetLength(), LF_FACESIZE);
}

TEST_F(PieSettings, AnObjectWithoutAWindowTakesDataAndPaintsNothing)
{
    CPieChartWnd loose;
    EXPECT_NE(loose.InsertItem(L"a", L"", 1, Red), nullptr);
    EXPECT_EQ(loose.SetDepth(10), 1);
    loose.SetStartAngle(40);
    loose.sortPiechartElements(1);
    loose.HitTest(CPoint(100, 200));
    EXPECT_EQ(loose.RemoveItem(L"a"), 1);
}

TEST_F(PieSettings, AnObjectOutlivesItsWindow)
{
    Fill({1, 2});
    ::DestroyWindow(pie.m_hWnd);
    EXPECT_EQ(pie.m_hWnd, nullptr);
    EXPECT_EQ(pie.UpdateItemValue(&Element(0), 5), 1);
    EXPECT_EQ(pie.RemoveItem(L"e0"), 1);
}

class PieRepaints : public PieWindow
{
protected:
    PieRepaints()
    {
        s_erased = false;
        s_pfnPie = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(pie.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Watch)));
        Fill({1, 2, 3});
    }
    ~PieRepaints() override
    {
        ::SetWindowLongPtrW(pie.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_pfnPie));
    }

    // Whether the paint that the change asks for erases the window, if it asks for one.
    template <class Change> bool Erases(Change change)
    {
        ::ValidateRect(pie.m_hWnd, nullptr);
        change();
        s_erased = false;
        pie.UpdateWindow();
        return s_erased;
    }

    LOGFONTW m_font = Font(L"Arial", 400);

private:
    static LRESULT CALLBACK Watch(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        s_erased = s_erased || message == WM_ERASEBKGND;
        return ::CallWindowProcW(s_pfnPie, hWnd, message, wParam, lParam);
    }

    inline static bool s_erased = false;
    inline static WNDPROC s_pfnPie = nullptr;
};

TEST_F(PieRepaints, EverySetterOfTheWindowErasesButTheParentsColour)
{
    EXPECT_TRUE(Erases([&] { pie.SetBackgrndColor(Red); }));
    EXPECT_TRUE(Erases([&] { pie.SetBackGroundGradientLight(1); }));
    EXPECT_TRUE(Erases([&] { pie.SetBackGroundGradientDark(1); }));
    EXPECT_TRUE(Erases([&] { pie.SetLabelColor(Red); }));
    EXPECT_TRUE(Erases([&] { pie.SetLabelBoxColor(Red); }));
    EXPECT_TRUE(Erases([&] { pie.SetLabelFontName(L"Arial"); }));
    EXPECT_TRUE(Erases([&] { pie.SetTitleFontName(L"Arial"); }));
    EXPECT_TRUE(Erases([&] { pie.SetPieChartTitle(L"x"); }));
    EXPECT_TRUE(Erases([&] { pie.SetLabelFont(m_font); }));
    EXPECT_TRUE(Erases([&] { pie.SetTitleFont(m_font); }));
    EXPECT_TRUE(Erases([&] { pie.SetPieChartStyle(1); }));
    EXPECT_TRUE(Erases([&] { pie.SetStartAngle(1); }));
    EXPECT_TRUE(Erases([&] { pie.SetInclineAngle(1); }));
    EXPECT_TRUE(Erases([&] { pie.SetDepth(1); }));
    EXPECT_FALSE(Erases([&] { pie.SetParentWindowColor(1); }));
    EXPECT_FALSE(Erases([&] { pie.SetDepth(-1); }));
}

TEST_F(PieRepaints, EveryChangeOfTheElementsErasesButTheRemovalOfAll)
{
    EXPECT_TRUE(Erases([&] { pie.InsertItem(L"new", L"", 1, Red); }));
    EXPECT_TRUE(Erases([&] { pie.RemoveItem(L"new"); }));
    EXPECT_TRUE(Erases([&] { pie.RemoveItemByIndex(2); }));
    EXPECT_TRUE(Erases([&] { pie.UpdateItemLabel(&Element(0), L"x"); }));
    EXPECT_TRUE(Erases([&] { pie.UpdateItemValue(&Element(0), 5); }));
    EXPECT_TRUE(Erases([&] { pie.UpdateItemColor(&Element(0), Blue); }));
    EXPECT_TRUE(Erases([&] { pie.SetPieElementGradientLight(&Element(0), 1); }));
    EXPECT_TRUE(Erases([&] { pie.SetPieElementGradientDark(&Element(0), 1); }));
    EXPECT_TRUE(Erases([&] { pie.SetPieElementGradientLightAll(1); }));
    EXPECT_TRUE(Erases([&] { pie.SetPieElementGradientDarkAll(1); }));
    EXPECT_TRUE(Erases([&] { pie.sortPiechartElements(1); }));
    EXPECT_TRUE(Erases([&] { pie.SortToOrginalOrder(); }));
    EXPECT_TRUE(Erases([&] { Click(1, 1); }));
    EXPECT_TRUE(Erases([&] { Scroll(SB_LINEDOWN); }));
    EXPECT_FALSE(Erases([&] { pie.RemoveItem(L"none"); }));
    EXPECT_FALSE(Erases([&] { pie.UpdateItemValue(&Element(0), 0); }));
    EXPECT_FALSE(Erases([&] { pie.RemoveAllItem(); }));
}
