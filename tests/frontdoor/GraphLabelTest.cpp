// The label wrapper and the picture wrapper.

#include "FrontDoorGraph.h"
#include "support/Faults.h"

namespace
{

class LabelWrapper : public FrontDoorGraph
{
protected:
    void SetUp() override
    {
        FrontDoorGraph::SetUp();
        graph->SetShowLegend(0);
        RECT rect = {100, 100, 200, 150};
        graph->InsertLabel(Text(L"A"), &rect, label.Out());
        ASSERT_TRUE(label);
    }
    Holder<ISGraphLabel> label;
};

} // namespace

TEST_F(LabelWrapper, ColoursAreThoseOfFillAndText)
{
    ULONG color = 1;
    EXPECT_EQ(label->GetColor(&color), S_OK);
    EXPECT_EQ(color, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(label->SetColor(0x00FF01), S_OK);
    EXPECT_EQ(label->GetColor(&color), S_OK);
    EXPECT_EQ(color, 0x00FF01u);
    EXPECT_GT(Shoot().Count(0x00FF01), 4000);
    EXPECT_EQ(label->GetTextColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(label->SetTextColor(0x0000FF), S_OK);
    label->GetTextColor(&color);
    EXPECT_EQ(color, 0x0000FFu);
    EXPECT_EQ(label->GetColor(nullptr), S_FALSE);
    EXPECT_EQ(label->GetTextColor(nullptr), S_FALSE);
}

TEST_F(LabelWrapper, SetCurveWritesTheAlignment)
{
    int nCurve = 99;
    EXPECT_EQ(label->GetCurve(&nCurve), S_OK);
    EXPECT_EQ(nCurve, -1);
    EXPECT_EQ(label->SetCurve(7), S_OK);
    UINT nAlignment = 0;
    EXPECT_EQ(label->GetAlignment(&nAlignment), S_OK);
    EXPECT_EQ(nAlignment, 7u);
    label->GetCurve(&nCurve);
    EXPECT_EQ(nCurve, -1);
    EXPECT_EQ(label->SetAlignment(1), S_OK);
    label->GetAlignment(&nAlignment);
    EXPECT_EQ(nAlignment, 1u);
    EXPECT_EQ(label->GetAlignment(nullptr), S_FALSE);
    EXPECT_EQ(label->GetCurve(nullptr), S_FALSE);
}

TEST_F(LabelWrapper, TextAndFlags)
{
    Text text;
    EXPECT_EQ(label->SetText(nullptr), S_FALSE);
    EXPECT_EQ(label->SetText(Text(L"two\nlines")), S_OK);
    EXPECT_EQ(label->GetText(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L"two\nlines");
    EXPECT_EQ(label->GetText(nullptr), S_FALSE);
    LONG bValue = -1;
    EXPECT_EQ(label->GetBorder(&bValue), S_OK);
    EXPECT_EQ(bValue, 1);
    EXPECT_EQ(label->SetBorder(0), S_OK);
    label->GetBorder(&bValue);
    EXPECT_EQ(bValue, 0);
    EXPECT_EQ(label->GetTransparent(&bValue), S_OK);
    EXPECT_EQ(bValue, 0);
    EXPECT_EQ(label->SetTransparent(5), S_OK);
    label->GetTransparent(&bValue);
    EXPECT_EQ(bValue, 1);
    EXPECT_EQ(label->GetBorder(nullptr), S_FALSE);
    EXPECT_EQ(label->GetTransparent(nullptr), S_FALSE);
}

TEST_F(LabelWrapper, ABiggerFontMakesMoreInk)
{
    label->SetColor(0xFFFFFF);
    label->SetText(Text(L"H"));
    label->SetTextColor(0x000000);
    label->SetBorder(0);
    const int nSmall = Shoot().Count({100, 100, 200, 150}, 0xFFFFFF);
    LOGFONTW font = {};
    font.lfHeight = 40;
    font.lfWeight = 700;
    ::lstrcpyW(font.lfFaceName, L"Arial");
    EXPECT_EQ(label->SetFont(reinterpret_cast<UINT*>(&font)), S_OK);
    EXPECT_LT(Shoot().Count({100, 100, 200, 150}, 0xFFFFFF), nSmall - 100);
}

TEST_F(LabelWrapper, AFontOfRubbishPaints)
{
    LOGFONTW font;
    memset(&font, 0xFF, sizeof font); // no end to its face
    EXPECT_EQ(label->SetFont(reinterpret_cast<UINT*>(&font)), S_OK);
    Shoot();
    memset(&font, 0, sizeof font);
    EXPECT_EQ(label->SetFont(reinterpret_cast<UINT*>(&font)), S_OK);
    Shoot();
}

TEST_F(LabelWrapper, InheritedMethodsReachTheSameObject)
{
    EXPECT_EQ(label->SetVisible(0), S_OK);
    LONG bVisible = -1;
    EXPECT_EQ(label->GetVisible(&bVisible), S_OK);
    EXPECT_EQ(bVisible, 0);
    label->SetColor(0x00FF01);
    EXPECT_EQ(Shoot().Count(0x00FF01), 0);
}

TEST(LabelWithoutHandle, ItsOwnMethodsDoNothing)
{
    const auto label = Server::Shared().Make<SGraphLabel, ISGraphLabel>();
    ASSERT_TRUE(label);
    EXPECT_EQ(label->SetFont(nullptr), S_OK);
    EXPECT_EQ(label->SetText(nullptr), S_OK);
    EXPECT_EQ(label->SetColor(1), S_OK);
    ULONG color = 77;
    EXPECT_EQ(label->GetColor(&color), S_OK);
    EXPECT_EQ(color, 77u);
    EXPECT_EQ(label->GetColor(nullptr), S_OK);
}

TEST(PictureWithoutHandle, BitmapsCanNeitherBeSetNorRead)
{
    const auto picture = Server::Shared().Make<SGraphBitmap, ISGraphBitmap>();
    ASSERT_TRUE(picture);
    UINT nValue = 3;
    UINT* const pMark = &nValue;
    UINT* pBitmap = pMark;
    EXPECT_EQ(picture->SetBitmap(&nValue), S_OK);
    EXPECT_EQ(picture->SetBitmap(nullptr), S_OK);
    EXPECT_EQ(picture->GetBitmap(&pBitmap), S_OK);
    EXPECT_EQ(pBitmap, pMark);
    EXPECT_EQ(picture->GetBitmap(nullptr), S_OK);
    LONG bBorder = 77;
    EXPECT_EQ(picture->SetBorder(1), S_OK);
    EXPECT_EQ(picture->GetBorder(&bBorder), S_OK);
    EXPECT_EQ(bBorder, 77);
}

TEST_F(LabelWrapper, ANullFontFaults)
{
    EXPECT_EXIT((Faults::EndAtOnce(), label->SetFont(nullptr)),
                testing::ExitedWithCode(Faults::AccessViolation), "");
    const auto empty = Server::Shared().Make<SGraphLabel, ISGraphLabel>();
    EXPECT_EQ(empty->SetFont(nullptr), S_OK) << "the handle is tested first";
}
