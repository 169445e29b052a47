// Pictures on the graph.

#include "FileBytes.h"
#include "NativeGraph.h"
#include "draw/BitmapEx.h"
#include "framework/windowing/Archive.h"
#include "framework/windowing/File.h"
#include "objects/XGraphBitmap.h"
#include "windowing/TempFile.h"

namespace
{

// Left half red, right half blue.
class PictureObject : public GraphTest
{
protected:
    PictureObject()
    {
        graph.m_bShowLegend = false;
        picture = new CXGraphBitmap;
        picture->m_rcObject = CRect(100, 50, 202, 152);
        picture->m_pBitmap = new CBitmapEx;
        picture->m_bOwnsBitmap = true;
        const DWORD bits[] = {0xFF0000, 0x0000FF, 0xFF0000, 0x0000FF};
        picture->m_pBitmap->CreateBitmap(2, 2, 1, 32, bits);
        graph.m_Objects.AddTail(picture);
    }
    CXGraphBitmap* picture;
};

constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Blue = 0xFF0000;

// A canvas in memory that scales by two.
class ScaledCanvas
{
public:
    ScaledCanvas() : m_hBitmap(::CreateBitmap(400, 400, 1, 32, nullptr))
    {
        m_dc.CreateCompatibleDC(nullptr);
        m_hOld = ::SelectObject(m_dc, m_hBitmap);
        m_dc.m_bScaleReady = m_dc.m_bScaling = true;
        m_dc.m_fScaleX = m_dc.m_fScaleY = 2.0f;
    }
    ScaledCanvas(const ScaledCanvas&) = delete;
    ScaledCanvas& operator=(const ScaledCanvas&) = delete;
    ~ScaledCanvas()
    {
        ::SelectObject(m_dc, m_hOld);
        ::DeleteObject(m_hBitmap);
    }
    COLORREF At(int x, int y) { return ::GetPixel(m_dc, x, y); }

    CDCEx m_dc;

private:
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOld;
};

} // namespace

TEST_F(PictureObject, DefaultsAreThoseOfAFreshPicture)
{
    const CXGraphBitmap fresh;
    EXPECT_EQ(fresh.m_pBitmap, nullptr);
    EXPECT_FALSE(fresh.m_bOwnsBitmap || fresh.m_bEditing);
    EXPECT_TRUE(fresh.m_bBorder && fresh.m_bCanMove && fresh.m_bCanResize);
}

TEST_F(PictureObject, ItIsStretchedInsideABlackBorder)
{
    const Picture shot = Shoot();
    EXPECT_EQ(shot.Count(picture->m_rcObject, 0x000000), 102 * 102 - 100 * 100);
    EXPECT_EQ(shot.Count({101, 51, 151, 151}, Red), 50 * 100);
    EXPECT_EQ(shot.Count({151, 51, 201, 151}, Blue), 50 * 100);
}

TEST_F(PictureObject, WithoutABorderItFillsItsRectangle)
{
    picture->m_bBorder = false;
    const Picture shot = Shoot();
    EXPECT_EQ(shot.Count({100, 50, 151, 152}, Red), 51 * 102);
    EXPECT_EQ(shot.Count({151, 50, 202, 152}, Blue), 51 * 102);
}

TEST_F(PictureObject, AHiddenOneIsNotDrawn)
{
    picture->m_bVisible = false;
    EXPECT_EQ(Shoot().Count(Red), 0);
}

TEST_F(PictureObject, OneWithoutABitmapIsItsFrameAlone)
{
    auto* frame = new CXGraphBitmap;
    frame->m_rcObject = CRect(220, 50, 260, 90);
    graph.m_Objects.AddTail(frame);
    const Picture shot = Shoot();
    EXPECT_EQ(shot.Count(frame->m_rcObject, 0x000000), 40 * 40 - 38 * 38);
    EXPECT_EQ(shot.Count(frame->m_rcObject, Red), 0);
}

TEST_F(PictureObject, ItsTrackerIsDrawnAroundItWhileItIsSized)
{
    const Picture loose = Shoot();
    picture->BeginSize();
    const Picture sized = Shoot();
    EXPECT_EQ(sized.At(98, 48), 0x000000u); // a handle outside the corner
    EXPECT_NE(loose.At(98, 48), 0x000000u);
    EXPECT_EQ(sized.Count({110, 60, 150, 140}, Red), loose.Count({110, 60, 150, 140}, Red));
}

TEST_F(PictureObject, AClickSelectsItAndADragMovesIt)
{
    Paint();
    graph.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(120, 70));
    graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(120, 70));
    graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(120, 70));
    EXPECT_TRUE(picture->m_bSizing);
    EXPECT_EQ(graph.m_ObjectTracker.m_pTracker, &picture->m_Tracker);
    EXPECT_EQ(picture->m_Tracker.m_rect, picture->m_rcObject);
}

TEST_F(PictureObject, OnAScalingCanvasPictureAndTrackerScale)
{
    ScaledCanvas canvas;
    picture->m_rcObject = CRect(10, 10, 62, 62);
    picture->BeginSize();
    picture->Draw(&canvas.m_dc);
    EXPECT_EQ(canvas.At(60, 60), Red);
    EXPECT_EQ(canvas.At(100, 60), Blue);
    EXPECT_EQ(canvas.At(20, 60), 0x000000u); // the border
    EXPECT_EQ(canvas.At(18, 18), 0x000000u); // a handle at the scaled corner
    EXPECT_EQ(picture->m_Tracker.m_rect, CRect(10, 10, 62, 62));
}

TEST_F(PictureObject, ItIsSavedWithItsBitmapOrWithNone)
{
    using namespace FileBytes;
    TBitmap expected;
    expected.base.nLeft = 100;
    expected.base.nTop = 50;
    expected.base.nRight = 202;
    expected.base.nBottom = 152;
    const std::string head = Flags(4) + CBytes().Add<std::uint64_t>(0).Add<std::uint64_t>(1).m_bytes;
    const CTempFile file;
    const auto saved = [&] {
        EXPECT_TRUE(graph.Save(file.Path(), 4));
        return file.Read();
    };
    CBitmapEx* const bitmap = std::exchange(picture->m_pBitmap, nullptr);
    EXPECT_EQ(saved(), head + NewClass("CXGraphBitmap") + Bytes(expected));

    picture->m_pBitmap = bitmap;
    expected.nWidth = expected.nHeight = 2;
    expected.nWidthBytes = 8;
    expected.nPlanes = 1;
    expected.nBitsPixel = 32;
    expected.bits = CBytes().Add(0xFF0000).Add(0x0000FF).Add(0xFF0000).Add(0x0000FF).m_bytes;
    EXPECT_EQ(saved(), head + NewClass("CXGraphBitmap") + Bytes(expected));
}

TEST_F(PictureObject, LoadingFillsTheBitmapThatItHas)
{
    using namespace FileBytes;
    TBitmap stored;
    stored.bBorder = false;
    stored.nWidth = stored.nHeight = 1;
    stored.nWidthBytes = 4;
    stored.nPlanes = 1;
    stored.nBitsPixel = 32;
    stored.bits = CBytes().Add(0x00FF00).m_bytes;
    const CTempFile temp(Bytes(stored));
    CFile file(temp.Path(), CFile::modeRead);
    CArchive ar(&file, CArchive::load);
    CBitmapEx* const bitmap = picture->m_pBitmap;
    picture->Serialize(ar);
    EXPECT_EQ(picture->m_pBitmap, bitmap);
    EXPECT_FALSE(picture->m_bBorder);
    BITMAP header = {};
    bitmap->GetBitmap(&header);
    EXPECT_EQ(header.bmWidth, 1);
}

TEST_F(PictureObject, WhatItDoesNotOwnStays)
{
    CBitmapEx bitmap;
    bitmap.CreateBitmap(2, 2, 1, 32, nullptr);
    {
        CXGraphBitmap borrowed;
        borrowed.m_pBitmap = &bitmap;
    }
    EXPECT_NE(bitmap.GetSafeHandle(), nullptr);
}
