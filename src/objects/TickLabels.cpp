#include "objects/TickLabels.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace
{

constexpr std::size_t MostShapes = 16;
constexpr std::size_t LargestPile = 256;

bool IsDigit(wchar_t unit) noexcept
{
    return unit >= L'0' && unit <= L'9';
}

std::wstring ShapeOf(const CString& cText)
{
    std::wstring shape(cText.View());
    std::replace_if(shape.begin(), shape.end(), IsDigit, L'0');
    return shape;
}

// Whether the text is drawn as one line of as many glyphs as it has units: no prefix, no break.
bool IsPlain(const std::wstring& text) noexcept
{
    return std::all_of(text.begin(), text.end(),
                       [](wchar_t unit) { return unit >= L' ' && unit != L'&'; });
}

// Whether all digits of the selected font are equally wide.
bool AreDigitsAlike(HDC hDC) noexcept
{
    INT widths[10] = {};
    return ::GetCharWidth32(hDC, L'0', L'9', widths) &&
           std::all_of(std::begin(widths), std::end(widths),
                       [&](INT width) { return width == widths[0]; });
}

// Whether no digit of the selected font reaches beyond its cell. Known of outline fonts alone.
bool AreDigitsInside(HDC hDC) noexcept
{
    ABC widths[10] = {};
    return ::GetCharABCWidths(hDC, L'0', L'9', widths) &&
           std::all_of(std::begin(widths), std::end(widths),
                       [](const ABC& width) { return width.abcA >= 0 && width.abcC >= 0; });
}

// Of glyphs that another font has to lend, too.
double LargestGlyph(HDC hDC) noexcept
{
    TEXTMETRIC metric{};
    ::GetTextMetrics(hDC, &metric);
    return 4.0 * std::max(metric.tmHeight, metric.tmMaxCharWidth);
}

} // namespace

CTickLabels::Made CTickLabels::Make(CString cText, double fValue)
{
    auto made = std::make_shared<TAxisLabel>();
    made->fValue = fValue;
    made->strShape = ShapeOf(cText);
    made->cText = std::move(cText);
    return made;
}

CTickLabels::CTickLabels(CXGraphAxis& axis, CDCEx* pDC, UINT nFormat, std::vector<TLabel>& pile,
                         std::vector<TShape>& shapes)
    : m_axis(axis), m_pDC(pDC), m_nFormat(nFormat), m_font(&axis.m_LabelFont, pDC, true, true),
      m_kept(axis.KeptLabels(pDC)), m_visible(pDC->Visible()), m_shapes(shapes), m_pile(pile)
{
}

bool CTickLabels::MayShow(CPoint place)
{
    if (m_visible.Meets(place, 0))
        return true;
    if (!m_fReach) {
        m_pDC->SelectWantedFont();
        m_fReach = CXGraphAxis::LongestLabel * LargestGlyph(*m_pDC);
    }
    return m_visible.Meets(place, *m_fReach);
}

bool CTickLabels::IsUpright()
{
    if (!m_bUpright) {
        LOGFONTW look = {};
        m_bUpright = m_axis.m_LabelFont.GetLogFont(&look) != 0 && look.lfEscapement == 0 &&
                     look.lfOrientation == 0;
    }
    return *m_bUpright;
}

bool CTickLabels::HasDigitsAlike()
{
    if (!m_bDigitsAlike) {
        const CFontSelector measuring(&m_axis.m_LabelFont, m_pDC, false, true);
        m_pDC->SelectWantedFont();
        m_bDigitsAlike = AreDigitsAlike(*m_pDC);
    }
    return *m_bDigitsAlike;
}

bool CTickLabels::HasDigitsInside()
{
    if (!m_bDigitsInside) {
        m_pDC->SelectWantedFont();
        m_bDigitsInside = AreDigitsAlike(*m_pDC) && AreDigitsInside(*m_pDC);
    }
    return *m_bDigitsInside;
}

void CTickLabels::Pile(double fValue, const Place& place)
{
    if (!MayShow(place(CSize()).TopLeft()))
        return;
    TLabel label;
    label.label = LabelOf(fValue);
    label.rect = place(label.label->size);
    // The line under a letter may lie below the rectangle.
    if (!m_visible.Meets(label.rect, label.label->size.cy))
        return;
    while (!m_pile.empty() && Covers(label, m_pile.back()))
        m_pile.pop_back();
    if (m_pile.size() == LargestPile)
        Draw();
    m_pile.push_back(std::move(label));
}

CKeptLabels::Label CTickLabels::LabelOf(double fValue)
{
    if (CKeptLabels::Label known = m_kept ? m_kept->Find(fValue) : nullptr)
        return known;
    if (!m_cFormat)
        m_cFormat = m_axis.LabelFormat();
    const Made made = Make(m_axis.LabelText(*m_cFormat, fValue), fValue);
    const std::optional<CSize> size = Measure(made->cText, made->strShape);
    made->size = size.value_or(CSize());
    if (m_kept && size)
        m_kept->Keep(made);
    return made;
}

void CTickLabels::Draw()
{
    for (TLabel& label : m_pile)
        m_pDC->DrawText(label.label->cText, &label.rect, m_nFormat);
    m_pile.clear();
}

std::optional<CSize> CTickLabels::Measure(const CString& cText, const std::wstring& strShape)
{
    const auto known = std::find_if(m_shapes.begin(), m_shapes.end(),
                                    [&](const TShape& shape) { return shape.strShape == strShape; });
    if (known != m_shapes.end() && HasDigitsAlike())
        return known->size;
    std::optional<CFontSelector> measuring;
    if (m_pDC->m_bScaling)
        measuring.emplace(&m_axis.m_LabelFont, m_pDC, false, true);
    const std::optional<CSize> size = m_pDC->MeasureText(cText);
    if (known == m_shapes.end() && size) {
        if (m_shapes.size() == MostShapes)
            m_shapes.erase(m_shapes.begin());
        m_shapes.push_back({strShape, *size});
    }
    return size;
}

// Text is drawn opaque and clipped to its rectangle, so one that fills its rectangle hides what
// is under it; and one of the same shape at the same place has the same outline.
bool CTickLabels::Covers(const TLabel& later, const TLabel& earlier)
{
    if (!IsUpright())
        return false;
    const std::wstring& strLater = later.label->strShape;
    const std::wstring& strEarlier = earlier.label->strShape;
    if (later.rect == earlier.rect && strLater == strEarlier && HasDigitsInside())
        return true;
    const CSize size = later.label->size;
    return !m_pDC->m_bScaling && IsPlain(strLater) && IsPlain(strEarlier) &&
           later.rect.Width() <= size.cx && later.rect.Height() <= size.cy &&
           later.rect.left <= earlier.rect.left && later.rect.top <= earlier.rect.top &&
           later.rect.right >= earlier.rect.right && later.rect.bottom >= earlier.rect.bottom;
}
