#pragma once
// The texts and sizes of an axis's labels as the screen shows them, kept while the font and the
// format stay: a frame asks for the same few several times, and so does the next one. Making a text
// and selecting the font for its size cost more than looking here.

#include "framework/windowing/Geometry.h"
#include "framework/windowing/Strings.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <windows.h>

struct TAxisLabel {
    double fValue = 0;
    CString cText;
    std::wstring strShape; // the text with zeros for digits
    CSize size;            // unscaled, in pixels
};

class CKeptLabels
{
public:
    using Label = std::shared_ptr<const TAxisLabel>;

    // Forgets all labels unless they were made by this font and format.
    void Follow(const LOGFONTW& look, const CString& strFormat, bool bDateTime);

    // The label of the value, to the bit; null where there is none.
    [[nodiscard]] Label Find(double fValue) const noexcept;
    // Keeps a label; of very many, the oldest makes room. Those of great length aren't kept.
    void Keep(const Label& label);

private:
    LOGFONTW m_look = {};
    CString m_strFormat;
    bool m_bDateTime = false;
    std::vector<Label> m_labels;
    std::size_t m_nOldest = 0;
};

// The size of an axis's title likewise.
class CKeptTitle
{
public:
    [[nodiscard]] const CSize* Find(const LOGFONTW& look, const CString& cText) const noexcept;
    void Keep(const LOGFONTW& look, const CString& cText, CSize size);

private:
    LOGFONTW m_look = {};
    CString m_cText;
    CSize m_size;
    bool m_bKnown = false;
};
