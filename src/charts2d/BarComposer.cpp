#include "charts2d/BarComposer.h"

#include <optional>

#include "base/Wrap.h"
#include "charts2d/BarGeometry.h"
#include "charts2d/Rectangles.h"

using EKind = TBarStep::EKind;

void CBarComposer::Mark(EKind kind)
{
    m_Picture.Steps.push_back({.kind = kind, .ptLabel = {}, .rcBar = {}});
}

std::size_t CBarComposer::BeginFade()
{
    Mark(EKind::beginFade);
    return m_Picture.Steps.size() - 1;
}

// The step that began it learns what the bars between cover.
void CBarComposer::EndFade(std::size_t begin)
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

void CBarComposer::Label(std::int32_t segment, std::int32_t left)
{
    const auto& measures = m_Picture.Bars.Measures;
    m_Picture.Steps.push_back({.kind = EKind::label,
                               .nIndex = segment,
                               .ptLabel = {ChartMeasures::LabelCentre(measures, left, Series()),
                                           ChartMeasures::LabelTop(measures, m_Size)},
                               .rcBar = {}});
}

// The label as the still picture places it: over the group's own left edge.
void CBarComposer::GroupLabel(std::int32_t segment)
{
    Label(segment, BarGeometry::Left(m_Picture.Bars, StartX(), segment, 0));
}

// The label by equal steps, where series grow or anything fades.
void CBarComposer::SteppedLabel(std::int32_t segment)
{
    using namespace Wrap;
    Label(segment, Add(StartX(), Multiply(segment, ChartMeasures::GroupStep(m_Picture.Bars.Measures))));
}

void CBarComposer::AllLabels()
{
    for (std::int32_t segment = 0; segment < Segments(); ++segment)
        SteppedLabel(segment);
}

void CBarComposer::Bar(std::int32_t start, std::int32_t segment, std::int32_t series,
                       std::int32_t percent)
{
    const BarGeometry::TBars& bars = m_Picture.Bars;
    const std::int32_t value = m_Table.Value(Place(segment), Place(series));
    std::int32_t height = BarGeometry::Height(bars, value, m_Picture.nMaximum);
    if (percent != WholeHeight)
        height = BarGeometry::GrownHeight(height, percent);
    const std::int32_t left = BarGeometry::Left(bars, start, segment, series);
    m_Picture.Steps.push_back({.kind = EKind::bar,
                               .nIndex = series,
                               .ptLabel = {},
                               .rcBar = BarGeometry::Rectangle(bars, left, height)});
}

void CBarComposer::Group(std::int32_t start, std::int32_t segment, std::int32_t percent)
{
    for (std::int32_t series = 0; series < Series(); ++series)
        Bar(start, segment, series, percent);
}

void CBarComposer::WholeSeries(std::int32_t series, std::int32_t percent)
{
    for (std::int32_t segment = 0; segment < Segments(); ++segment)
        Bar(m_Picture.Bars.nFixedStartX, segment, series, percent);
}

void CBarComposer::AllBars(std::int32_t percent)
{
    for (std::int32_t segment = 0; segment < Segments(); ++segment) {
        GroupLabel(segment);
        Group(StartX(), segment, percent);
    }
}

void CBarComposer::GrowingGroups()
{
    for (std::int32_t segment = 0; segment < Segments(); ++segment) {
        const bool grows = m_Animation.m_nGrowSegment < SegmentId(segment);
        GroupLabel(segment);
        Group(StartX(), segment, grows ? m_Animation.m_nAnimationPercent : WholeHeight);
        if (grows)
            return;
    }
}

void CBarComposer::GrowingSeries()
{
    AllLabels();
    for (std::int32_t series = 0; series < Series(); ++series) {
        const bool grows = m_Animation.m_nGrowSeries < SeriesId(series);
        WholeSeries(series, grows ? m_Animation.m_nAnimationPercent : WholeHeight);
        if (grows)
            return;
    }
}

void CBarComposer::FadingGroups()
{
    std::int32_t fading = 0;
    while (fading < Segments() && SegmentId(fading) <= m_Animation.m_nFadeSegment)
        ++fading;
    if (fading == Segments())
        return;

    SteppedLabel(fading);
    const std::size_t begin = BeginFade();
    Group(m_Picture.Bars.nFixedStartX, fading, WholeHeight);
    Mark(EKind::blend);
    EndFade(begin);
    for (std::int32_t segment = 0; segment < Segments(); ++segment) {
        if (SegmentId(segment) < SegmentId(fading)) {
            SteppedLabel(segment);
            Group(m_Picture.Bars.nFixedStartX, segment, WholeHeight);
        }
    }
}

void CBarComposer::FadingSeries()
{
    AllLabels();
    std::int32_t fading = 0;
    while (fading < Series() && SeriesId(fading) <= m_Animation.m_nFadeSeries)
        ++fading;
    if (fading == Series())
        return;

    const std::size_t begin = BeginFade();
    for (std::int32_t segment = 0; segment < Segments(); ++segment) {
        Bar(m_Picture.Bars.nFixedStartX, segment, fading, WholeHeight);
        Mark(EKind::blend);
    }
    EndFade(begin);
    for (std::int32_t series = 0; series < Series(); ++series) {
        if (SeriesId(series) < SeriesId(fading))
            WholeSeries(series, WholeHeight);
    }
}
