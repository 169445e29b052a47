// Image export: the window as it is on the screen, as a BMP file.

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "graph/BitmapPacking.h"
#include "graph/DibFormat.h"
#include "graph/XGraph.h"

namespace
{

// The colours that the screen's palette holds now, where it has one.
void TakeSystemPalette(const CDC& dc, CPalette& palette)
{
    constexpr UINT most = 255;
    struct {
        WORD palVersion;
        WORD palNumEntries;
        PALETTEENTRY palPalEntry[most];
    } entries = {0x300, 0, {}};
    entries.palNumEntries =
        static_cast<WORD>(::GetSystemPaletteEntries(dc.GetSafeHdc(), 0, most, entries.palPalEntry));
    if (entries.palNumEntries != 0)
        palette.CreatePalette(reinterpret_cast<const LOGPALETTE*>(&entries));
}

void WriteBitmapFile(const BitmapPacking::Block& block, const CString& strFile)
{
    CFile file;
    if (!file.Open(strFile, CFile::modeCreate | CFile::modeWrite))
        return;
    const BITMAPINFOHEADER& header = block.GetHeader();
    const auto head = DibFormat::FileHeader(static_cast<std::uint32_t>(block.GetSize()), header.biSize,
                                            header.biBitCount);
    try {
        file.Write(head.data(), static_cast<UINT>(head.size()));
        file.Write(block.GetData(), static_cast<UINT>(block.GetSize()));
        file.Close();
    } catch (CFileException* pException) {
        // A full disk is reported as little as a file that can't be opened: the result speaks of
        // the picture alone.
        pException->Delete();
    }
}

} // namespace

bool CXGraph::SaveBitmap(const CString& strFile)
{
    if (!m_hWnd)
        return false;
    CWindowDC dcWindow(this);
    CDC dcMemory;
    dcMemory.CreateCompatibleDC(&dcWindow);
    CRect rcWindow;
    GetWindowRect(&rcWindow);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dcWindow, rcWindow.Width(), rcWindow.Height());
    CBitmap* pOldBitmap = dcMemory.SelectObject(&bitmap);
    dcMemory.BitBlt(0, 0, rcWindow.Width(), rcWindow.Height(), &dcWindow, 0, 0, SRCCOPY);

    CPalette palette;
    if (dcWindow.GetDeviceCaps(RASTERCAPS) & RC_PALETTE)
        TakeSystemPalette(dcWindow, palette);
    dcMemory.SelectObject(pOldBitmap);

    const BitmapPacking::Block block = BitmapPacking::Pack(bitmap, palette);
    if (!block)
        return false;
    WriteBitmapFile(block, strFile);
    return true;
}
