#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/Exceptions.h"
#include "support/GdiCount.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
// Takes every handle that the process can still have, for its own lifetime.
class CHandleFamine
{
public:
    CHandleFamine()
    {
        m_Pens.reserve(0x10000);
        while (const HPEN pen = ::CreatePen(PS_SOLID, 1, 0))
            m_Pens.push_back(pen);
    }
    ~CHandleFamine()
    {
        for (const HPEN pen : m_Pens)
            ::DeleteObject(pen);
    }
    CHandleFamine(const CHandleFamine&) = delete;
    CHandleFamine& operator=(const CHandleFamine&) = delete;

private:
    std::vector<HPEN> m_Pens;
};

template <class TMake> bool RaisesResourceException(TMake make)
{
    try {
        make();
    } catch (CResourceException* exception) {
        exception->Delete();
        return true;
    }
    return false;
}
} // namespace

TEST(GdiObjects, AnObjectDeletesItsHandleAtItsEnd)
{
    HGDIOBJ handle = nullptr;
    {
        const CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        handle = pen.GetSafeHandle();
        EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_PEN));
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(GdiObjects, ADetachedHandleIsTheCallers)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(RGB(1, 2, 3));
        handle = brush.Detach();
        EXPECT_EQ(brush.GetSafeHandle(), nullptr);
        EXPECT_FALSE(brush.DeleteObject()) << "nothing to delete";
    }
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    ::DeleteObject(handle);
}

TEST(GdiObjects, AttachingNothingChangesNothing)
{
    CPen pen(PS_SOLID, 1, 0);
    const HGDIOBJ handle = pen.GetSafeHandle();

    EXPECT_FALSE(pen.Attach(nullptr));

    EXPECT_EQ(pen.GetSafeHandle(), handle);
}

TEST(GdiObjects, AHandleLeadsBackToItsOwner)
{
    CPen pen(PS_SOLID, 1, 0);

    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    EXPECT_EQ(CGdiObject::FromHandle(pen.GetSafeHandle()), &pen);
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
}

TEST(GdiObjects, AForeignHandleGetsATemporaryObjectThatOwnsNothing)
{
    const HPEN foreign = ::CreatePen(PS_SOLID, 3, 0);

    CPen* temporary = CPen::FromHandle(foreign);

    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->GetSafeHandle(), foreign);
    EXPECT_EQ(CPen::FromHandle(foreign), temporary) << "the same one again";
    EXPECT_TRUE(temporary->IsKindOf(RUNTIME_CLASS(CPen)));

    CPen owner;
    owner.Attach(foreign);
    EXPECT_EQ(CPen::FromHandle(foreign), &owner) << "an owner goes before";
}

TEST(GdiObjects, AHandleThatComesBackAsAnotherKindIsNotMistaken)
{
    const HGDIOBJ stock = ::GetStockObject(BLACK_PEN);
    ASSERT_NE(CPen::FromHandle(static_cast<HPEN>(stock)), nullptr);

    const CFont* font = CFont::FromHandle(reinterpret_cast<HFONT>(stock));

    ASSERT_NE(font, nullptr);
    EXPECT_TRUE(font->IsKindOf(RUNTIME_CLASS(CFont)));
}

TEST(GdiObjects, PenBrushAndRegionAreWhatWasAskedFor)
{
    CPen pen(PS_DASH, 1, RGB(1, 2, 3));
    LOGPEN penRecord{};
    ASSERT_NE(pen.GetObject(sizeof penRecord, &penRecord), 0);
    EXPECT_EQ(penRecord.lopnStyle, static_cast<UINT>(PS_DASH));

    CBrush brush(HS_CROSS, RGB(1, 2, 3));
    LOGBRUSH brushRecord{};
    ASSERT_NE(brush.GetObject(sizeof brushRecord, &brushRecord), 0);
    EXPECT_EQ(brushRecord.lbStyle, static_cast<UINT>(BS_HATCHED));

    CRgn region;
    ASSERT_TRUE(region.CreateRectRgnIndirect(CRect(1, 2, 30, 40)));
    CRect box;
    EXPECT_EQ(::GetRgnBox(region, &box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(1, 2, 30, 40));
}

TEST(GdiObjects, AFontComesFromItsRecordAndBack)
{
    LOGFONT record{};
    record.lfHeight = -17;
    record.lfWeight = 700;
    wcscpy(record.lfFaceName, L"Arial");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&record));

    LOGFONT back{};
    ASSERT_NE(font.GetLogFont(&back), 0);

    EXPECT_EQ(back.lfHeight, -17);
    EXPECT_EQ(back.lfWeight, 700);
    EXPECT_STREQ(back.lfFaceName, L"Arial");
}

TEST(GdiObjects, APaletteHoldsItsEntries)
{
    struct {
        WORD version = 0x300;
        WORD count = 2;
        PALETTEENTRY entries[2] = {{1, 2, 3, 0}, {4, 5, 6, 0}};
    } record;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<const LOGPALETTE*>(&record)));

    PALETTEENTRY entries[2]{};
    EXPECT_EQ(::GetPaletteEntries(palette, 0, 2, entries), 2u);
    EXPECT_EQ(entries[1].peBlue, 6);
}

TEST(GdiObjects, WithoutAHandleLeftPensAndBrushesRaiseTheResourceException)
{
    bool pen = false;
    bool solid = false;
    bool hatched = false;
    CFont font;
    BOOL made = TRUE;
    {
        const CHandleFamine famine;
        pen = RaisesResourceException([] { CPen(PS_SOLID, 1, 0); });
        solid = RaisesResourceException([] { CBrush(RGB(1, 2, 3)); });
        hatched = RaisesResourceException([] { CBrush(HS_CROSS, RGB(1, 2, 3)); });
        made = font.CreateFont(12, 0, 0, 0, 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Arial");
    }
    EXPECT_TRUE(pen);
    EXPECT_TRUE(solid);
    EXPECT_TRUE(hatched);
    EXPECT_FALSE(made) << "the Create functions only answer";
    EXPECT_EQ(font.GetSafeHandle(), nullptr);
}

TEST(GdiObjects, CountsReturnToTheStart)
{
    const auto cycle = [] {
        const CPen pen(PS_SOLID, 1, 0);
        const CBrush brush(RGB(4, 5, 6));
        CRgn region;
        region.CreateRectRgnIndirect(CRect(0, 0, 1, 1));
        CBitmap bitmap;
        bitmap.CreateBitmap(3, 3, 1, 1, nullptr);
        CFont font;
        font.CreateFont(12, 0, 0, 0, 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Arial");
    };
    cycle();
    const int before = GdiCount::All();

    for (int round = 0; round < 50; ++round)
        cycle();

    EXPECT_EQ(GdiCount::All(), before);
}
