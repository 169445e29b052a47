#include "charts2d/BarData.h"
#include "charts2d/ValueTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <vector>

namespace
{

std::vector<int> SegmentIds(const CBarData& data)
{
    std::vector<int> ids;
    for (const SBarSegment* segment = data.m_pSegments; segment; segment = segment->pNext)
        ids.push_back(segment->nId);
    return ids;
}

// The values of the series at that place, as pairs of segment id and value.
std::vector<std::pair<int, int>> Values(const CBarData& data, int place)
{
    const SBarSeries* series = data.m_pSeries;
    while (place-- > 0)
        series = series->pNext;
    std::vector<std::pair<int, int>> values;
    for (const SBarValue* value = series->pValues; value; value = value->pNext)
        values.emplace_back(value->nSegment, value->nValue);
    return values;
}

void Fill(CBarData& data, int segments, int series)
{
    for (int i = 0; i < segments; ++i)
        data.AddSegment(u"segment");
    for (int i = 0; i < series; ++i)
        ASSERT_EQ(data.AddSeries(u"series", 0), ERefusal::none);
}

using TPairs = std::vector<std::pair<int, int>>;

} // namespace

TEST(BarData, IdsAreTheCountAfterEachInsertion)
{
    CBarData data;
    Fill(data, 3, 2);
    EXPECT_EQ(SegmentIds(data), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(data.m_pSeries->nId, 1);
    EXPECT_EQ(data.m_pSeries->pNext->nId, 2);
    EXPECT_EQ(Values(data, 1), (TPairs{{1, 0}, {2, 0}, {3, 0}}));
}

TEST(BarData, SeriesBeforeAnySegmentIsRefused)
{
    CBarData data;
    EXPECT_EQ(data.AddSeries(u"early", 0xFF), ERefusal::noSegments);
    EXPECT_EQ(data.m_nSeries, 0);
    EXPECT_EQ(data.m_pSeries, nullptr);
}

TEST(BarData, DeletedSegmentKeepsIdsValuesAndPlaces)
{
    CBarData data;
    Fill(data, 3, 1);
    ASSERT_EQ(data.SetValue(1, 1, 11), ERefusal::none);
    ASSERT_EQ(data.SetValue(3, 1, 33), ERefusal::none);

    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);

    EXPECT_EQ(data.m_nSegments, 2);
    EXPECT_EQ(SegmentIds(data), (std::vector<int>{2, 3}));
    EXPECT_EQ(Values(data, 0), (TPairs{{1, 11}, {2, 0}, {3, 33}}));
}

TEST(BarData, IdAboveTheCountIsOutOfBoundsThoughItExists)
{
    CBarData data;
    Fill(data, 3, 1);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    EXPECT_EQ(data.SetValue(3, 1, 5), ERefusal::segmentIndexOutOfBounds);
    EXPECT_EQ(Values(data, 0), (TPairs{{1, 0}, {2, 0}, {3, 0}}));
}

TEST(BarData, SegmentAddedAfterADeletionRepeatsAnIdAndItsStaleValueIsSet)
{
    CBarData data;
    Fill(data, 3, 1);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    data.AddSegment(u"again");
    EXPECT_EQ(SegmentIds(data), (std::vector<int>{2, 3, 3}));

    ASSERT_EQ(data.SetValue(3, 1, 7), ERefusal::none);
    EXPECT_EQ(Values(data, 0), (TPairs{{1, 0}, {2, 0}, {3, 7}, {3, 0}}));
}

TEST(BarData, SegmentAddedWhileSeriesExistSharesItsValueAmongThem)
{
    CBarData data;
    Fill(data, 1, 3);
    data.AddSegment(u"shared");
    ASSERT_EQ(data.SetValue(2, 2, 42), ERefusal::none);
    for (int series = 0; series < 3; ++series)
        EXPECT_EQ(Values(data, series), (TPairs{{1, 0}, {2, 42}})) << series;
}

TEST(BarData, ManySharedSegmentsNeverCloseAListIntoACircle)
{
    CBarData data;
    Fill(data, 1, 2);
    data.AddSegment(u"two");
    data.AddSegment(u"three");
    ASSERT_EQ(data.AddSeries(u"late", 0), ERefusal::none);
    data.AddSegment(u"four");
    const TPairs expected{{1, 0}, {2, 0}, {3, 0}, {4, 0}};
    for (int series = 0; series < 3; ++series)
        EXPECT_EQ(Values(data, series), expected) << series;
}

TEST(BarData, SharedValueOutlivesADeletedSeriesAndIsFreedOnce)
{
    CBarData data;
    Fill(data, 1, 3);
    data.AddSegment(u"shared");
    data.AddSegment(u"shared too");
    ASSERT_EQ(data.SetValue(2, 1, 9), ERefusal::none);
    ASSERT_EQ(data.DeleteSeries(1), ERefusal::none);
    ASSERT_EQ(data.DeleteSeries(2), ERefusal::none);
    EXPECT_EQ(Values(data, 0), (TPairs{{1, 0}, {2, 9}, {3, 0}}));
    data.Clear();
    EXPECT_EQ(data.m_pSeries, nullptr);
    EXPECT_EQ(data.m_nSegments, 0);
}

TEST(BarData, DeletionOfAnIdThatHasLeftIsRefusedAndChangesNothing)
{
    CBarData data;
    Fill(data, 3, 3);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    EXPECT_EQ(data.DeleteSegment(1), ERefusal::indexOutOfBounds);
    EXPECT_EQ(data.m_nSegments, 2);

    ASSERT_EQ(data.DeleteSeries(2), ERefusal::none);
    EXPECT_EQ(data.DeleteSeries(2), ERefusal::seriesIndexOutOfBounds);
    EXPECT_EQ(data.SetValue(1, 2, 1), ERefusal::seriesIndexOutOfBounds);
    EXPECT_EQ(data.m_nSeries, 2);
}

TEST(BarData, IndicesOutsideTheCountsAreRefusedSegmentFirst)
{
    CBarData data;
    Fill(data, 2, 1);
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    for (const int index : {lowest, -1, 0, 3, highest}) {
        EXPECT_EQ(data.DeleteSegment(index), ERefusal::indexOutOfBounds);
        EXPECT_EQ(data.SetValue(index, 0, 1), ERefusal::segmentIndexOutOfBounds);
    }
    for (const int index : {lowest, 0, 2, highest}) {
        EXPECT_EQ(data.DeleteSeries(index), ERefusal::seriesIndexOutOfBounds);
        EXPECT_EQ(data.SetValue(1, index, 1), ERefusal::seriesIndexOutOfBounds);
    }
    EXPECT_EQ(data.m_nSegments, 2);
    EXPECT_EQ(data.m_nSeries, 1);
}

TEST(BarData, TailOfAListMayBeDeletedAndAppendedToAgain)
{
    CBarData data;
    Fill(data, 2, 2);
    ASSERT_EQ(data.DeleteSegment(2), ERefusal::none);
    ASSERT_EQ(data.DeleteSeries(2), ERefusal::none);
    data.AddSegment(u"new");
    ASSERT_EQ(data.AddSeries(u"new", 0), ERefusal::none);
    EXPECT_EQ(SegmentIds(data), (std::vector<int>{1, 2}));
    EXPECT_EQ(Values(data, 0), (TPairs{{1, 0}, {2, 0}, {2, 0}}));
    EXPECT_EQ(Values(data, 1), (TPairs{{1, 0}, {2, 0}}));
}

TEST(BarData, NoSegmentHasAnIdBelowOne)
{
    CBarData data;
    Fill(data, 2, 1);
    EXPECT_EQ(data.m_pSeries->FindValue(-1), nullptr);
    EXPECT_EQ(data.m_pSeries->FindValue(0), nullptr);
    EXPECT_EQ(data.m_pSeries->FindValue(1), data.m_pSeries->pValues);
    EXPECT_EQ(data.m_pSeries->FindValue(std::numeric_limits<std::int32_t>::max()), nullptr);
}

TEST(ValueTable, WithoutSegmentsTheMaximumIsZero)
{
    CBarData data;
    Fill(data, 1, 1);
    ASSERT_EQ(data.SetValue(1, 1, 7), ERefusal::none);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    EXPECT_EQ(CValueTable(data).Maximum(), 0);
}

TEST(ValueTable, ReadsTheFirstValueOfEachId)
{
    CBarData data;
    Fill(data, 3, 2);
    ASSERT_EQ(data.SetValue(3, 2, 5), ERefusal::none);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    data.AddSegment(u"again"); // ids 2, 3, 3: both of the last read the first value for 3
    const CValueTable table(data);
    ASSERT_EQ(table.SegmentCount(), 3);
    EXPECT_EQ(table.Value(1, 1), 5);
    EXPECT_EQ(table.Value(2, 1), 5);
    EXPECT_EQ(table.Value(0, 1), 0);
}

TEST(ValueTable, SegmentWithoutAValueShowsNothing)
{
    CBarData data;
    Fill(data, 3, 0);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    ASSERT_EQ(data.AddSeries(u"has values for 1 and 2", 0), ERefusal::none);
    ASSERT_EQ(data.SetValue(2, 1, 8), ERefusal::none);
    const CValueTable table(data); // segments 2 and 3
    EXPECT_EQ(table.Value(0, 0), 8);
    EXPECT_EQ(table.Value(1, 0), 0);
}

TEST(ValueTable, MaximumIsThatOfTheFirstSegmentAloneAndNeverBelowZero)
{
    CBarData data;
    Fill(data, 2, 2);
    ASSERT_EQ(data.SetValue(1, 1, -5), ERefusal::none);
    ASSERT_EQ(data.SetValue(1, 2, -1), ERefusal::none);
    ASSERT_EQ(data.SetValue(2, 1, 900), ERefusal::none);
    EXPECT_EQ(CValueTable(data).Maximum(), 0);
    ASSERT_EQ(data.SetValue(1, 2, 20), ERefusal::none);
    EXPECT_EQ(CValueTable(data).Maximum(), 20);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    EXPECT_EQ(CValueTable(data).Maximum(), 900);
}

namespace
{

// The same data kept the plain way: everything is found by a walk from the front.
class PlainData
{
public:
    void AddSegment()
    {
        const auto value = std::make_shared<std::pair<int, int>>(++m_segmentCount, 0);
        for (auto& series : m_series)
            series.values.push_back(value);
        m_segments.push_back(m_segmentCount);
    }
    bool DeleteSegment(int index)
    {
        const auto found = std::find(m_segments.begin(), m_segments.end(), index);
        if (index > m_segmentCount || found == m_segments.end())
            return false;
        m_segments.erase(found);
        --m_segmentCount;
        return true;
    }
    bool AddSeries()
    {
        if (m_segmentCount < 1)
            return false;
        m_series.push_back({++m_seriesCount, {}});
        for (int segment = 1; segment <= m_segmentCount; ++segment)
            m_series.back().values.push_back(std::make_shared<std::pair<int, int>>(segment, 0));
        return true;
    }
    bool DeleteSeries(int index)
    {
        const auto found = FindSeries(index);
        if (index > m_seriesCount || found == m_series.end())
            return false;
        m_series.erase(found);
        --m_seriesCount;
        return true;
    }
    bool SetValue(int segment, int series, int value)
    {
        const auto found = FindSeries(series);
        if (segment > m_segmentCount || series > m_seriesCount || found == m_series.end())
            return false;
        const auto node = std::find_if(found->values.begin(), found->values.end(),
                                       [&](const auto& entry) { return entry->first == segment; });
        if (node == found->values.end())
            return false;
        (*node)->second = value;
        return true;
    }

    struct TSeries {
        int id;
        std::vector<std::shared_ptr<std::pair<int, int>>> values;
    };
    std::vector<int> m_segments;
    std::vector<TSeries> m_series;

private:
    std::vector<TSeries>::iterator FindSeries(int id)
    {
        return std::find_if(m_series.begin(), m_series.end(),
                            [&](const TSeries& series) { return series.id == id; });
    }
    int m_segmentCount = 0;
    int m_seriesCount = 0;
};

void ExpectEqual(const CBarData& data, const PlainData& plain)
{
    ASSERT_EQ(SegmentIds(data), plain.m_segments);
    const SBarSeries* series = data.m_pSeries;
    for (std::size_t place = 0; place < plain.m_series.size(); ++place, series = series->pNext) {
        ASSERT_NE(series, nullptr);
        ASSERT_EQ(series->nId, plain.m_series[place].id);
        TPairs values;
        for (const auto& value : plain.m_series[place].values)
            values.push_back(*value);
        ASSERT_EQ(Values(data, static_cast<int>(place)), values);
    }
    ASSERT_EQ(series, nullptr);
}

} // namespace

TEST(BarData, IndexesFindWhatAWalkFinds)
{
    std::mt19937 random(2024);
    const auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 40; ++round) {
        CBarData data;
        PlainData plain;
        for (int step = 0; step < 60; ++step) {
            const int index = 1 + below(8);
            const int other = 1 + below(8);
            switch (below(6)) {
            case 0:
                data.AddSegment(u"segment");
                plain.AddSegment();
                break;
            case 1:
                ASSERT_EQ(data.AddSeries(u"series", 0) == ERefusal::none, plain.AddSeries());
                break;
            case 2:
                ASSERT_EQ(data.DeleteSegment(index) == ERefusal::none, plain.DeleteSegment(index));
                break;
            case 3:
                ASSERT_EQ(data.DeleteSeries(index) == ERefusal::none, plain.DeleteSeries(index));
                break;
            default:
                ASSERT_EQ(data.SetValue(index, other, step) == ERefusal::none,
                          plain.SetValue(index, other, step));
                break;
            }
            ASSERT_NO_FATAL_FAILURE(ExpectEqual(data, plain)) << round << ' ' << step;
        }
    }
}
