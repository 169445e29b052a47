#include "viewer/FontChoice.h"

#include "viewer/WideText.h"

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace Viewer
{
namespace
{

constexpr std::array<std::u16string_view, 11> Faces = {
    u"Arial",         u"Segoe UI",   u"Tahoma",        u"Microsoft YaHei",  u"Yu Gothic",
    u"Malgun Gothic", u"Nirmala UI", u"Leelawadee UI", u"Noto Sans CJK SC", u"WenQuanYi Micro Hei",
    u"DejaVu Sans"};

struct FreeContext {
    void operator()(HDC context) const noexcept { DeleteDC(context); }
};
struct FreeFont {
    void operator()(HFONT font) const noexcept { DeleteObject(font); }
};

bool HasGlyphs(HDC context, std::u16string_view face, const std::wstring& text)
{
    LOGFONTW wanted{};
    wanted.lfHeight = -16;
    wanted.lfCharSet = DEFAULT_CHARSET;
    std::copy(face.begin(), face.end(), wanted.lfFaceName);
    const std::unique_ptr<HFONT__, FreeFont> font(CreateFontIndirectW(&wanted));
    const HGDIOBJ before = SelectObject(context, font.get());
    std::array<wchar_t, LF_FACESIZE> found{};
    GetTextFaceW(context, LF_FACESIZE, found.data());
    std::vector<WORD> glyphs(text.size());
    const DWORD count = GetGlyphIndicesW(context, text.data(), static_cast<int>(text.size()),
                                         glyphs.data(), GGI_MARK_NONEXISTING_GLYPHS);
    SelectObject(context, before);
    return FromWide(found.data()) == face && count == text.size() &&
           std::find(glyphs.begin(), glyphs.end(), WORD{0xFFFF}) == glyphs.end();
}

} // namespace

std::u16string FaceFor(std::u16string_view text)
{
    std::wstring shown = ToWide(text);
    std::erase_if(shown, [](wchar_t unit) { return unit < L' '; });
    const std::unique_ptr<HDC__, FreeContext> context(CreateCompatibleDC(nullptr));
    const auto found = std::find_if(Faces.begin(), Faces.end(), [&](std::u16string_view face) {
        return shown.empty() || HasGlyphs(context.get(), face, shown);
    });
    return std::u16string(found != Faces.end() ? *found : Faces.front());
}

} // namespace Viewer
