#include "draw/BitmapEx.h"

#include "draw/StoredBitmap.h"
#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"

#include <vector>

IMPLEMENT_SERIAL(CBitmapEx, CBitmap, 1)

namespace
{
void Store(CArchive& ar, const CBitmapEx& picture)
{
    BITMAP bitmap{};
    picture.GetBitmap(&bitmap);
    ar << bitmap.bmType << bitmap.bmWidth << bitmap.bmHeight << bitmap.bmWidthBytes << bitmap.bmPlanes
       << bitmap.bmBitsPixel;

    const DWORD size = static_cast<DWORD>(bitmap.bmWidthBytes) * static_cast<DWORD>(bitmap.bmHeight);
    if (bitmap.bmBits) {
        ar.Write(bitmap.bmBits, size);
        return;
    }
    std::vector<BYTE> bits(size);
    picture.GetBitmapBits(size, bits.data());
    ar.Write(bits.data(), size);
}

StoredBitmap::THeader ReadHeader(CArchive& ar)
{
    StoredBitmap::THeader header;
    ar >> header.type >> header.width >> header.height >> header.widthBytes;
    ar >> header.planes >> header.bitsPixel;
    return header;
}
} // namespace

void CBitmapEx::Serialize(CArchive& ar)
{
    CBitmap::Serialize(ar);
    if (ar.IsStoring()) {
        Store(ar, *this);
        return;
    }

    StoredBitmap::THeader header = ReadHeader(ar);
    if (StoredBitmap::IsNone(header)) {
        DeleteObject();
        return;
    }
    if (!StoredBitmap::IsPossible(header))
        AfxThrowArchiveException(CArchiveException::endOfFile);
    ar.EnsureRemaining(static_cast<ULONGLONG>(header.height), static_cast<UINT>(header.widthBytes));

    std::vector<BYTE> bits(StoredBitmap::ByteCount(header));
    ar.ReadExactly(bits.data(), static_cast<UINT>(bits.size()));
    StoredBitmap::PackRows(header, bits);

    BITMAP bitmap{header.type,   header.width,     header.height, header.widthBytes,
                  header.planes, header.bitsPixel, bits.data()};
    CBitmap loaded;
    if (!loaded.CreateBitmapIndirect(&bitmap))
        AfxThrowResourceException();
    DeleteObject();
    Attach(loaded.Detach());
}
