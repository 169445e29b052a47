#pragma once
// A bitmap that can be stored. In a file, little-endian and without padding: bmType 4 bytes,
// bmWidth 4, bmHeight 4, bmWidthBytes 4, bmPlanes 2, bmBitsPixel 2, then
// bmWidthBytes * bmHeight bytes of bits as the platform's GetBitmapBits returns them.
// No bitmap at all is a header of zeros and no bits.

#include "framework/windowing/GdiObjects.h"

class CArchive;

class CBitmapEx : public CBitmap
{
    DECLARE_SERIAL(CBitmapEx)

public:
    CBitmapEx() noexcept = default;

    // Loading replaces the bitmap. A size that can't be, or that the rest of the file can't
    // fill, throws CArchiveException (endOfFile) before anything is allocated for it, and
    // the bitmap stays as it was.
    void Serialize(CArchive& ar) override;
};
