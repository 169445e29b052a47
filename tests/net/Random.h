#pragma once
// Random numbers that are the same on every machine for one seed.

#include <cstdint>
#include <random>

class Random
{
public:
    Random(std::uint64_t seed, std::uint64_t series) : m_engine(seed * 0x9E3779B97F4A7C15u + series) {}

    // From nFrom to nTo, both included.
    int Int(int nFrom, int nTo)
    {
        const auto count = static_cast<std::uint64_t>(static_cast<std::int64_t>(nTo) - nFrom + 1);
        return static_cast<int>(nFrom + static_cast<std::int64_t>(m_engine() % count));
    }
    bool OneIn(int n) { return Int(1, n) == 1; }
    // From 0 up to 1.
    double Part() { return static_cast<double>(m_engine() >> 11) * 0x1p-53; }
    double Real(double from, double to) { return from + (to - from) * Part(); }
    unsigned long Color() { return static_cast<unsigned long>(m_engine() & 0xFFFFFF); }
    template <class Value, std::size_t nCount> const Value& Of(const Value (&values)[nCount])
    {
        return values[Int(0, static_cast<int>(nCount) - 1)];
    }

private:
    std::mt19937_64 m_engine;
};
