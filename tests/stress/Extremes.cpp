#include "Actor.h"

#include <climits>
#include <cmath>

int Extremes::Number(Random& random, int nFrom, int nTo)
{
    const int odd[] = {INT_MIN, INT_MAX, -1, 0, 1, 32767, -32768, 65535, 65536, 1 << 30};
    return random.OneIn(12) ? random.Of(odd) : random.Int(nFrom, nTo);
}

double Extremes::Value(Random& random)
{
    const double odd[] = {NAN, INFINITY, -INFINITY, 1e308, -1e308, 5e-324, 0.0, -0.0, 4294967296.0};
    return random.OneIn(10) ? random.Of(odd) : random.Real(-100, 100);
}

float Extremes::Angle(Random& random)
{
    return random.OneIn(10) ? static_cast<float>(Value(random))
                            : static_cast<float>(random.Real(-400, 400));
}

std::wstring Extremes::String(Random& random)
{
    const wchar_t* const texts[] = {
        L"",          L" ",        L"text", L"%s%n%d", L"%5.2f", L"two\r\nlines", L"\x7EBF\x5F62",
        L"%1000000d", L"%Y-%m-%d", L"\t\t", L"%"};
    if (random.OneIn(20))
        return std::wstring(static_cast<std::size_t>(random.Int(100, 9000)), L'w');
    return random.Of(texts);
}
