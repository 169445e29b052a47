// What code calls that was compiled with -fsanitize=undefined, where its next step has no defined
// result: prints "undefined: FILE:LINE:COLUMN: what" and the operands in hexadecimal, each place once,
// and lets the step happen. This compiler has no library of its own for that.

#include <windows.h>

#include <cstdint>
#include <cstdio>

namespace
{
// The compiler's data about a check begin with this.
struct TPlace {
    const char* pFile;
    std::uint32_t nLine;
    std::uint32_t nColumn;
};
constexpr std::uint32_t Reported = ~std::uint32_t{0}; // as a column

void Report(TPlace* pPlace, const char* pWhat, std::uintptr_t first = 0, std::uintptr_t second = 0)
{
    const std::uint32_t column = pPlace->nColumn;
    if (column == Reported)
        return;
    pPlace->nColumn = Reported;
    char text[600];
    const int length = std::snprintf(
        text, sizeof(text), "undefined: %.400s:%u:%u: %s, %llx, %llx\n", pPlace->pFile, pPlace->nLine,
        column, pWhat, static_cast<unsigned long long>(first), static_cast<unsigned long long>(second));
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), text, static_cast<DWORD>(length), &written, nullptr);
}
} // namespace

extern "C" {
void __ubsan_handle_add_overflow(TPlace* pPlace, std::uintptr_t a, std::uintptr_t b)
{
    Report(pPlace, "sum", a, b);
}
void __ubsan_handle_sub_overflow(TPlace* pPlace, std::uintptr_t a, std::uintptr_t b)
{
    Report(pPlace, "difference", a, b);
}
void __ubsan_handle_mul_overflow(TPlace* pPlace, std::uintptr_t a, std::uintptr_t b)
{
    Report(pPlace, "product", a, b);
}
void __ubsan_handle_negate_overflow(TPlace* pPlace, std::uintptr_t value)
{
    Report(pPlace, "negation", value);
}
void __ubsan_handle_divrem_overflow(TPlace* pPlace, std::uintptr_t a, std::uintptr_t b)
{
    Report(pPlace, "division", a, b);
}
void __ubsan_handle_shift_out_of_bounds(TPlace* pPlace, std::uintptr_t value, std::uintptr_t by)
{
    Report(pPlace, "shift", value, by);
}
void __ubsan_handle_float_cast_overflow(TPlace* pPlace, std::uintptr_t value)
{
    Report(pPlace, "conversion to an integer", value);
}
void __ubsan_handle_out_of_bounds(TPlace* pPlace, std::uintptr_t index)
{
    Report(pPlace, "index", index);
}
void __ubsan_handle_pointer_overflow(TPlace* pPlace, std::uintptr_t before, std::uintptr_t after)
{
    Report(pPlace, "pointer moved", before, after);
}
void __ubsan_handle_type_mismatch_v1(TPlace* pPlace, std::uintptr_t pointer)
{
    Report(pPlace, "pointer null, unaligned or to something smaller", pointer);
}
void __ubsan_handle_load_invalid_value(TPlace* pPlace, std::uintptr_t value)
{
    Report(pPlace, "value that its type doesn't have", value);
}
void __ubsan_handle_invalid_builtin(TPlace* pPlace)
{
    Report(pPlace, "count of the zeros of 0");
}
void __ubsan_handle_vla_bound_not_positive(TPlace* pPlace, std::uintptr_t bound)
{
    Report(pPlace, "size of an array", bound);
}
void __ubsan_handle_nonnull_arg(TPlace* pPlace)
{
    Report(pPlace, "null argument");
}
void __ubsan_handle_nonnull_return_v1(void* /*pData*/, TPlace* pPlace)
{
    Report(pPlace, "null result");
}
[[noreturn]] void __ubsan_handle_builtin_unreachable(TPlace* pPlace)
{
    Report(pPlace, "reached");
    __builtin_trap();
}
[[noreturn]] void __ubsan_handle_missing_return(TPlace* pPlace)
{
    Report(pPlace, "no result");
    __builtin_trap();
}
}
