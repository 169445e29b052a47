#pragma once
// The fonts that the frames of one window draw with, made once and kept from frame to frame.

#include "draw/QuickFont.h"
#include "draw/Selectors.h"

#include <array>
#include <optional>

class CKeptFonts
{
public:
    // Between two frames: many different fonts make room for those of the next frame.
    void StartFrame() noexcept;
    // Arial of the height and weight, made at first use. Null where there is no room left.
    [[nodiscard]] CFont* Find(int nHeight, int nWeight);

private:
    struct TEntry {
        TEntry(int nHeight, int nWeight);

        int nHeight;
        int nWeight;
        CQuickFont font;
    };
    std::array<std::optional<TEntry>, 8> m_entries;
};

// Arial of a height and weight, selected as by a CFontSelector: the font that the canvas keeps, or
// else one for the selector's own lifetime.
class CArialSelector
{
public:
    CArialSelector(int nHeight, int nWeight, CDCEx* pDC, bool bScale);
    // False where the platform made no font: texts have the one that was selected before.
    [[nodiscard]] bool IsMade() const noexcept { return m_bMade; }

private:
    std::optional<CQuickFont> m_own;
    std::optional<CFontSelector> m_selected;
    bool m_bMade = false;
};
