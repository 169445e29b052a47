#pragma once
// The nine operations that never ask the attribute context.

#include "Canvas.h"

#include <gtest/gtest.h>

// `dc` draws on the handle of `drawn` and has that of `asked`, whose clip box hides everything
// below, for its attributes.
inline void ExpectDirectOperations(CDC& dc, const Canvas& drawn, const Canvas& asked)
{
    const auto blank = Canvas(60, 30).Picture();
    const CRect rect(0, 0, 10, 10);
    CRect room(0, 0, 60, 30);
    WCHAR text[] = L"x";
    EXPECT_TRUE(dc.PtVisible(5, 5));
    EXPECT_TRUE(dc.RectVisible(&rect));
    const auto expectDrawn = [&](const char* what, auto&& draw) {
        ::PatBlt(drawn.dc, 0, 0, 60, 30, WHITENESS);
        draw();
        EXPECT_NE(drawn.Picture(), blank) << what;
    };
    expectDrawn("TextOut", [&] { EXPECT_TRUE(dc.TextOut(0, 0, L"x", 1)); });
    expectDrawn("ExtTextOut", [&] { EXPECT_TRUE(dc.ExtTextOut(9, 0, 0, nullptr, L"x", 1, nullptr)); });
    expectDrawn("TabbedTextOut",
                [&] { EXPECT_GT(dc.TabbedTextOut(20, 0, L"a\tb", 3, 0, nullptr, 0).cx, 0); });
    expectDrawn("DrawText", [&] { EXPECT_GT(dc.DrawText(L"x", 1, &room, DT_CENTER), 0); });
    expectDrawn("DrawTextEx", [&] { EXPECT_GT(dc.DrawTextEx(text, 1, &room, DT_RIGHT, nullptr), 0); });
    CBrush brush(RGB(0, 0, 0));
    const GRAYSTRINGPROC fill = [](HDC hDC, LPARAM, int) {
        return ::PatBlt(hDC, 0, 0, 10, 10, BLACKNESS);
    };
    const auto gray = [&](auto&& draw) {
        ::PatBlt(drawn.dc, 0, 0, 60, 30, WHITENESS);
        EXPECT_TRUE(draw());
        return drawn.Picture();
    };
    EXPECT_EQ(gray([&] { return dc.GrayString(&brush, fill, 1, 1, 3, 3, 20, 20); }),
              gray([&] { return ::GrayString(drawn.dc, brush, fill, 1, 1, 3, 3, 20, 20); }));
    constexpr int code = NEWFRAME;
    EXPECT_EQ(
        dc.Escape(QUERYESCSUPPORT, sizeof code, reinterpret_cast<LPCSTR>(&code), nullptr),
        ::Escape(drawn.dc, QUERYESCSUPPORT, sizeof code, reinterpret_cast<LPCSTR>(&code), nullptr));
    EXPECT_EQ(asked.Picture(), blank);
}
