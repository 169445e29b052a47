#include "charts2d/BarPicture.h"

#include <optional>

#include "charts2d/Rectangles.h"
#include "charts2d/Wrap32.h"

namespace BarPicture
{

namespace
{

using EKind = TBarStep::EKind;

constexpr std::int32_t wholeHeight = -1; // in place of a percent: the bar is not growing

class CComposer
{
public:
    CComposer(TBarPicture& picture, const CValueTable& table, const CBarAnimation& animation, TSize size)
        : m_Picture(picture), m_Table(table), m_Animation(animation), m_Size(size)
    {
    }

    void Compose()
    {
        if (m_Animation.m_bAnimation == 0) {
            AllBars(wholeHeight);
            return;
        }
        switch (m_Animation.m_nAnimationType) {
        case CBarAnimation::allGrow:
            AllBars(m_Animation.m_nAnimationPercent);
            break;
        case CBarAnimation::groupsGrow:
            GroupsInTurn();
            break;
        case CBarAnimation::seriesGrow:
            AllLabels();
            SeriesInTurn();
            break;
        case CBarAnimation::groupsFade:
            FadeGroup();
            break;
        case CBarAnimation::seriesFade:
            AllLabels();
            FadeSeries();
            break;
        default:
            break;
        }
    }

private:
    [[nodiscard]] std::int32_t Segments() const noexcept { return m_Table.SegmentCount(); }
    [[nodiscard]] std::int32_t Series() const noexcept { return m_Table.SeriesCount(); }
    [[nodiscard]] std::int32_t SegmentId(std::int32_t g) const
    {
        return m_Table.m_Segments[Place(g)]->nId;
    }
    [[nodiscard]] std::int32_t SeriesId(std::int32_t s) const { return m_Table.m_Series[Place(s)]->nId; }
    [[nodiscard]] std::int32_t StartX() const noexcept { return m_Picture.Bars.Measures.nStartX; }
    static std::size_t Place(std::int32_t index) noexcept { return static_cast<std::size_t>(index); }

    void Mark(EKind kind) { m_Picture.Steps.push_back({.kind = kind, .ptLabel = {}, .rcBar = {}}); }

    [[nodiscard]] std::size_t BeginFade()
    {
        Mark(EKind::beginFade);
        return m_Picture.Steps.size() - 1;
    }

    // Tells the step that began it what the bars between cover.
    void EndFade(std::size_t begin)
    {
        std::optional<TRect> covered;
        for (std::size_t i = begin + 1; i < m_Picture.Steps.size(); ++i) {
            const TBarStep& step = m_Picture.Steps[i];
            if (step.kind == EKind::bar) {
                const TRect bar = Rectangles::Ordered(step.rcBar);
                covered = covered ? Rectangles::Around(*covered, bar) : bar;
            }
        }
        m_Picture.Steps[begin].rcBar = covered.value_or(TRect{});
        Mark(EKind::endFade);
    }

    void Label(std::int32_t segment, std::int32_t left)
    {
        const auto& measures = m_Picture.Bars.Measures;
        m_Picture.Steps.push_back({.kind = EKind::label,
                                   .nIndex = segment,
                                   .ptLabel = {ChartMeasures::LabelCentre(measures, left, Series()),
                                               ChartMeasures::LabelTop(measures, m_Size)},
                                   .rcBar = {}});
    }

    // The label as the still picture places it: over the group's own left edge.
    void GroupLabel(std::int32_t segment)
    {
        Label(segment, BarGeometry::Left(m_Picture.Bars, StartX(), segment, 0));
    }

    // The label by equal steps, where series grow or anything fades.
    void SteppedLabel(std::int32_t segment)
    {
        using namespace Wrap32;
        Label(segment, Add(StartX(), Mul(segment, ChartMeasures::GroupStep(m_Picture.Bars.Measures))));
    }

    void AllLabels()
    {
        for (std::int32_t segment = 0; segment < Segments(); ++segment)
            SteppedLabel(segment);
    }

    void Bar(std::int32_t start, std::int32_t segment, std::int32_t series, std::int32_t percent)
    {
        const BarGeometry::TBars& bars = m_Picture.Bars;
        const std::int32_t value = m_Table.Value(Place(segment), Place(series));
        std::int32_t height = BarGeometry::Height(bars, value, m_Picture.nMaximum);
        if (percent != wholeHeight)
            height = BarGeometry::GrownHeight(height, percent);
        const std::int32_t left = BarGeometry::Left(bars, start, segment, series);
        m_Picture.Steps.push_back({.kind = EKind::bar,
                                   .nIndex = series,
                                   .ptLabel = {},
                                   .rcBar = BarGeometry::Rectangle(bars, left, height)});
    }

    void Group(std::int32_t start, std::int32_t segment, std::int32_t percent)
    {
        for (std::int32_t series = 0; series < Series(); ++series)
            Bar(start, segment, series, percent);
    }

    void WholeSeries(std::int32_t series, std::int32_t percent)
    {
        for (std::int32_t segment = 0; segment < Segments(); ++segment)
            Bar(m_Picture.Bars.nFixedStartX, segment, series, percent);
    }

    void AllBars(std::int32_t percent)
    {
        for (std::int32_t segment = 0; segment < Segments(); ++segment) {
            GroupLabel(segment);
            Group(StartX(), segment, percent);
        }
    }

    // Groups behind the one that grows do not exist yet, nor do their labels.
    void GroupsInTurn()
    {
        for (std::int32_t segment = 0; segment < Segments(); ++segment) {
            const bool grows = m_Animation.m_nGrowSegment < SegmentId(segment);
            GroupLabel(segment);
            Group(StartX(), segment, grows ? m_Animation.m_nAnimationPercent : wholeHeight);
            if (grows)
                return;
        }
    }

    void SeriesInTurn()
    {
        for (std::int32_t series = 0; series < Series(); ++series) {
            const bool grows = m_Animation.m_nGrowSeries < SeriesId(series);
            WholeSeries(series, grows ? m_Animation.m_nAnimationPercent : wholeHeight);
            if (grows)
                return;
        }
    }

    void FadeGroup()
    {
        std::int32_t fading = 0;
        while (fading < Segments() && SegmentId(fading) <= m_Animation.m_nFadeSegment)
            ++fading;
        if (fading == Segments())
            return;

        SteppedLabel(fading);
        const std::size_t begin = BeginFade();
        Group(m_Picture.Bars.nFixedStartX, fading, wholeHeight);
        Mark(EKind::blend);
        EndFade(begin);
        for (std::int32_t segment = 0; segment < Segments(); ++segment) {
            if (SegmentId(segment) < SegmentId(fading)) {
                SteppedLabel(segment);
                Group(m_Picture.Bars.nFixedStartX, segment, wholeHeight);
            }
        }
    }

    // One blend after each bar: a bar blended earlier is blended again with every later one.
    void FadeSeries()
    {
        std::int32_t fading = 0;
        while (fading < Series() && SeriesId(fading) <= m_Animation.m_nFadeSeries)
            ++fading;
        if (fading == Series())
            return;

        const std::size_t begin = BeginFade();
        for (std::int32_t segment = 0; segment < Segments(); ++segment) {
            Bar(m_Picture.Bars.nFixedStartX, segment, fading, wholeHeight);
            Mark(EKind::blend);
        }
        EndFade(begin);
        for (std::int32_t series = 0; series < Series(); ++series) {
            if (SeriesId(series) < SeriesId(fading))
                WholeSeries(series, wholeHeight);
        }
    }

    TBarPicture& m_Picture;
    const CValueTable& m_Table;
    const CBarAnimation& m_Animation;
    const TSize m_Size;
};

} // namespace

TBarPicture Compose(const CValueTable& table, const CBarAnimation& animation, TPoint position,
                    TSize size)
{
    TBarPicture picture;
    const std::int32_t segments = table.SegmentCount();
    const std::int32_t series = table.SeriesCount();
    const bool animated =
        animation.m_bAnimation == 1 && CBarAnimation::IsKnown(animation.m_nAnimationType);
    if ((animation.m_bAnimation != 0 && !animated) || segments < 1 || series < 1)
        return picture;

    picture.bValueLabels = true;
    picture.nMaximum = table.Maximum();
    picture.Bars = BarGeometry::Measure(position, size, segments, series);
    CComposer(picture, table, animation, size).Compose();
    return picture;
}

} // namespace BarPicture
