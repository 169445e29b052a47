#pragma once
// Least-squares fit of a polynomial by its normal equations, and the coefficients of the
// last fit. A curve keeps one, so that the formula can be written beside the trend.

#include "base/Vocabulary.h"

#include <array>
#include <span>

class CPolynomialSolver
{
public:
    // More terms than this have no place for their coefficients.
    static constexpr int MaxTerms = 21;

    // Row-major square of MaxTerms by MaxTerms; a system of n unknowns uses its first n rows and
    // columns.
    using Matrix = std::array<std::array<double, MaxTerms>, MaxTerms>;
    using Vector = std::array<double, MaxTerms>;

    virtual ~CPolynomialSolver() = default;

    // Fits sum over c < nDegree of m_fCoeffs[c] * x^c to the first nCount points, by the true x
    // values: N a = b with N = A^T A, b = A^T y, A[r][c] = x_r^c. Each power is the former one
    // times x, and every sum runs in the order of the points.
    // False if N is singular or nDegree exceeds MaxTerms. m_fCoeffs takes what the elimination left
    // in either case but the latter, which changes nothing. m_nDegree is the caller's to set.
    [[nodiscard]] bool Solve(int nCount, int nDegree, const TDataPoint* pData) noexcept;

    // Solves matrix * x = right in place by Gauss-Jordan elimination with partial pivoting; the
    // solution replaces right. False, with both left half-way, if a column has no pivot above 0.
    // True for n < 1. Requires n <= MaxTerms.
    [[nodiscard]] static bool GaussJordan(Matrix& matrix, Vector& right, int n) noexcept;

    // Sum over i < m_nDegree of x^i * m_fCoeffs[i]; 0 for m_nDegree < 1.
    [[nodiscard]] double Evaluate(double x) const noexcept;

    int m_nDegree = 0;                        // number of terms, the constant included
    std::array<double, MaxTerms> m_fCoeffs{}; // coefficient of x^i at index i
};

namespace Powers
{
// base^exponent by repeated squaring; 1 for exponent 0. Requires exponent >= 0.
[[nodiscard]] constexpr double Integer(double base, int exponent) noexcept
{
    double result = 1.0;
    for (int rest = exponent; rest > 0; rest >>= 1) {
        if ((rest & 1) != 0)
            result *= base;
        base *= base;
    }
    return result;
}
} // namespace Powers
