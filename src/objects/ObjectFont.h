#pragma once
// The fonts that axes, labels and notations start with.

#include <windows.h>

namespace ObjectFont
{
// Arial of the height and weight, any character set, smoothed.
[[nodiscard]] inline LOGFONTW Arial(int nHeight, int nWeight)
{
    LOGFONTW font = {};
    font.lfHeight = nHeight;
    font.lfWeight = nWeight;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfClipPrecision = CLIP_CHARACTER_PRECIS;
    font.lfQuality = ANTIALIASED_QUALITY;
    ::lstrcpynW(font.lfFaceName, L"Arial", LF_FACESIZE);
    return font;
}
} // namespace ObjectFont
