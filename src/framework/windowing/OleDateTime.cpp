#include "framework/windowing/OleDateTime.h"

COleDateTime::COleDateTime(__time64_t timeSrc)
{
    tm local{};
    if (::_localtime64_s(&local, &timeSrc) != 0) {
        m_status = invalid;
        return;
    }
    *this = COleDateTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                         local.tm_min, local.tm_sec);
}

COleDateTime::COleDateTime(const SYSTEMTIME& systimeSrc) noexcept
{
    Set(systimeSrc);
}

COleDateTime::COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) noexcept
{
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(nYear);
    time.wMonth = static_cast<WORD>(nMonth);
    time.wDay = static_cast<WORD>(nDay);
    time.wHour = static_cast<WORD>(nHour);
    time.wMinute = static_cast<WORD>(nMin);
    time.wSecond = static_cast<WORD>(nSec);
    Set(time);
}

void COleDateTime::Set(SYSTEMTIME time) noexcept
{
    time.wMilliseconds = 0;
    // The platform takes a day past the end of a month as one of the next month.
    SYSTEMTIME back{};
    const bool known = ::SystemTimeToVariantTime(&time, &m_dt) &&
                       ::VariantTimeToSystemTime(m_dt, &back) && back.wDay == time.wDay &&
                       back.wMonth == time.wMonth;
    m_status = known ? valid : invalid;
    if (!known)
        m_dt = 0.0;
}

BOOL COleDateTime::GetAsSystemTime(SYSTEMTIME& sysTime) const noexcept
{
    SYSTEMTIME time{};
    if (m_status != valid || !::VariantTimeToSystemTime(m_dt, &time))
        return FALSE;
    sysTime = time;
    return TRUE;
}

int COleDateTime::Field(WORD SYSTEMTIME::*field) const noexcept
{
    SYSTEMTIME time{};
    return GetAsSystemTime(time) ? time.*field : static_cast<int>(error);
}

int COleDateTime::GetYear() const noexcept
{
    return Field(&SYSTEMTIME::wYear);
}

int COleDateTime::GetMonth() const noexcept
{
    return Field(&SYSTEMTIME::wMonth);
}

int COleDateTime::GetDay() const noexcept
{
    return Field(&SYSTEMTIME::wDay);
}

int COleDateTime::GetHour() const noexcept
{
    return Field(&SYSTEMTIME::wHour);
}

int COleDateTime::GetMinute() const noexcept
{
    return Field(&SYSTEMTIME::wMinute);
}

int COleDateTime::GetSecond() const noexcept
{
    return Field(&SYSTEMTIME::wSecond);
}
