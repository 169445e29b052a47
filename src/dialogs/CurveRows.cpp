#include "dialogs/CurveRows.h"

#include "draw/DCEx.h"
#include "draw/Selectors.h"

namespace
{

constexpr int Height = 16;
constexpr int LineStyleWidth = 100;
constexpr int SymbolSize = 10;

// The row's context as a canvas; afterwards it is the platform's again, as it was.
class CRowCanvas
{
public:
    explicit CRowCanvas(const DRAWITEMSTRUCT& item) : m_nSaved(::SaveDC(item.hDC))
    {
        m_dc.Attach(item.hDC);
        const bool bSelected = (item.itemState & ODS_SELECTED) != 0;
        m_dc.FillSolidRect(&item.rcItem, ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    }
    CRowCanvas(const CRowCanvas&) = delete;
    CRowCanvas& operator=(const CRowCanvas&) = delete;
    ~CRowCanvas() { ::RestoreDC(m_dc.Detach(), m_nSaved); }

    [[nodiscard]] CDCEx* Get() noexcept { return &m_dc; }

private:
    int m_nSaved;
    CDCEx m_dc;
};

} // namespace

void CurveRows::MeasureLineStyle(MEASUREITEMSTRUCT& item)
{
    item.itemHeight = Height;
    item.itemWidth = LineStyleWidth;
}

void CurveRows::MeasureSymbol(MEASUREITEMSTRUCT& item)
{
    item.itemHeight = Height;
    item.itemWidth = Height;
}

void CurveRows::DrawLineStyle(const DRAWITEMSTRUCT& item)
{
    if (item.itemID >= LineStyles)
        return;
    CRowCanvas canvas(item);
    const CPenSelector selectPen(0, 1, canvas.Get(), static_cast<int>(item.itemID));
    canvas.Get()->MoveTo(item.rcItem.left, item.rcItem.top + 6);
    canvas.Get()->LineTo(item.rcItem.right, item.rcItem.top + 6);
}

void CurveRows::DrawSymbol(const DRAWITEMSTRUCT& item, const MarkerPainter (&painters)[Symbols])
{
    if (item.itemID >= Symbols)
        return;
    CRowCanvas canvas(item);
    const bool bDisabled = (item.itemState & ODS_DISABLED) != 0;
    painters[item.itemID](CPoint(item.rcItem.left + 2, item.rcItem.top + 2), SymbolSize,
                          bDisabled ? ::GetSysColor(COLOR_INACTIVEBORDER) : 0, false, canvas.Get());
}
