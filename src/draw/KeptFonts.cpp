#include "draw/KeptFonts.h"

#include "draw/DCEx.h"

namespace
{
constexpr LPCWSTR Face = L"Arial";
} // namespace

CKeptFonts::TEntry::TEntry(int nHeight, int nWeight)
    : nHeight(nHeight), nWeight(nWeight), font(Face, nHeight, nWeight)
{
}

void CKeptFonts::StartFrame() noexcept
{
    if (!m_entries.back())
        return;
    for (std::optional<TEntry>& entry : m_entries)
        entry.reset();
}

CFont* CKeptFonts::Find(int nHeight, int nWeight)
{
    for (std::optional<TEntry>& entry : m_entries) {
        if (!entry)
            entry.emplace(nHeight, nWeight);
        if (entry->nHeight != nHeight || entry->nWeight != nWeight)
            continue;
        if (!entry->font.m_hObject)
            entry.emplace(nHeight, nWeight); // the platform refused one; it may have room now
        return &entry->font;
    }
    return nullptr;
}

CArialSelector::CArialSelector(int nHeight, int nWeight, CDCEx* pDC, bool bScale)
{
    CKeptFonts* const pFonts = pDC->KeptFonts();
    CFont* const pKept = pFonts ? pFonts->Find(nHeight, nWeight) : nullptr;
    if (!pKept)
        m_own.emplace(Face, nHeight, nWeight);
    CFont* const pFont = pKept ? pKept : &*m_own;
    m_bMade = pFont->m_hObject != nullptr;
    m_selected.emplace(pFont, pDC, bScale, pKept != nullptr);
}
