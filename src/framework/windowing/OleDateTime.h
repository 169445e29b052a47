#pragma once
// COleDateTime: a date and time of day in the OLE form, days since 1899-12-30 as a double.

#include <ctime>

#include <windows.h>

#include <oleauto.h>

class COleDateTime
{
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    COleDateTime() noexcept = default;
    COleDateTime(DATE dtSrc) noexcept : m_dt(dtSrc) {}
    // Local time.
    explicit COleDateTime(__time64_t timeSrc);
    explicit COleDateTime(const SYSTEMTIME& systimeSrc) noexcept;
    // Month and day count from 1. Invalid if there is no such date or time of day.
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) noexcept;

    operator DATE() const noexcept { return m_dt; }
    void SetStatus(DateTimeStatus status) noexcept { m_status = status; }
    // FALSE, with nothing written, unless valid and a date that the platform knows.
    [[nodiscard]] BOOL GetAsSystemTime(SYSTEMTIME& sysTime) const noexcept;
    // These are `error` where there is no valid date.
    [[nodiscard]] int GetYear() const noexcept;
    [[nodiscard]] int GetMonth() const noexcept;
    [[nodiscard]] int GetDay() const noexcept;
    [[nodiscard]] int GetHour() const noexcept;
    [[nodiscard]] int GetMinute() const noexcept;
    [[nodiscard]] int GetSecond() const noexcept;

    DATE m_dt = 0.0;
    DateTimeStatus m_status = valid;

private:
    void Set(SYSTEMTIME time) noexcept;
    [[nodiscard]] int Field(WORD SYSTEMTIME::*field) const noexcept;
};
