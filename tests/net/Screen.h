#pragma once
// What a window shows, copied off the screen.

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

class Report;

class Screen
{
public:
    explicit Screen(HWND hWnd);

    [[nodiscard]] std::uint64_t Sum() const noexcept;
    // What encloses all pixels of the colour; empty if there is none.
    [[nodiscard]] RECT Bounds(COLORREF color) const noexcept;
    bool Write(const std::wstring& path) const; // as a BMP file

private:
    int m_nWidth = 0;
    int m_nHeight = 0;
    std::vector<DWORD> m_pixels; // 0x00RRGGBB, top row first
};

// A checksum of what the window shows, where the report prints it.
void PrintPicture(Report& report, const std::string& subject, HWND hWnd);

// Of the shape that the window under the pointer has set last: "arrow", "cross" and so on.
[[nodiscard]] const char* PointerName() noexcept;
