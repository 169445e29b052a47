#pragma once
// A picture in memory that keeps account of every text drawn on it, with its place, its format,
// its font and the background mode.

#include "draw/DCEx.h"

#include <string>
#include <string_view>
#include <vector>

class WatchedDC : public CDCEx
{
public:
    struct Text {
        std::wstring text;
        CRect rect;      // of TextOut an empty one, at its point
        UINT format = 0; // of DrawText
        LOGFONTW font = {};
        int backMode = 0;
    };
    std::vector<Text> texts;

    using CDCEx::DrawText;
    int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) override
    {
        if ((nFormat & DT_CALCRECT) == 0)
            Note(lpszString, nCount, CRect(*lpRect), nFormat);
        return CDCEx::DrawText(lpszString, nCount, lpRect, nFormat);
    }
    using CDCEx::TextOut;
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override
    {
        Note(lpszString, nCount, CRect(x, y, x, y), 0);
        return CDCEx::TextOut(x, y, lpszString, nCount);
    }

    // Those that begin with a mark, in order.
    [[nodiscard]] std::vector<Text> Marked(std::wstring_view mark) const
    {
        std::vector<Text> found;
        for (const Text& text : texts) {
            if (text.text.starts_with(mark))
                found.push_back(text);
        }
        return found;
    }

private:
    void Note(LPCTSTR lpszString, int nCount, const CRect& rect, UINT nFormat)
    {
        Text text{
            std::wstring(lpszString, static_cast<std::size_t>(nCount)), rect, nFormat, {}, GetBkMode()};
        ::GetObject(::GetCurrentObject(m_hDC, OBJ_FONT), sizeof text.font, &text.font);
        texts.push_back(text);
    }
};

class WatchedCanvas
{
public:
    WatchedCanvas(int width, int height)
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* memory = nullptr;
        m_hBitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
        m_pixels = static_cast<DWORD*>(memory);
        m_count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        dc.Attach(::CreateCompatibleDC(nullptr));
        m_hOld = ::SelectObject(dc, m_hBitmap);
    }
    ~WatchedCanvas()
    {
        ::SelectObject(dc, m_hOld);
        ::DeleteObject(m_hBitmap);
    }
    WatchedCanvas(const WatchedCanvas&) = delete;
    WatchedCanvas& operator=(const WatchedCanvas&) = delete;

    WatchedDC dc;

    // All pixels, row by row.
    [[nodiscard]] std::vector<DWORD> Pixels() const
    {
        ::GdiFlush();
        return {m_pixels, m_pixels + m_count};
    }

private:
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOld;
    DWORD* m_pixels;
    std::size_t m_count;
};
