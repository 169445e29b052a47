#include "framework/windowing/Strings.h"

#include <algorithm>
#include <cwctype>
#include <vector>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ModuleState.h"

namespace
{

std::wstring_view ViewOf(LPCWSTR text) noexcept
{
    return text ? std::wstring_view(text) : std::wstring_view();
}

int PositionOf(size_t found) noexcept
{
    return found == std::wstring_view::npos ? -1 : static_cast<int>(found);
}

} // namespace

CString::CString(LPCWSTR text, int length)
{
    if (text && length > 0)
        m_text.assign(text, static_cast<size_t>(length));
}

CString& CString::operator=(LPCWSTR text)
{
    m_text = ViewOf(text);
    return *this;
}

LPWSTR CString::GetBuffer(int minLength)
{
    if (minLength > GetLength())
        m_text.resize(static_cast<size_t>(minLength));
    return m_text.data();
}

void CString::ReleaseBuffer(int newLength)
{
    const size_t length = newLength < 0 ? std::wcslen(m_text.c_str()) : static_cast<size_t>(newLength);
    m_text.resize(std::min(length, m_text.size()));
}

CString& CString::operator+=(const CString& text)
{
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(LPCWSTR text)
{
    m_text += ViewOf(text);
    return *this;
}

CString& CString::operator+=(WCHAR unit)
{
    m_text += unit;
    return *this;
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const auto start = static_cast<size_t>(std::clamp(first, 0, GetLength()));
    return CString(View().substr(start, static_cast<size_t>(std::max(count, 0))));
}

int CString::Find(LPCWSTR part, int start) const noexcept
{
    if (!part || start < 0 || start > GetLength())
        return -1;
    return PositionOf(m_text.find(part, static_cast<size_t>(start)));
}

int CString::Find(WCHAR unit, int start) const noexcept
{
    return start < 0 ? -1 : PositionOf(m_text.find(unit, static_cast<size_t>(start)));
}

int CString::ReverseFind(WCHAR unit) const noexcept
{
    return PositionOf(m_text.rfind(unit));
}

int CString::Replace(LPCWSTR oldPart, LPCWSTR newPart)
{
    const std::wstring_view oldView = ViewOf(oldPart);
    if (oldView.empty())
        return 0;
    const std::wstring_view newView = ViewOf(newPart);
    std::wstring result;
    int count = 0;
    size_t done = 0;
    for (size_t at; (at = m_text.find(oldView, done)) != std::wstring::npos; ++count) {
        result.append(m_text, done, at - done).append(newView);
        done = at + oldView.size();
    }
    if (count)
        m_text = result.append(m_text, done);
    return count;
}

int CString::Replace(WCHAR oldUnit, WCHAR newUnit)
{
    const auto count = std::count(m_text.begin(), m_text.end(), oldUnit);
    std::replace(m_text.begin(), m_text.end(), oldUnit, newUnit);
    return static_cast<int>(count);
}

CString& CString::MakeUpper()
{
    ::CharUpperBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

int CString::Compare(LPCWSTR other) const noexcept
{
    return View().compare(ViewOf(other));
}

BOOL CString::LoadString(UINT id)
{
    // With a length of 0 the result is a pointer into the resource itself, unterminated.
    LPCWSTR text = nullptr;
    const int length = ::LoadStringW(AfxGetResourceHandle(), id, reinterpret_cast<LPWSTR>(&text), 0);
    *this = CString(text, length);
    return length > 0;
}

std::wstring CString::Formatted(LPCWSTR format, std::initializer_list<TArgument> args)
{
    const std::u16string text =
        NumberFormat::FormatText(CString(format).ToU16(), {args.begin(), args.size()});
    return {text.begin(), text.end()};
}

CString operator+(const CString& left, const CString& right)
{
    CString result(left);
    return result += right;
}

CString operator+(const CString& left, LPCWSTR right)
{
    CString result(left);
    return result += right;
}

CString operator+(LPCWSTR left, const CString& right)
{
    CString result(left);
    return result += right;
}

CString operator+(const CString& left, WCHAR right)
{
    CString result(left);
    return result += right;
}

CString AfxFormatNumber(const CString& format, double value)
{
    return CString(std::u16string_view(NumberFormat::FormatNumber(format.ToU16(), value)));
}
