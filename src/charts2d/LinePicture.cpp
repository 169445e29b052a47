#include "charts2d/LinePicture.h"

#include "base/Wrap.h"

namespace LinePicture
{

namespace
{

class CComposer
{
public:
    CComposer(TLinePicture& picture, const CValueTable& table, CLineAnimation& animation, TSize size)
        : m_Picture(picture), m_Table(table), m_Animation(animation), m_Size(size)
    {
    }

    void Compose()
    {
        if (m_Animation.m_bAnimation == 0) {
            AllLabels();
            for (std::size_t series = 0; series < SeriesCount(); ++series)
                WholeSeries(series);
        } else if (m_Animation.m_nAnimationType == CLineAnimation::allDraw) {
            DrawTogether();
        } else if (m_Animation.m_nAnimationType == CLineAnimation::seriesDraw) {
            AllLabels();
            DrawInTurn();
        }
    }

private:
    [[nodiscard]] std::size_t SegmentCount() const noexcept { return m_Table.m_Segments.size(); }
    [[nodiscard]] std::size_t SeriesCount() const noexcept { return m_Table.m_Series.size(); }
    [[nodiscard]] std::int32_t SegmentId(std::size_t g) const { return m_Table.m_Segments[g]->nId; }
    [[nodiscard]] std::int32_t SeriesId(std::size_t s) const { return m_Table.m_Series[s]->nId; }

    [[nodiscard]] TPoint PointOf(std::int32_t k, const SBarValue& value) const noexcept
    {
        return LineGeometry::Point(m_Picture.Plot, k, value.nValue, m_Picture.nMaximum);
    }

    // The end of the part of a series that is drawn; null for a series that came later.
    [[nodiscard]] TPoint* DrawnEnd(std::size_t series)
    {
        const auto entry = static_cast<std::size_t>(SeriesId(series)) - 1;
        return entry < m_Animation.m_pPoints.size() ? &m_Animation.m_pPoints[entry] : nullptr;
    }

    void Label(std::size_t segment)
    {
        using namespace Wrap;
        const auto& measures = m_Picture.Plot.Measures;
        const auto place = static_cast<std::int32_t>(segment);
        const std::int32_t left = Add(measures.nStartX, Multiply(place, m_Picture.Plot.nStep));
        const std::int32_t centre = ChartMeasures::LabelCentre(measures, left, m_Table.SeriesCount());
        m_Picture.Steps.push_back(
            {TLineStep::EKind::label, place, {centre, ChartMeasures::LabelTop(measures, m_Size)}, {}});
    }

    void AllLabels()
    {
        for (std::size_t segment = 0; segment < SegmentCount(); ++segment)
            Label(segment);
    }

    void Line(std::size_t series, TPoint from, TPoint to)
    {
        m_Picture.Steps.push_back({TLineStep::EKind::line, static_cast<std::int32_t>(series), from, to});
    }

    void WholeSeries(std::size_t series)
    {
        std::int32_t k = 0;
        for (const SBarValue* value = m_Table.m_Series[series]->pValues; value->pNext;
             value = value->pNext, ++k)
            Line(series, PointOf(k, *value), PointOf(k + 1, *value->pNext));
    }

    // The lines from the beginning of a series up to the value of the segment in progress.
    void FinishedLines(std::size_t series)
    {
        const std::int32_t endId = Wrap::Add(m_Animation.m_nGrowSegment, 1);
        TPoint* const drawnEnd = DrawnEnd(series);
        std::int32_t k = 0;
        for (const SBarValue* value = m_Table.m_Series[series]->pValues;
             value->pNext && value->nSegment != endId; value = value->pNext, ++k) {
            const TPoint end = PointOf(k + 1, *value->pNext);
            Line(series, PointOf(k, *value), end);
            if (drawnEnd)
                *drawnEnd = end;
        }
    }

    // The line in progress from the segment's value to the next. False if no value follows.
    bool PartialLine(std::size_t segment, std::size_t series)
    {
        using namespace Wrap;
        const SBarValue* value = m_Table.m_Series[series]->FindValue(SegmentId(segment));
        if (!value || !value->pNext)
            return false;
        const TPoint* const drawnEnd = DrawnEnd(series);
        if (!drawnEnd)
            return true;

        const LineGeometry::TPlot& plot = m_Picture.Plot;
        TPoint from = *drawnEnd;
        if (segment == 0) {
            from.x = Add(from.x, plot.Measures.nGroupWidth / 2);
            from.y = LineGeometry::PointY(plot, value->nValue, m_Picture.nMaximum);
        }
        const TPoint to{Add(from.x, plot.nStep),
                        LineGeometry::PointY(plot, value->pNext->nValue, m_Picture.nMaximum)};
        const std::int32_t rest =
            Subtract(m_Animation.m_nAnimationPercent,
                     Multiply(m_Animation.m_nSegmentPercent, m_Animation.m_nGrowSegment));
        Line(series, from, LineGeometry::PartialEnd(from, to, rest, m_Animation.m_nSegmentPercent));
        return true;
    }

    // Labels arrive with the lines. The finished lines are the same at every finished segment,
    // so they are drawn once, over the labels of all of them.
    void DrawTogether()
    {
        bool finishedLinesDue = false;
        bool inProgress = false;
        for (std::size_t segment = 0; segment < SegmentCount() && !inProgress; ++segment) {
            const bool finished = SegmentId(segment) <= m_Animation.m_nGrowSegment;
            if (!finished && finishedLinesDue)
                AllFinishedLines();
            finishedLinesDue = finished;

            Label(segment);
            for (std::size_t series = 0; !finished && series < SeriesCount(); ++series)
                inProgress |= PartialLine(segment, series);
        }
        if (finishedLinesDue)
            AllFinishedLines();
    }

    void AllFinishedLines()
    {
        for (std::size_t series = 0; series < SeriesCount(); ++series)
            FinishedLines(series);
    }

    void DrawInTurn()
    {
        std::size_t series = 0;
        for (; series < SeriesCount() && SeriesId(series) <= m_Animation.m_nGrowSeries; ++series)
            WholeSeries(series);
        if (series == SeriesCount())
            return;

        std::size_t segment = 0;
        while (segment < SegmentCount() && SegmentId(segment) <= m_Animation.m_nGrowSegment)
            ++segment;
        if (segment > 0)
            FinishedLines(series);
        if (segment < SegmentCount())
            PartialLine(segment, series);
    }

    TLinePicture& m_Picture;
    const CValueTable& m_Table;
    CLineAnimation& m_Animation;
    const TSize m_Size;
};

} // namespace

TLinePicture Compose(const CValueTable& table, CLineAnimation& animation, TPoint position, TSize size)
{
    TLinePicture picture;
    const std::int32_t segments = table.SegmentCount();
    const std::int32_t series = table.SeriesCount();
    const bool drawn = animation.m_bAnimation == 0 || animation.m_bAnimation == 1;
    if (!drawn || segments < 2 || series < 1)
        return picture;

    picture.bValueLabels = true;
    picture.nMaximum = table.Maximum();
    picture.Plot = LineGeometry::Measure(position, size, segments, series);
    CComposer(picture, table, animation, size).Compose();
    return picture;
}

} // namespace LinePicture
