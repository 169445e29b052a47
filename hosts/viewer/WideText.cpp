#include "viewer/WideText.h"

#include "viewer/PlainText.h"

#include <array>

namespace Viewer
{

std::u16string SystemText(DWORD code)
{
    std::array<wchar_t, 512> buffer{};
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                       buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
    std::u16string text(TrimBlanks(FromWide({buffer.data(), length})));
    while (text.ends_with(u'.'))
        text.pop_back();
    std::u16string digits;
    for (int shift = 28; shift >= 0; shift -= 4)
        digits.push_back(u"0123456789ABCDEF"[code >> shift & 0xF]);
    return (text.empty() ? u"error 0x" : text + u", 0x") + digits;
}

} // namespace Viewer
