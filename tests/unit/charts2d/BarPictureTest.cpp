#include "charts2d/BarPicture.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr TPoint Position{10, 20};
constexpr TSize Size{200, 100}; // heights of up to 80 above 114

// Three segments and two series with the values 10 * segment + series, over a maximum of 12:
// groups at 44, 87, 130; bars 16 wide, 17 apart.
class BarPictureTest : public testing::Test
{
protected:
    void SetUp() override
    {
        for (int segment = 0; segment < 3; ++segment)
            data.AddSegment(u"segment");
        for (int series = 1; series <= 2; ++series) {
            ASSERT_EQ(data.AddSeries(u"series", 0), ERefusal::none);
            for (int segment = 1; segment <= 3; ++segment)
                ASSERT_EQ(data.SetValue(segment, series, 10 * segment + series), ERefusal::none);
        }
    }

    TBarPicture Compose() const
    {
        return BarPicture::Compose(CValueTable(data), animation, Position, Size);
    }

    // The frame as a line: L label, B bar (series, left, height), ( fade ) with * blends.
    std::string Text() const
    {
        std::string text;
        for (const TBarStep& step : Compose().Steps) {
            switch (step.kind) {
            case TBarStep::EKind::label:
                text += "L" + std::to_string(step.nIndex) + "@" + std::to_string(step.ptLabel.x) + " ";
                break;
            case TBarStep::EKind::bar:
                text += "B" + std::to_string(step.nIndex) + "@" + std::to_string(step.rcBar.left) + "+" +
                        std::to_string(step.rcBar.bottom - step.rcBar.top) + " ";
                break;
            case TBarStep::EKind::beginFade:
                text += "( ";
                break;
            case TBarStep::EKind::blend:
                text += "* ";
                break;
            case TBarStep::EKind::endFade:
                text += ") ";
                break;
            }
        }
        return text;
    }

    void At(std::int32_t type, std::int32_t percent)
    {
        animation.SetAnimation(1, type);
        animation.m_nAnimationPercent = percent;
    }

    CBarData data;
    CBarAnimation animation;
};

} // namespace

TEST_F(BarPictureTest, StillPictureGoesGroupByGroup)
{
    // heights: 11, 12, 21, 22, 31, 32 of 12, times 80
    EXPECT_EQ(Text(),
              "L0@62 B0@44+73 B1@61+80 L1@105 B0@87+140 B1@104+146 L2@148 B0@130+206 B1@147+213 ");
    const TBarPicture picture = Compose();
    EXPECT_TRUE(picture.bValueLabels);
    EXPECT_EQ(picture.nMaximum, 12);
    EXPECT_EQ(picture.Steps[1].rcBar, (TRect{44, 41, 60, 114}));
}

TEST_F(BarPictureTest, AllBarsGrowTogether)
{
    At(CBarAnimation::allGrow, 50);
    EXPECT_EQ(Text(), "L0@62 B0@44+36 B1@61+40 L1@105 B0@87+70 B1@104+73 L2@148 B0@130+103 B1@147+106 ");
}

TEST_F(BarPictureTest, GroupsGrowInTurnAndLaterOnesDoNotExist)
{
    At(CBarAnimation::groupsGrow, 50);
    EXPECT_EQ(Text(), "L0@62 B0@44+36 B1@61+40 ");
    animation.m_nGrowSegment = 1;
    EXPECT_EQ(Text(), "L0@62 B0@44+73 B1@61+80 L1@105 B0@87+70 B1@104+73 ");
    animation.m_nGrowSegment = 3;
    EXPECT_EQ(Text(),
              "L0@62 B0@44+73 B1@61+80 L1@105 B0@87+140 B1@104+146 L2@148 B0@130+206 B1@147+213 ");
}

TEST_F(BarPictureTest, SeriesGrowInTurnUnderAllLabels)
{
    At(CBarAnimation::seriesGrow, 50);
    EXPECT_EQ(Text(), "L0@62 L1@106 L2@150 B0@44+36 B0@87+70 B0@130+103 ");
    animation.m_nGrowSeries = 1;
    EXPECT_EQ(Text(),
              "L0@62 L1@106 L2@150 B0@44+73 B0@87+140 B0@130+206 B1@61+40 B1@104+73 B1@147+106 ");
}

TEST_F(BarPictureTest, NothingGrowsWhenNoSeriesIsLeftToGrow)
{
    At(CBarAnimation::seriesGrow, 50);
    animation.m_nGrowSeries = 2; // as after one was deleted
    EXPECT_EQ(Text(),
              "L0@62 L1@106 L2@150 B0@44+73 B0@87+140 B0@130+206 B1@61+80 B1@104+146 B1@147+213 ");
}

TEST_F(BarPictureTest, GroupsFadeInTurnBeforeTheEarlierOnes)
{
    At(CBarAnimation::groupsFade, 50);
    EXPECT_EQ(Text(), "L0@62 ( B0@44+73 B1@61+80 * ) ");
    animation.m_nFadeSegment = 2;
    EXPECT_EQ(Text(), "L2@150 ( B0@130+206 B1@147+213 * ) "
                      "L0@62 B0@44+73 B1@61+80 L1@106 B0@87+140 B1@104+146 ");
}

TEST_F(BarPictureTest, SeriesFadeWithOneBlendABar)
{
    At(CBarAnimation::seriesFade, 50);
    animation.m_nFadeSeries = 1;
    EXPECT_EQ(Text(), "L0@62 L1@106 L2@150 ( B1@61+80 * B1@104+146 * B1@147+213 * ) "
                      "B0@44+73 B0@87+140 B0@130+206 ");
}

TEST_F(BarPictureTest, FadeTellsWhatItsBarsCover)
{
    At(CBarAnimation::seriesFade, 50);
    const TBarPicture picture = Compose();
    ASSERT_EQ(picture.Steps[3].kind, TBarStep::EKind::beginFade);
    EXPECT_EQ(picture.Steps[3].rcBar, (TRect{44, 114 - 206, 130 + 16, 114}));
}

TEST_F(BarPictureTest, NothingFadesWhenNoSeriesIsLeftToFade)
{
    At(CBarAnimation::seriesFade, 50);
    animation.m_nFadeSeries = 2;
    EXPECT_EQ(Text(), "L0@62 L1@106 L2@150 ");
    At(CBarAnimation::groupsFade, 50);
    animation.m_nFadeSegment = 3;
    EXPECT_EQ(Text(), "");
    EXPECT_TRUE(Compose().bValueLabels);
}

TEST_F(BarPictureTest, AxesStandAloneForOtherAnimationValuesAndUnknownTypes)
{
    animation.SetAnimation(2, CBarAnimation::allGrow);
    EXPECT_FALSE(Compose().bValueLabels);
    EXPECT_EQ(Text(), "");
    animation.SetAnimation(1, 99);
    EXPECT_FALSE(Compose().bValueLabels);
    EXPECT_EQ(Text(), "");
}

TEST_F(BarPictureTest, AxesStandAloneWithoutSegmentsOrSeries)
{
    data.Clear();
    EXPECT_FALSE(Compose().bValueLabels);
    data.AddSegment(u"lonely");
    EXPECT_FALSE(Compose().bValueLabels);
}

TEST_F(BarPictureTest, BarsArePlacedByTheSegmentsThatExist)
{
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none); // ids 2 and 3 are left, over a maximum of 22
    At(CBarAnimation::seriesGrow, 100);
    const TBarPicture picture = Compose();
    EXPECT_EQ(picture.nMaximum, 22);
    const std::int32_t start = picture.Bars.nFixedStartX;
    ASSERT_EQ(picture.Steps.size(), 4U); // two labels, two bars of the first series
    EXPECT_EQ(picture.Steps[2].rcBar.left, start);
    EXPECT_EQ(picture.Steps[3].rcBar.left, start + picture.Bars.nPitch);
}

TEST_F(BarPictureTest, TallerGroupsRiseAboveTheScaleOfTheFirst)
{
    const TBarPicture picture = Compose();
    EXPECT_EQ(picture.nMaximum, 12); // though 32 is there
    EXPECT_LT(picture.Steps.back().rcBar.top, 114 - 80);
}

TEST_F(BarPictureTest, ThousandsOfSegmentsAreComposedInOnePass)
{
    for (int i = 0; i < 20000; ++i)
        data.AddSegment(u"many");
    EXPECT_EQ(Compose().Steps.size(), 20003U * 3);
}
