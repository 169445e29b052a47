#include "viewer/PlotPlan.h"

#include "viewer/AxisText.h"
#include "viewer/CellValue.h"
#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace Viewer
{
namespace
{

constexpr std::size_t MostCurves = 100;
constexpr std::size_t LongestTitle = 24; // a title's width is taken from the plot

[[noreturn]] void Refuse(std::u16string text)
{
    throw Error{ExitCode::BadData, std::move(text)};
}

std::u16string NamesOf(const Table& table)
{
    std::u16string names;
    for (const Column& column : table.columns) {
        names += (names.empty() ? u"" : u", ") + Quote(column.name);
        if (names.size() > 400)
            return names + u"...";
    }
    return names;
}

const Column& Need(const Table& table, const std::u16string& name)
{
    const Column* column = table.Find(name);
    if (!column)
        Refuse(u"there is no column " + Quote(name) + u"; there are " + NamesOf(table));
    return *column;
}

// A column of mostly words may still be asked for by name: its numbers are plotted.
bool ReadsAsDate(const Column& column)
{
    return column.kind == ColumnKind::Date;
}

std::optional<double> Value(const Column& column, std::size_t row)
{
    const std::u16string& cell = column.cells[row];
    return ReadsAsDate(column) ? ParseDate(cell) : ParseNumber(cell, column.decimalComma);
}

struct Request {
    const Column* column;
    int yAxis;
};

class Planner
{
public:
    Planner(const Table& table, const Options& options) : m_table(table), m_options(options) {}

    PlotPlan Make()
    {
        m_plan.rows = m_table.Rows();
        m_plan.endsInsideQuotes = m_table.endsInsideQuotes;
        ChooseX();
        ChooseY();
        for (const Request& request : m_requests)
            AddCurves(request);
        DropEmptyCurves();
        DescribeXAxis();
        DescribeYAxes();
        return std::move(m_plan);
    }

private:
    void ChooseX()
    {
        if (m_options.x) {
            m_x = &Need(m_table, *m_options.x);
            if (m_x->kind == ColumnKind::Empty)
                Refuse(u"column " + Quote(m_x->name) + u" is empty");
            return;
        }
        const Column& first = m_table.columns.front();
        m_plan.rowNumbers = first.kind == ColumnKind::Text || first.kind == ColumnKind::Empty ||
                            m_table.columns.size() == 1;
        m_x = m_plan.rowNumbers ? nullptr : &first;
    }

    void ChooseY()
    {
        if (m_options.group)
            m_group = &Need(m_table, *m_options.group);
        for (const std::u16string& name : m_options.y)
            m_requests.push_back({&Need(m_table, name), 0});
        std::vector<const Column*> second;
        for (const std::u16string& name : m_options.y2)
            second.push_back(&Need(m_table, name));
        if (m_options.y.empty()) {
            for (const Column& column : m_table.columns) {
                const bool taken =
                    &column == m_x || std::count(second.begin(), second.end(), &column) > 0;
                if (column.kind == ColumnKind::Number && !taken && &column != m_group)
                    m_requests.push_back({&column, 0});
            }
        }
        // Axes are numbered without gaps: if the first one has no column, the second is the first.
        const int secondAxis = m_requests.empty() ? 0 : 1;
        for (const Column* column : second)
            m_requests.push_back({column, secondAxis});
        if (m_requests.empty())
            Refuse(u"no column holds numbers to plot; there are " + NamesOf(m_table));
        m_plan.y.resize(secondAxis == 1 && !second.empty() ? 2 : 1);
    }

    void AddCurves(const Request& request)
    {
        std::map<std::u16string, std::size_t> curveOfWord;
        if (!m_group)
            AddCurve(request.column->name, request);
        std::size_t current = m_group ? 0 : m_plan.curves.size() - 1;
        for (std::size_t row = 0; row < m_table.Rows(); ++row) {
            if (m_group) {
                const std::u16string& word = m_group->cells[row];
                auto found = curveOfWord.find(word);
                if (found == curveOfWord.end()) {
                    found = curveOfWord.emplace(word, m_plan.curves.size()).first;
                    AddCurve(CurveLabel(word, request), request);
                }
                current = found->second;
            }
            AddPoint(m_plan.curves[current], request, row);
        }
    }

    std::u16string CurveLabel(const std::u16string& word, const Request& request) const
    {
        const std::u16string shown = word.empty() ? u"(empty)" : word;
        return m_requests.size() == 1 ? shown : shown + u", " + request.column->name;
    }

    void AddCurve(std::u16string label, const Request& request)
    {
        if (m_plan.curves.size() == MostCurves)
            Refuse(u"more than " + ToText(MostCurves) + u" curves; choose columns with --y");
        m_plan.curves.emplace_back();
        m_plan.curves.back().label = std::move(label);
        m_plan.curves.back().yAxis = request.yAxis;
    }

    void AddPoint(Curve& curve, const Request& request, std::size_t row) const
    {
        const std::optional<double> x =
            m_x ? Value(*m_x, row) : std::optional(static_cast<double>(row + 1));
        const std::optional<double> y = Value(*request.column, row);
        if (x && y) {
            curve.points.push_back({*x, *y});
            return;
        }
        if (curve.skipped++ == 0)
            curve.firstSkippedLine = m_table.lines[row];
    }

    void DropEmptyCurves()
    {
        for (const Request& request : m_requests) {
            if (ReadsAsDate(*request.column) != ReadsAsDate(*FirstOn(request.yAxis))) {
                Refuse(u"columns " + Quote(request.column->name) + u" and " +
                       Quote(FirstOn(request.yAxis)->name) + u" mix dates and numbers on one axis");
            }
        }
        for (const Curve& curve : m_plan.curves) {
            if (curve.points.empty() && !m_group)
                Refuse(u"no row has a value to plot in column " + Quote(curve.label));
        }
        std::erase_if(m_plan.curves, [](const Curve& curve) { return curve.points.empty(); });
        for (int axis = 0; axis < static_cast<int>(m_plan.y.size()); ++axis) {
            const bool used = std::any_of(m_plan.curves.begin(), m_plan.curves.end(),
                                          [&](const Curve& curve) { return curve.yAxis == axis; });
            if (!used)
                Refuse(u"no row has a value to plot in column " + Quote(FirstOn(axis)->name));
        }
    }

    [[nodiscard]] const Column* FirstOn(int yAxis) const
    {
        return std::find_if(m_requests.begin(), m_requests.end(),
                            [&](const Request& request) { return request.yAxis == yAxis; })
            ->column;
    }

    void DescribeXAxis()
    {
        Axis& axis = m_plan.x;
        axis.title = m_x ? m_x->name : u"row";
        axis.date = m_x && ReadsAsDate(*m_x);
        axis.low = axis.high = m_plan.curves.front().points.front().x;
        for (const Curve& curve : m_plan.curves) {
            for (const Point& point : curve.points) {
                axis.low = std::min(axis.low, point.x);
                axis.high = std::max(axis.high, point.x);
            }
        }
        FinishAxis(axis);
        if (!m_x)
            CountWholeRows(axis);
    }

    // A graph rounds few rows to steps of a fraction; in tenths of its range it steps by whole rows.
    static void CountWholeRows(Axis& axis)
    {
        constexpr double mostSteps = 25; // beyond these it steps by whole rows itself
        const double steps = axis.high - axis.low;
        if (steps < 1 || steps > mostSteps)
            return;
        axis.autoScale = false;
        axis.high = axis.low + 10 * std::ceil(steps / 10);
        axis.format = u"%.0f";
    }

    void DescribeYAxes()
    {
        for (std::size_t at = 0; at < m_plan.y.size(); ++at) {
            Axis& axis = m_plan.y[at];
            bool first = true;
            for (const Curve& curve : m_plan.curves) {
                if (curve.yAxis != static_cast<int>(at))
                    continue;
                for (const Point& point : curve.points) {
                    axis.low = first ? point.y : std::min(axis.low, point.y);
                    axis.high = first ? point.y : std::max(axis.high, point.y);
                    first = false;
                }
            }
            for (const Request& request : m_requests) {
                if (request.yAxis == static_cast<int>(at)) {
                    axis.title += (axis.title.empty() ? u"" : u", ") + request.column->name;
                    axis.date = ReadsAsDate(*request.column);
                }
            }
            FinishAxis(axis);
        }
    }

    static void FinishAxis(Axis& axis)
    {
        if (axis.title.size() > LongestTitle)
            axis.title.clear();
        axis.format =
            axis.date ? DateFormatFor(axis.low, axis.high) : NumberFormatFor(axis.low, axis.high);
        if (axis.date && !GraphRoundsDatesWell(axis.low, axis.high)) {
            const DateRange range = RoundDateRange(axis.low, axis.high);
            axis.autoScale = false;
            axis.low = range.low;
            axis.high = range.high;
        }
    }

    const Table& m_table;
    const Options& m_options;
    PlotPlan m_plan;
    const Column* m_x = nullptr;
    const Column* m_group = nullptr;
    std::vector<Request> m_requests;
};

} // namespace

PlotPlan MakePlan(const Table& table, const Options& options)
{
    return Planner(table, options).Make();
}

std::u16string Describe(const PlotPlan& plan, std::u16string_view fileName)
{
    std::u16string text(fileName);
    text += u": " + ToText(plan.rows) + (plan.rows == 1 ? u" row\n" : u" rows\n");
    for (const Curve& curve : plan.curves) {
        text += u"  " + curve.label + u": " + ToText(curve.points.size()) +
                (curve.points.size() == 1 ? u" point" : u" points");
        if (curve.skipped > 0) {
            text +=
                u", " + ToText(curve.skipped) +
                (curve.skipped == 1 ? u" row skipped (line " : u" rows skipped (the first in line ") +
                ToText(curve.firstSkippedLine) + u")";
        }
        text += u"\n";
    }
    if (plan.rowNumbers)
        text += u"  the first column holds no numbers or dates: rows are numbered instead\n";
    if (plan.endsInsideQuotes)
        text += u"  warning: the last quoted cell is never closed\n";
    return text;
}

} // namespace Viewer
