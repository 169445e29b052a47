#pragma once
// The page of an axis, opened by a double click on the Y axis.

#include "dialogs/SheetHost.h"

#include <cmath>

class AxisPageHost : public SheetHost
{
protected:
    bool OpenAxis(std::vector<Step> steps) { return Open(OnYAxis(), std::move(steps)); }
    // Opens the page, does that on it, and presses Apply.
    void Apply(const std::function<void()>& changes)
    {
        OpenAxis({[&] {
            changes();
            Press(Id::apply);
            EXPECT_FALSE(Enabled(Id::apply));
        }});
    }
    template <class Value> Value Got(HRESULT (STDMETHODCALLTYPE ISGraphAxis::*get)(Value*))
    {
        Value value{};
        const auto axis = YAxis();
        (axis.Get()->*get)(&value);
        return value;
    }
    std::wstring Format()
    {
        Text text;
        YAxis()->GetDisplayFmt(text.Out());
        return text.Str();
    }
    // A plain range by the page, which then rests on it.
    void ShowRange(const wchar_t* min, const wchar_t* max)
    {
        Apply([&] {
            Enter(Id::min, min);
            Enter(Id::max, max);
        });
    }
    // The visible bounds, from the plot's rectangle of the last frame.
    void ExpectBounds(double min, double max)
    {
        const RECT inner = Inner();
        const double slack = (max - min) * 1e-9;
        EXPECT_NEAR(YAt(inner.bottom), min, slack);
        // The arrow's and the keys' room lies above the visible range.
        EXPECT_GE(YAt(inner.top), max - slack);
    }
    static std::vector<bool> States(const std::vector<int>& ids)
    {
        std::vector<bool> states;
        for (const int id : ids)
            states.push_back(Enabled(id));
        return states;
    }
    // Whether the controls of a group are open, the same for all of the group.
    static void ExpectStates(bool plain, bool date, bool decimals, bool format)
    {
        for (const int id : {Id::min, Id::max, Id::step})
            EXPECT_EQ(Enabled(id), plain) << id;
        for (const int id :
             {Id::minDate, Id::minTime, Id::maxDate, Id::maxTime, Id::timeStep, Id::timeUnit})
            EXPECT_EQ(Enabled(id), date) << id;
        for (const int id : {Id::decimals, Id::decimalsSpin, Id::placement})
            EXPECT_EQ(Enabled(id), decimals) << id;
        EXPECT_EQ(Enabled(Id::dateFormat), format);
    }
    static SYSTEMTIME TimeOf(int id)
    {
        SYSTEMTIME time = {};
        ::SendMessageW(Item(id), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
        return time;
    }
    // As a user's choice in the picker, which then notifies the page.
    static void SetTime(int id, SYSTEMTIME time)
    {
        ::SendMessageW(Item(id), DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
        NMDATETIMECHANGE told = {};
        told.nmhdr = {Item(id), static_cast<UINT_PTR>(id), DTN_DATETIMECHANGE};
        told.dwFlags = GDT_VALID;
        told.st = time;
        ::SendMessageW(Shown(), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&told));
    }
    // Turns the axis into one of dates with that step, by the page.
    void ShowDates(const wchar_t* step, int unit)
    {
        Apply([&] {
            if (!Checked(Id::dateTime))
                Press(Id::dateTime);
            SetTime(Id::minDate, {2020, 3, 0, 1, 0, 0, 0, 0});
            SetTime(Id::minTime, {2020, 3, 0, 1, 6, 30, 15, 0});
            SetTime(Id::maxDate, {2020, 3, 0, 2, 0, 0, 0, 0});
            SetTime(Id::maxTime, {2020, 3, 0, 2, 18, 0, 45, 0});
            Choose(Id::timeUnit, unit);
            Enter(Id::timeStep, step);
        });
    }
};
