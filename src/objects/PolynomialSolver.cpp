#include "objects/PolynomialSolver.h"

#include <algorithm>
#include <cmath>
#include <utility>

bool CPolynomialSolver::Solve(int nCount, int nDegree, const TDataPoint* pData) noexcept
{
    if (nDegree > MaxTerms)
        return false;

    // The powers of one point at a time add up to the very sums that the whole design matrix would
    // give, since each entry is summed in the order of the points; so the matrix is never stored.
    Matrix normal{};
    Vector right{};
    for (int point = 0; point < nCount; ++point) {
        Vector powers;
        powers[0] = 1.0;
        for (int c = 1; c < nDegree; ++c)
            powers[c] = powers[c - 1] * pData[point].fXVal;
        for (int i = 0; i < nDegree; ++i) {
            for (int j = 0; j <= i; ++j)
                normal[i][j] += powers[i] * powers[j];
            right[i] += pData[point].fYVal * powers[i];
        }
    }
    for (int i = 0; i < nDegree; ++i)
        for (int j = 0; j < i; ++j)
            normal[j][i] = normal[i][j];

    const bool solved = GaussJordan(normal, right, nDegree);
    std::copy_n(right.begin(), std::max(nDegree, 0), m_fCoeffs.begin());
    return solved;
}

namespace
{
// The row at or below k with the largest magnitude in column k, the first of equals; -1 for none.
int PivotRow(const CPolynomialSolver::Matrix& matrix, int k, int n) noexcept
{
    int row = -1;
    double largest = 0.0;
    for (int r = k; r < n; ++r) {
        if (std::fabs(matrix[r][k]) > largest) {
            largest = std::fabs(matrix[r][k]);
            row = r;
        }
    }
    return row;
}

void SubtractRow(CPolynomialSolver::Matrix& matrix, CPolynomialSolver::Vector& right, int r, int k,
                 int n) noexcept
{
    const double factor = matrix[r][k];
    for (int c = k; c < n; ++c)
        matrix[r][c] -= factor * matrix[k][c];
    right[r] -= factor * right[k];
}
} // namespace

bool CPolynomialSolver::GaussJordan(Matrix& matrix, Vector& right, int n) noexcept
{
    for (int k = 0; k < n; ++k) {
        const int row = PivotRow(matrix, k, n);
        if (row < 0)
            return false;
        if (row != k) {
            for (int c = k; c < n; ++c)
                std::swap(matrix[k][c], matrix[row][c]);
            std::swap(right[k], right[row]);
        }
        const double pivot = matrix[k][k];
        for (int c = k; c < n; ++c)
            matrix[k][c] /= pivot;
        right[k] /= pivot;
        for (int r = 0; r < n; ++r)
            if (r != k)
                SubtractRow(matrix, right, r, k, n);
    }
    return true;
}

double CPolynomialSolver::Evaluate(double x) const noexcept
{
    double sum = 0.0;
    for (int i = 0; i < m_nDegree && i < MaxTerms; ++i)
        sum += Powers::Integer(x, i) * m_fCoeffs[i];
    return sum;
}
