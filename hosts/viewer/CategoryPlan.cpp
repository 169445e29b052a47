#include "viewer/CategoryPlan.h"

#include "viewer/CellValue.h"
#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

namespace Viewer
{
namespace
{

constexpr std::size_t MostCategories = 500;
constexpr std::size_t MostSeries = 20;

[[noreturn]] void Refuse(std::u16string text)
{
    throw Error{ExitCode::BadData, std::move(text)};
}

const Column& Need(const Table& table, const std::u16string& name)
{
    const Column* column = table.Find(name);
    if (!column)
        Refuse(u"there is no column " + Quote(name));
    return *column;
}

// A column of first days of years is a column of years, one of first days of months one of months.
std::size_t LengthOfDates(const Column& column)
{
    constexpr std::size_t year = 4;
    constexpr std::size_t month = 7;
    std::size_t length = year;
    for (const std::u16string& cell : column.cells) {
        const std::optional<double> value = ParseDate(cell);
        if (!value || cell.size() < month)
            continue;
        const CalendarDate date = OleToDate(*value);
        if (date.day != 1 || *value != std::floor(*value))
            return std::u16string::npos;
        length = date.month != 1 ? month : length;
    }
    return length;
}

class CategoryPlanner
{
public:
    CategoryPlanner(const Table& table, const Options& options) : m_table(table), m_options(options) {}

    CategoryPlan Make()
    {
        m_plan.rows = m_table.Rows();
        ChooseColumns();
        for (std::size_t row = 0; row < m_table.Rows(); ++row) {
            for (const Column* column : m_values)
                AddCell(*column, row);
        }
        for (Series& series : m_plan.series)
            series.values.resize(m_plan.categories.size());
        if (m_plan.series.empty())
            Refuse(u"no row has a value to show");
        CutSlices();
        return std::move(m_plan);
    }

private:
    void ChooseColumns()
    {
        m_category = m_options.x ? &Need(m_table, *m_options.x) : &m_table.columns.front();
        m_group = m_options.group ? &Need(m_table, *m_options.group) : nullptr;
        for (const auto* names : {&m_options.y, &m_options.y2}) {
            for (const std::u16string& name : *names)
                m_values.push_back(&Need(m_table, name));
        }
        if (m_values.empty()) {
            for (const Column& column : m_table.columns) {
                if (column.kind == ColumnKind::Number && &column != m_category && &column != m_group)
                    m_values.push_back(&column);
            }
        }
        if (m_values.empty())
            Refuse(u"no column holds numbers to show");
        if (m_category->kind == ColumnKind::Date)
            m_length = LengthOfDates(*m_category);
    }

    void AddCell(const Column& column, std::size_t row)
    {
        const std::optional<double> value = ParseNumber(column.cells[row], column.decimalComma);
        if (!value) {
            ++m_plan.skipped;
            return;
        }
        Series& series = SeriesFor(column, row);
        const std::size_t category = CategoryFor(row);
        series.values.resize(std::max(series.values.size(), category + 1));
        series.values[category] += *value;
    }

    std::size_t CategoryFor(std::size_t row)
    {
        const std::u16string name = m_category->cells[row].substr(0, m_length);
        const auto [found, isNew] = m_categoryOfName.emplace(name, m_plan.categories.size());
        if (isNew) {
            if (m_plan.categories.size() == MostCategories) {
                Refuse(u"more than " + ToText(MostCategories) + u" categories in column " +
                       Quote(m_category->name) + u"; choose another one with --x");
            }
            m_plan.categories.push_back(name.empty() ? u"(empty)" : name);
        }
        return found->second;
    }

    Series& SeriesFor(const Column& column, std::size_t row)
    {
        std::u16string name = column.name;
        if (m_group) {
            const std::u16string& word = m_group->cells[row];
            const std::u16string shown = word.empty() ? u"(empty)" : word;
            name = m_values.size() == 1 ? shown : shown + u", " + name;
        }
        const auto [found, isNew] = m_seriesOfName.emplace(name, m_plan.series.size());
        if (isNew) {
            if (m_plan.series.size() == MostSeries)
                Refuse(u"more than " + ToText(MostSeries) + u" series; choose columns with --y");
            m_plan.series.push_back({name, {}});
        }
        return m_plan.series[found->second];
    }

    void CutSlices()
    {
        std::optional<std::size_t> picked;
        if (!m_options.pick.empty())
            picked = FindCategory(m_options.pick);
        if (m_plan.series.size() > 1) {
            m_plan.sliceTitle = picked ? m_plan.categories[*picked] : u"all of " + m_category->name;
            for (const Series& series : m_plan.series) {
                double sum = 0;
                for (std::size_t at = 0; at < series.values.size(); ++at)
                    sum += !picked || *picked == at ? series.values[at] : 0;
                AddSlice(series.name, sum);
            }
        } else {
            m_plan.sliceTitle = m_plan.series.front().name;
            for (std::size_t at = 0; at < m_plan.categories.size(); ++at) {
                if (!picked || *picked == at)
                    AddSlice(m_plan.categories[at], m_plan.series.front().values[at]);
            }
        }
        double total = 0;
        for (const Slice& slice : m_plan.slices)
            total += slice.value;
        for (Slice& slice : m_plan.slices)
            slice.percent = slice.value / total * 100;
    }

    std::size_t FindCategory(const std::u16string& name) const
    {
        for (std::size_t at = 0; at < m_plan.categories.size(); ++at) {
            if (EqualsIgnoringCase(m_plan.categories[at], name))
                return at;
        }
        Refuse(u"column " + Quote(m_category->name) + u" has no " + Quote(name) + u" to pick");
    }

    void AddSlice(const std::u16string& name, double value)
    {
        if (value > 0 && std::isfinite(value)) {
            m_plan.slices.push_back({name, value, 0});
        } else {
            ++m_plan.slicesLeftOut;
        }
    }

    const Table& m_table;
    const Options& m_options;
    CategoryPlan m_plan;
    const Column* m_category = nullptr;
    const Column* m_group = nullptr;
    std::vector<const Column*> m_values;
    std::size_t m_length = std::u16string::npos; // of a category's name
    std::map<std::u16string, std::size_t> m_categoryOfName;
    std::map<std::u16string, std::size_t> m_seriesOfName;
};

} // namespace

CategoryPlan MakeCategoryPlan(const Table& table, const Options& options)
{
    CategoryPlan plan = CategoryPlanner(table, options).Make();
    const bool pie = options.chart == ChartKind::Pie || options.chart == ChartKind::Pie3d;
    if (pie && plan.slices.empty())
        Refuse(u"no value above 0 to cut a pie by");
    return plan;
}

std::u16string Describe(const CategoryPlan& plan, std::u16string_view fileName)
{
    std::u16string text(fileName);
    text += u": " + ToText(plan.rows) + (plan.rows == 1 ? u" row, " : u" rows, ") +
            ToText(plan.categories.size()) +
            (plan.categories.size() == 1 ? u" category\n" : u" categories\n");
    for (const Series& series : plan.series)
        text += u"  " + series.name + u"\n";
    if (plan.skipped > 0) {
        text += u"  " + ToText(plan.skipped) + (plan.skipped == 1 ? u" cell" : u" cells") +
                u" without a number\n";
    }
    if (plan.slicesLeftOut > 0)
        text += u"  " + ToText(plan.slicesLeftOut) + u" of 0 or less, not in a pie\n";
    return text;
}

int ToWholeValue(double value) noexcept
{
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    if (std::isnan(value))
        return 0;
    return static_cast<int>(std::clamp(std::round(value), low, high));
}

} // namespace Viewer
