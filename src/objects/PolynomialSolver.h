#pragma once
// The last polynomial fit of a curve: number of terms and coefficients.

class CPolynomialSolver
{
public:
    static constexpr int kMaxTerms = 21;

    virtual ~CPolynomialSolver() = default;

    int m_nDegree = 0;                // number of terms, the constant included
    double m_fCoeffs[kMaxTerms] = {}; // of x^i at index i
};
