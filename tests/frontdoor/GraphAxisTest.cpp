// The axis wrapper and the logarithmic one.

#include "FrontDoorGraph.h"
#include "support/Faults.h"

namespace
{

class AxisWrapper : public FrontDoorGraph
{
protected:
    void SetUp() override
    {
        FrontDoorGraph::SetUp();
        AddLine(0);
        axis = XAxis();
        ASSERT_TRUE(axis);
    }
    Holder<ISGraphAxis> axis;
};

Holder<ISGraphAxis> Empty()
{
    return Server::Shared().Make<SGraphAxis, ISGraphAxis>();
}

} // namespace

TEST_F(AxisWrapper, FlagsAreStoredAndTold)
{
    using Set = HRESULT (STDMETHODCALLTYPE ISGraphAxis::*)(LONG);
    using Get = HRESULT (STDMETHODCALLTYPE ISGraphAxis::*)(LONG*);
    const std::tuple<Set, Get, LONG> flags[] = {
        {&ISGraphAxis::SetShowMarker, &ISGraphAxis::GetShowMarker, 1},
        {&ISGraphAxis::SetDateTime, &ISGraphAxis::GetDateTime, 0},
        {&ISGraphAxis::SetShowGrid, &ISGraphAxis::GetShowGrid, 1},
        {&ISGraphAxis::SetAutoScale, &ISGraphAxis::GetAutoScale, 1}};
    for (const auto& [set, get, bDefault] : flags) {
        LONG bValue = -7;
        EXPECT_EQ((axis.Get()->*get)(&bValue), S_OK);
        EXPECT_EQ(bValue, bDefault);
        EXPECT_EQ((axis.Get()->*set)(bDefault != 0 ? 0 : -9), S_OK);
        (axis.Get()->*get)(&bValue);
        EXPECT_EQ(bValue, 1 - bDefault);
        EXPECT_EQ((axis.Get()->*get)(nullptr), S_FALSE);
    }
}

TEST_F(AxisWrapper, SizesAreStoredAndTold)
{
    using Set = HRESULT (STDMETHODCALLTYPE ISGraphAxis::*)(int);
    using Get = HRESULT (STDMETHODCALLTYPE ISGraphAxis::*)(int*);
    const std::tuple<Set, Get, int> sizes[] = {
        {&ISGraphAxis::SetArcSize, &ISGraphAxis::GetArcSize, 5},
        {&ISGraphAxis::SetMarkerSize, &ISGraphAxis::GetMarkerSize, 10},
        {&ISGraphAxis::SetTickSize, &ISGraphAxis::GetTickSize, 5}};
    for (const auto& [set, get, nDefault] : sizes) {
        int nValue = 0;
        EXPECT_EQ((axis.Get()->*get)(&nValue), S_OK);
        EXPECT_EQ(nValue, nDefault);
        EXPECT_EQ((axis.Get()->*set)(-123), S_OK);
        (axis.Get()->*get)(&nValue);
        EXPECT_EQ(nValue, -123);
        EXPECT_EQ((axis.Get()->*get)(nullptr), S_FALSE);
    }
}

TEST_F(AxisWrapper, EnumerationsAndColoursPassWithoutACheck)
{
    EAxisType type = atLog;
    EXPECT_EQ(axis->GetAxisType(&type), S_OK);
    EXPECT_EQ(type, atLinear);
    EXPECT_EQ(axis->SetAxisType(atLog), S_OK);
    axis->GetAxisType(&type);
    EXPECT_EQ(type, atLog);
    EXPECT_EQ(axis->GetAxisType(nullptr), S_FALSE);
    EXPECT_EQ(axis->SetPlacement(static_cast<EAxisPlacement>(9)), S_OK);
    EAxisPlacement placement = apLeft;
    EXPECT_EQ(axis->GetPlacement(&placement), S_OK);
    EXPECT_EQ(static_cast<int>(placement), 9);
    EXPECT_EQ(axis->GetPlacement(nullptr), S_FALSE);
    UINT nStyle = 0;
    EXPECT_EQ(axis->GetGridStyle(&nStyle), S_OK);
    EXPECT_EQ(nStyle, 2u);
    EXPECT_EQ(axis->SetGridStyle(4), S_OK);
    axis->GetGridStyle(&nStyle);
    EXPECT_EQ(nStyle, 4u);
    EXPECT_EQ(axis->GetGridStyle(nullptr), S_FALSE);
    ULONG color = 0;
    EXPECT_EQ(axis->GetGridColor(&color), S_OK);
    EXPECT_EQ(color, 0x969696u);
    EXPECT_EQ(axis->SetGridColor(0x112233), S_OK);
    axis->GetGridColor(&color);
    EXPECT_EQ(color, 0x112233u);
    EXPECT_EQ(axis->GetGridColor(nullptr), S_FALSE);
    EXPECT_EQ(axis->SetColor(0x445566), S_OK); // of an axis: its own colour
    axis->GetColor(&color);
    EXPECT_EQ(color, 0x445566u);
}

TEST_F(AxisWrapper, TitleAndFormatAreTexts)
{
    Text text;
    EXPECT_EQ(axis->GetLabel(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L" ");
    EXPECT_EQ(axis->SetLabel(Text(L"Time")), S_OK);
    EXPECT_EQ(axis->GetLabel(text.Out()), S_OK); // reallocates the live text
    EXPECT_EQ(text.Str(), L"Time");
    EXPECT_EQ(axis->SetLabel(nullptr), S_FALSE);
    axis->GetLabel(text.Out());
    EXPECT_EQ(text.Str(), L"Time");
    EXPECT_EQ(axis->GetLabel(nullptr), S_OK);
    EXPECT_EQ(axis->SetDisplayFmt(nullptr), S_FALSE);
    EXPECT_EQ(axis->SetDisplayFmt(Text(L"%g")), S_OK);
    EXPECT_EQ(axis->GetDisplayFmt(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L"%g");
    EXPECT_EQ(axis->GetDisplayFmt(nullptr), S_FALSE);
}

TEST_F(AxisWrapper, AnEmptyTitleComesBackAsAnEmptyText)
{
    axis->SetLabel(Text(L""));
    Text text;
    EXPECT_EQ(axis->GetLabel(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L"");
}

TEST_F(AxisWrapper, MarkersAndRangesAreAppendedAndReplacedByIndex)
{
    ::UpdateWindow(Handle());
    EXPECT_EQ(axis->SetAxisMarker(0, 5.0, 0x0000FF, 0), S_OK);
    EXPECT_TRUE(::GetUpdateRect(Handle(), nullptr, FALSE));
    EXPECT_EQ(axis->SetAxisMarker(1, 6.0, 0x0000FF, 0), S_OK);
    EXPECT_EQ(axis->SetAxisMarker(0, 7.0, 0x0000FF, 0), S_OK);
    LONG nCount = 0;
    EXPECT_EQ(axis->GetAxisMarkerCount(&nCount), S_OK);
    EXPECT_EQ(nCount, 2);
    EXPECT_EQ(axis->GetAxisMarkerCount(nullptr), S_FALSE);
    EXPECT_EQ(axis->SetMaskerLabel(1, Text(L"limit")), S_OK);
    EXPECT_EQ(axis->SetMaskerLabel(1, nullptr), S_FALSE);
    EXPECT_EQ(axis->SetMaskerLabel(99, nullptr), S_FALSE); // the text is looked at first

    ::UpdateWindow(Handle());
    EXPECT_EQ(axis->SetColorRange(0, 2, 4, 0x00FF01, 0x00FF01, Text(L"good"), 6), S_OK);
    EXPECT_TRUE(::GetUpdateRect(Handle(), nullptr, FALSE));
    EXPECT_EQ(axis->SetColorRange(0, 2, 4, 0, 0, nullptr, 6), S_FALSE);
    EXPECT_GT(Shoot().Count(0x00FF01), 1000);
    EXPECT_EQ(axis->DeleteColorRange(7), S_OK);
    EXPECT_EQ(axis->DeleteColorRange(-1), S_OK);
    EXPECT_GT(Shoot().Count(0x00FF01), 1000);
    EXPECT_EQ(axis->DeleteColorRange(0), S_OK);
    EXPECT_EQ(Shoot().Count(0x00FF01), 0);
    axis->SetColorRange(0, 2, 4, 0x00FF01, 0x00FF01, Text(L""), 6);
    EXPECT_EQ(axis->DeleteAllColorRanges(), S_OK);
    EXPECT_EQ(Shoot().Count(0x00FF01), 0);
}

TEST_F(AxisWrapper, PositionsBecomeValues)
{
    graph->SetShowLegend(0);
    Shoot();
    RECT rect = {};
    axis->GetRect(&rect);
    double fValue = -1;
    EXPECT_EQ(axis->GetValueForPos(rect.left + 1, &fValue), S_OK);
    EXPECT_EQ(fValue, 0.0);
    EXPECT_EQ(axis->GetValueForPos(0, nullptr), S_FALSE);
}

TEST(AxisWithoutHandle, NothingIsDoneAndThatIsNoFailure)
{
    const auto axis = Empty();
    ASSERT_TRUE(axis);
    int nValue = 77;
    EXPECT_EQ(axis->GetMarkerSize(&nValue), S_OK);
    EXPECT_EQ(nValue, 77);
    EXPECT_EQ(axis->GetMarkerSize(nullptr), S_OK);
    EXPECT_EQ(axis->SetMarkerSize(3), S_OK);
    EXPECT_EQ(axis->SetLabel(nullptr), S_OK);
    Text text(L"kept");
    EXPECT_EQ(axis->GetLabel(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L"kept");
    double fValue = 4;
    EXPECT_EQ(axis->GetValueForPos(1, &fValue), S_OK);
    EXPECT_EQ(fValue, 4);
    EXPECT_EQ(axis->SetAxisMarker(9, 1, 0, 0), S_OK);
    EXPECT_EQ(axis->SetColorRange(9, 1, 2, 0, 0, nullptr, 0), S_OK);
    EXPECT_EQ(axis->SetMaskerLabel(9, nullptr), S_OK);
    EXPECT_EQ(axis->DeleteAllColorRanges(), S_OK);
    EXPECT_EQ(axis->GetAxisMarkerCount(nullptr), S_OK);
}

TEST(AxisWithoutHandle, DeathTest_TheObjectsOwnMethodsFault)
{
    const auto axis = Empty();
    EXPECT_EXIT((Faults::EndAtOnce(), axis->SetSelected(1)),
                testing::ExitedWithCode(Faults::AccessViolation), "");
}

TEST_F(AxisWrapper, DeathTest_MarkersPastTheEndEndTheProcess)
{
    constexpr int invalidParameter = static_cast<int>(0xC0000417);
    EXPECT_EXIT(axis->SetAxisMarker(1, 0, 0, 0), testing::ExitedWithCode(invalidParameter), "");
    EXPECT_EXIT(axis->SetMaskerLabel(0, Text(L"x")), testing::ExitedWithCode(invalidParameter), "");
    EXPECT_EXIT(axis->SetColorRange(1, 0, 1, 0, 0, Text(L""), 0),
                testing::ExitedWithCode(invalidParameter), "");
}

TEST(LogAxisWithoutHandle, NothingIsDone)
{
    const auto log = Server::Shared().Make<SGraphLogAxis, ISGraphLogAxis>();
    ASSERT_TRUE(log);
    EXPECT_EQ(log->SetRange(1, 2), S_OK);
    EXPECT_EQ(log->SetAxisType(atLog), S_OK);
    double fValue = 4;
    EXPECT_EQ(log->GetValueForPos(1, &fValue), S_OK);
    EXPECT_EQ(fValue, 4);
    EXPECT_EQ(log->GetValueForPos(1, nullptr), S_OK);
}
