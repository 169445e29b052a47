#pragma once
// Puts the steps of one frame of the bar chart together: the still picture, and those of the
// animations.

#include <cstddef>
#include <cstdint>

#include "charts2d/BarAnimation.h"
#include "charts2d/BarPicture.h"
#include "charts2d/ValueTable.h"

// Works on what it is given by reference, for one frame.
class CBarComposer
{
public:
    CBarComposer(TBarPicture& picture, const CValueTable& table, const CBarAnimation& animation,
                 TSize size) noexcept
        : m_Picture(picture), m_Table(table), m_Animation(animation), m_Size(size)
    {
    }

    void WholeBars() { AllBars(WholeHeight); }
    void GrowingBars() { AllBars(m_Animation.m_nAnimationPercent); }
    // Groups behind the one that grows do not exist yet, nor do their labels.
    void GrowingGroups();
    // Series behind the one that grows do not exist yet, but all labels do.
    void GrowingSeries();
    // The group that fades, and over it the whole ones before it.
    void FadingGroups();
    // One blend after each bar: a bar blended earlier is blended again with every later one.
    void FadingSeries();

private:
    static constexpr std::int32_t WholeHeight = -1; // in place of a percent: the bar is not growing

    [[nodiscard]] std::int32_t Segments() const noexcept { return m_Table.SegmentCount(); }
    [[nodiscard]] std::int32_t Series() const noexcept { return m_Table.SeriesCount(); }
    [[nodiscard]] std::int32_t SegmentId(std::int32_t g) const
    {
        return m_Table.m_Segments[Place(g)]->nId;
    }
    [[nodiscard]] std::int32_t SeriesId(std::int32_t s) const { return m_Table.m_Series[Place(s)]->nId; }
    [[nodiscard]] std::int32_t StartX() const noexcept { return m_Picture.Bars.Measures.nStartX; }
    static std::size_t Place(std::int32_t index) noexcept { return static_cast<std::size_t>(index); }

    void Mark(TBarStep::EKind kind);
    [[nodiscard]] std::size_t BeginFade();
    void EndFade(std::size_t begin);
    void Label(std::int32_t segment, std::int32_t left);
    void GroupLabel(std::int32_t segment);
    void SteppedLabel(std::int32_t segment);
    void AllLabels();
    void Bar(std::int32_t start, std::int32_t segment, std::int32_t series, std::int32_t percent);
    void Group(std::int32_t start, std::int32_t segment, std::int32_t percent);
    void WholeSeries(std::int32_t series, std::int32_t percent);
    void AllBars(std::int32_t percent);

    TBarPicture& m_Picture;
    const CValueTable& m_Table;
    const CBarAnimation& m_Animation;
    const TSize m_Size;
};
