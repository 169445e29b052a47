#include "viewer/PieView.h"

#include "viewer/FontChoice.h"
#include "viewer/Palette.h"
#include "viewer/StatusText.h"

namespace Viewer
{
namespace
{

int NumberOf(PieStyle style) noexcept
{
    switch (style) {
    case PieStyle::Doughnut:
        return VPX_PIE_DOUGHNUT;
    case PieStyle::Flat:
        return VPX_PIE_FLAT;
    default:
        return VPX_PIE_SOLID;
    }
}

} // namespace

PieView::PieView(const ChartServer& server, HWND parent, const RECT& place, const CategoryPlan& plan,
                 const Options& options)
    : m_pie(server.MakePie())
{
    RECT rectangle = place;
    Check(m_pie->Create(Bstr(options.title).Get(), &rectangle, ToWire(parent), ChartId));
    m_window = HandleOf(*m_pie.Get());
    Check(m_pie->SetParentWindowColor(GetSysColor(COLOR_WINDOW)));
    std::u16string labels;
    for (const Slice& slice : plan.slices)
        labels += slice.name;
    Check(m_pie->SetLabelFontName(Bstr(FaceFor(labels)).Get()));
    Check(m_pie->SetTitleFontName(Bstr(FaceFor(options.title)).Get()));
    if (options.gradient)
        Check(m_pie->SetBackgrndColor(RGB(0xB8, 0xCC, 0xE8)));
    for (std::size_t at = 0; at < plan.slices.size(); ++at) {
        const Slice& slice = plan.slices[at];
        Check(m_pie->InsertItem(Bstr(slice.name).Get(),
                                Bstr(slice.name + u": " + NumberText(slice.value)).Get(), slice.value,
                                ColorOf(at)));
    }
    SetLooks(options);
}

void PieView::SetLooks(const Options& options)
{
    Check(m_pie->SetPieChartStyle(NumberOf(options.style)));
    Check(m_pie->SetStartAngle(static_cast<float>(options.start)));
    Check(m_pie->SetInclineAngle(static_cast<float>(options.tilt)));
    if (options.order == PieOrder::AsRead) {
        Check(m_pie->SortToOrginalOrder());
    } else {
        Check(m_pie->sortPiechartElements(
            options.order == PieOrder::Descending ? VPX_PIE_ORDER_DESCENDING : VPX_PIE_ORDER_ASCENDING));
    }
    m_depth = options.depth;
    Check(m_pie->SetDepth(static_cast<float>(m_depth)));
}

std::u16string PieView::SelectedName()
{
    VARIANT* item = nullptr;
    Check(m_pie->GetSelectedElement(&item));
    BSTR name = nullptr;
    if (!item || m_pie->GetElementName(item, &name) != S_OK || !name)
        return {};
    std::u16string text = FromWide({name, SysStringLen(name)});
    SysFreeString(name);
    return text;
}

void PieView::MoveTo(const RECT& place) noexcept
{
    MoveWindow(m_window, place.left, place.top, place.right - place.left, place.bottom - place.top,
               TRUE);
    // The wall is known in pixels, and kept as a part of the window's height.
    (void)m_pie->SetDepth(static_cast<float>(m_depth));
}

} // namespace Viewer
