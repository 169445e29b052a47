#pragma once
// CString: text of UTF-16 units with the documented operations. A null pointer makes an
// empty text everywhere. Positions outside the text are moved to its ends.

#include <initializer_list>
#include <string>
#include <string_view>

#include <windows.h>

#include <oleauto.h>

#include "base/NumberFormat.h"

class CString
{
public:
    CString() noexcept = default;
    CString(LPCWSTR text) : m_text(text ? text : L"") {}
    CString(LPCWSTR text, int length);
    explicit CString(std::wstring_view text) : m_text(text) {}
    explicit CString(std::u16string_view text) : m_text(text.begin(), text.end()) {}

    CString& operator=(LPCWSTR text);

    [[nodiscard]] int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_text.empty(); }
    [[nodiscard]] LPCWSTR GetString() const noexcept { return m_text.c_str(); }
    operator LPCWSTR() const noexcept { return m_text.c_str(); }
    [[nodiscard]] std::wstring_view View() const noexcept { return m_text; }
    // The same units for the arithmetic files, whose text is char16_t.
    [[nodiscard]] std::u16string ToU16() const { return {m_text.begin(), m_text.end()}; }

    // A buffer of at least minLength units and a terminator, good until ReleaseBuffer;
    // -1 takes the length up to the terminator.
    [[nodiscard]] LPWSTR GetBuffer(int minLength = 0);
    void ReleaseBuffer(int newLength = -1);

    CString& operator+=(const CString& text);
    CString& operator+=(LPCWSTR text);
    CString& operator+=(WCHAR unit);

    [[nodiscard]] CString Left(int count) const;
    [[nodiscard]] CString Right(int count) const;
    [[nodiscard]] CString Mid(int first) const;
    [[nodiscard]] CString Mid(int first, int count) const;

    // First position at or after start, or -1.
    [[nodiscard]] int Find(LPCWSTR part, int start = 0) const noexcept;
    [[nodiscard]] int Find(WCHAR unit, int start = 0) const noexcept;
    [[nodiscard]] int ReverseFind(WCHAR unit) const noexcept;
    // Replaces every occurrence; the result is their number.
    int Replace(LPCWSTR oldPart, LPCWSTR newPart);
    int Replace(WCHAR oldUnit, WCHAR newUnit);
    CString& MakeUpper();

    [[nodiscard]] int Compare(LPCWSTR other) const noexcept;

    // Formats of our own: items of printf with integer, floating and text arguments in order.
    // Each item takes the next argument of its kind; an item without one stays as it is, so
    // no format can read what was not given.
    template <class... Args> void Format(LPCWSTR format, const Args&... args)
    {
        m_text = Formatted(format, {Argument(args)...});
    }
    // Takes a string of the current resource module; false, and empty, if there is none.
    BOOL LoadString(UINT id);

private:
    using TArgument = NumberFormat::TArgument;
    static TArgument Argument(const CString& text) { return TArgument(text.ToU16()); }
    static TArgument Argument(LPCWSTR text) { return Argument(CString(text)); }
    static TArgument Argument(double value) noexcept { return TArgument(value); }
    template <class Integer>
    requires std::is_integral_v<Integer>
    static TArgument Argument(Integer value) noexcept
    {
        return TArgument(static_cast<std::int64_t>(value), sizeof(Integer));
    }
    static std::wstring Formatted(LPCWSTR format, std::initializer_list<TArgument> args);

    std::wstring m_text;
};

[[nodiscard]] CString operator+(const CString& left, const CString& right);
[[nodiscard]] CString operator+(const CString& left, LPCWSTR right);
[[nodiscard]] CString operator+(LPCWSTR left, const CString& right);
[[nodiscard]] CString operator+(const CString& left, WCHAR right);

[[nodiscard]] inline bool operator==(const CString& left, const CString& right) noexcept
{
    return left.View() == right.View();
}
[[nodiscard]] inline bool operator==(const CString& left, LPCWSTR right) noexcept
{
    return left.Compare(right) == 0;
}
[[nodiscard]] inline bool operator<(const CString& left, const CString& right) noexcept
{
    return left.View() < right.View();
}

// A number in a format that comes from outside; see base/NumberFormat.h.
[[nodiscard]] CString AfxFormatNumber(const CString& format, double value);
