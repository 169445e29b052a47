#pragma once
// Between char16_t, in which the window-free files write, and the platform's wchar_t: the same
// units under two names.

#include <windows.h>

#include <string>
#include <string_view>

namespace Viewer
{

static_assert(sizeof(wchar_t) == sizeof(char16_t));

[[nodiscard]] inline const wchar_t* WideData(std::u16string_view text) noexcept
{
    return reinterpret_cast<const wchar_t*>(text.data());
}

[[nodiscard]] inline std::wstring ToWide(std::u16string_view text)
{
    return {WideData(text), text.size()};
}

[[nodiscard]] inline std::u16string FromWide(std::wstring_view text)
{
    return {text.begin(), text.end()};
}

// The system's sentence for an error code or an HRESULT, with the code behind it.
[[nodiscard]] std::u16string SystemText(DWORD code);

} // namespace Viewer
