#pragma once
// The labels of an axis's ticks on their way to the canvas: made one at a time, and only where
// they can be seen. Of labels on one pixel those go that a later one covers wholly, so that a
// hundred thousand ticks on a few hundred pixels cost no more than can be seen of them.

#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "draw/VisibleArea.h"
#include "objects/KeptLabels.h"
#include "objects/XGraphAxis.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class CTickLabels
{
public:
    // Returns the rectangle, in screen units, of a label of a size.
    using Place = std::function<CRect(CSize)>;

    // Texts that differ in their digits alone have one shape: the text with zeros for digits.
    struct TShape {
        std::wstring strShape;
        CSize size;
    };
    struct TLabel {
        CKeptLabels::Label label;
        CRect rect;
    };

    // A label with its text, its size still to be measured.
    using Made = std::shared_ptr<TAxisLabel>;
    [[nodiscard]] static Made Make(CString cText, double fValue);

    // The axis's label font is selected, scaled, as long as this lives. The lists are empty.
    CTickLabels(CXGraphAxis& axis, CDCEx* pDC, UINT nFormat, std::vector<TLabel>& pile,
                std::vector<TShape>& shapes);

    // Adds the label of a value to those of the present pixel.
    void Pile(double fValue, const Place& place);
    // Draws the labels of the present pixel; the next one begins a new pixel.
    void Draw();

private:
    [[nodiscard]] bool MayShow(CPoint place);
    [[nodiscard]] CKeptLabels::Label LabelOf(double fValue);
    [[nodiscard]] std::optional<CSize> Measure(const CString& cText, const std::wstring& strShape);
    [[nodiscard]] bool Covers(const TLabel& later, const TLabel& earlier);
    [[nodiscard]] bool IsUpright();
    [[nodiscard]] bool HasDigitsAlike();
    [[nodiscard]] bool HasDigitsInside();

    CXGraphAxis& m_axis;
    CDCEx* m_pDC;
    UINT m_nFormat;
    CFontSelector m_font;
    CKeptLabels* m_kept;    // the axis's own, if the canvas is one to keep them for
    TVisibleArea m_visible; // in screen units
    // Made or asked of the platform when first needed, which in most frames is never.
    std::optional<CString> m_cFormat;    // m_cDisplayFmt, as far as it can show
    std::optional<double> m_fReach;      // farther than any label extends from its place
    std::optional<bool> m_bUpright;      // text runs from left to right
    std::optional<bool> m_bDigitsAlike;  // all digits are equally wide, for measuring
    std::optional<bool> m_bDigitsInside; // and, as drawn, none of them leaves its cell
    std::vector<TShape>& m_shapes;
    std::vector<TLabel>& m_pile;
};
