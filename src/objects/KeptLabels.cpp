#include "objects/KeptLabels.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace
{

constexpr std::size_t MostLabels = 128;
constexpr int LongestText = 64;

bool IsSame(const LOGFONTW& one, const LOGFONTW& other) noexcept
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

} // namespace

void CKeptLabels::Follow(const LOGFONTW& look, const CString& strFormat, bool bDateTime)
{
    if (bDateTime == m_bDateTime && IsSame(look, m_look) && strFormat.View() == m_strFormat.View())
        return;
    m_labels.clear();
    m_nOldest = 0;
    m_look = look;
    m_strFormat = strFormat;
    m_bDateTime = bDateTime;
}

CKeptLabels::Label CKeptLabels::Find(double fValue) const noexcept
{
    // By the bits: a zero has two signs and so two texts, and what is no number is found too.
    const auto bits = std::bit_cast<std::uint64_t>(fValue);
    const auto found = std::find_if(m_labels.begin(), m_labels.end(), [bits](const Label& label) {
        return std::bit_cast<std::uint64_t>(label->fValue) == bits;
    });
    return found == m_labels.end() ? nullptr : *found;
}

void CKeptLabels::Keep(const Label& label)
{
    if (label->cText.GetLength() > LongestText)
        return;
    if (m_labels.size() < MostLabels) {
        m_labels.push_back(label);
        return;
    }
    m_labels[m_nOldest] = label;
    m_nOldest = (m_nOldest + 1) % MostLabels;
}

const CSize* CKeptTitle::Find(const LOGFONTW& look, const CString& cText) const noexcept
{
    return m_bKnown && IsSame(look, m_look) && cText.View() == m_cText.View() ? &m_size : nullptr;
}

void CKeptTitle::Keep(const LOGFONTW& look, const CString& cText, CSize size)
{
    m_look = look;
    m_cText = cText;
    m_size = size;
    m_bKnown = true;
}
