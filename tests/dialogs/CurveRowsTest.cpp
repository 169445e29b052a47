// The rows of the two lists that the curve page draws itself.

#include "CurvePageHost.h"

using namespace CurvePage;
using namespace DialogHands;

namespace
{

class CurvePageRows : public CurvePageTest
{
protected:
    // The pixels that the page draws for a row of one of its own lists.
    static int DarkPixels(HWND hPage, int nID, UINT nRow, UINT nState, COLORREF crDark)
    {
        const HDC hScreen = ::GetDC(nullptr);
        const HDC hDC = ::CreateCompatibleDC(hScreen);
        const HBITMAP hBitmap = ::CreateCompatibleBitmap(hScreen, 60, 16);
        const HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
        const RECT rect = {0, 0, 60, 16};
        const HBRUSH hBrush = ::CreateSolidBrush(Untouched);
        ::FillRect(hDC, &rect, hBrush);
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_COMBOBOX;
        item.CtlID = static_cast<UINT>(nID);
        item.itemID = nRow;
        item.itemAction = ODA_DRAWENTIRE;
        item.itemState = nState;
        item.hwndItem = ::GetDlgItem(hPage, nID);
        item.hDC = hDC;
        item.rcItem = rect;
        ::SendMessageW(hPage, WM_DRAWITEM, static_cast<WPARAM>(nID), reinterpret_cast<LPARAM>(&item));
        int nCount = 0;
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 60; ++x)
                nCount += ::GetPixel(hDC, x, y) == crDark ? 1 : 0;
        }
        ::DeleteObject(hBrush);
        ::SelectObject(hDC, hOld);
        ::DeleteObject(hBitmap);
        ::DeleteDC(hDC);
        ::ReleaseDC(nullptr, hScreen);
        return nCount;
    }
    static constexpr COLORREF Untouched = 0x123456;
};

} // namespace

TEST_F(CurvePageRows, ThePagesOwnListsAreSixteenPixelsHigh)
{
    OpenAnd([](HWND hPage) {
        EXPECT_EQ(::SendDlgItemMessageW(hPage, marker, CB_GETITEMHEIGHT, 0, 0), 16);
        EXPECT_EQ(::SendDlgItemMessageW(hPage, lineStyle, CB_GETITEMHEIGHT, 0, 0), 16);
        for (const int nID : {lineStyle, marker}) {
            MEASUREITEMSTRUCT item = {ODT_COMBOBOX, static_cast<UINT>(nID), 0, 0, 0, 0};
            ::SendMessageW(hPage, WM_MEASUREITEM, static_cast<WPARAM>(nID),
                           reinterpret_cast<LPARAM>(&item));
            EXPECT_EQ(item.itemHeight, 16u);
            EXPECT_EQ(item.itemWidth, nID == marker ? 16u : 100u);
        }
    });
}

TEST_F(CurvePageRows, EachOfTheEightSymbolsIsDrawnInItsRow)
{
    OpenAnd([](HWND hPage) {
        const COLORREF crInactive = ::GetSysColor(COLOR_INACTIVEBORDER);
        for (UINT nRow = 0; nRow < 8; ++nRow) {
            EXPECT_GT(DarkPixels(hPage, marker, nRow, 0, 0), 15) << nRow;
            EXPECT_GT(DarkPixels(hPage, marker, nRow, 0, ::GetSysColor(COLOR_WINDOW)), 60 * 16 / 2)
                << nRow;
            EXPECT_GT(DarkPixels(hPage, marker, nRow, ODS_SELECTED, ::GetSysColor(COLOR_HIGHLIGHT)),
                      60 * 16 / 2)
                << nRow;
            EXPECT_GT(DarkPixels(hPage, marker, nRow, ODS_DISABLED, crInactive), 10) << nRow;
        }
        for (const UINT nRow : {8u, 15u, 0xFFFFFFFFu})
            EXPECT_EQ(DarkPixels(hPage, marker, nRow, ODS_SELECTED, Untouched), 60 * 16) << nRow;
    });
}

TEST_F(CurvePageRows, EachOfTheFivePenStylesIsDrawnInItsRow)
{
    OpenAnd([](HWND hPage) {
        for (UINT nRow = 0; nRow < 5; ++nRow) {
            const int nDark = DarkPixels(hPage, lineStyle, nRow, 0, 0);
            EXPECT_GT(nDark, 20) << nRow;
            EXPECT_TRUE(nRow == 0 ? nDark == 60 : nDark < 60) << nRow << ": " << nDark;
            EXPECT_GT(DarkPixels(hPage, lineStyle, nRow, ODS_SELECTED, ::GetSysColor(COLOR_HIGHLIGHT)),
                      60 * 15 - 1)
                << nRow;
        }
        EXPECT_EQ(DarkPixels(hPage, lineStyle, 5, 0, Untouched), 60 * 16);
    });
}
