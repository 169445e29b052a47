#include "viewer/MainMenu.h"

#include "viewer/GraphCommands.h"
#include "viewer/MenuCommands.h"
#include "viewer/WideText.h"

#include <array>
#include <initializer_list>
#include <span>

namespace Viewer
{
namespace
{

using namespace MenuCommand;

struct Item {
    unsigned command; // 0: a line between groups
    const wchar_t* text;
};

constexpr Item Line = {0, nullptr};

constexpr std::array FileItems = {Item{OpenCsv, L"&Open CSV...\tCtrl+O"},
                                  Item{Follow, L"&Follow the file as it grows"},
                                  Item{OpenGraph, L"Open &graph file..."},
                                  Item{SaveGraph, L"&Save graph file...\tCtrl+S"},
                                  Item{ExportPng, L"&Export PNG...\tCtrl+E"},
                                  Line,
                                  Item{VPX_COMMAND_PRINT, L"&Print...\tCtrl+P"},
                                  Line,
                                  Item{Exit, L"E&xit"}};
constexpr std::array EditItems = {Item{CopyBitmap, L"&Copy picture\tCtrl+C"},
                                  Item{CopyMetafile, L"Copy as &metafile\tCtrl+Shift+C"},
                                  Line,
                                  Item{VPX_COMMAND_INSERT_LABEL, L"Insert &label"},
                                  Item{DeleteMeasures, L"&Delete measures"},
                                  Item{VPX_COMMAND_PROPERTIES, L"&Properties..."}};
constexpr std::array ModeItems = {
    Item{VPX_COMMAND_SELECT, L"&Select"},   Item{VPX_COMMAND_ZOOM, L"&Zoom"},
    Item{VPX_COMMAND_PAN, L"&Pan"},         Item{VPX_COMMAND_CURSOR, L"&Cursor"},
    Item{VPX_COMMAND_MEASURE, L"&Measure"}, Item{VPX_COMMAND_EDIT, L"&Edit points"}};
constexpr std::array ViewItems = {Item{VPX_COMMAND_ZOOM_BACK, L"Zoom &back"},
                                  Item{VPX_COMMAND_RESET_ZOOM, L"&Reset zoom"}, Line,
                                  Item{Legend, L"&Legend"}, Item{Snap, L"Cursor s&naps to curves"}};
constexpr std::array TrendItems = {Item{VPX_COMMAND_LINEAR_TREND, L"&Linear trend"},
                                   Item{VPX_COMMAND_CUBIC_TREND, L"&Cubic trend"},
                                   Item{FirstDegree, L"Polynomial of degree &2"},
                                   Item{FirstDegree + 1, L"Polynomial of degree &3"},
                                   Item{FirstDegree + 2, L"Polynomial of degree &4"},
                                   Item{FirstDegree + 3, L"Polynomial of degree &5"},
                                   Item{LastDegree, L"Polynomial of degree &6"},
                                   Line,
                                   Item{FirstAverage, L"&Simple moving average"},
                                   Item{FirstAverage + 1, L"&Exponential moving average"},
                                   Item{FirstAverage + 2, L"L&inear moving average"},
                                   Item{LastAverage, L"&Triangular moving average"}};
constexpr std::array SpanItems = {Item{FirstSpan, L"&3 points"},      Item{FirstSpan + 1, L"&5 points"},
                                  Item{FirstSpan + 2, L"&7 points"},  Item{FirstSpan + 3, L"&12 points"},
                                  Item{FirstSpan + 4, L"3&0 points"}, Item{FirstSpan + 5, L"100 points"},
                                  Item{LastSpan, L"365 points"}};
constexpr std::array KindItems = {Item{FirstKind, L"&XY graph"}, Item{FirstKind + 1, L"&Bar chart"},
                                  Item{FirstKind + 2, L"&Line chart"},
                                  Item{FirstKind + 3, L"&Pie chart"}, Item{LastKind, L"&3D pie"}};
constexpr std::array PieItems = {
    Item{FirstStyle, L"&Doughnut"},          Item{FirstStyle + 1, L"&Flat"},
    Item{LastStyle, L"&Three-dimensional"},  Line,
    Item{FirstOrder, L"&Order of the file"}, Item{FirstOrder + 1, L"&Largest first"},
    Item{LastOrder, L"&Smallest first"},     Line,
    Item{TiltMore, L"Tilt &more"},           Item{TiltLess, L"Tilt l&ess"}};
constexpr std::array HelpItems = {Item{Keys, L"&Keys and mouse\tF1"}, Item{About, L"&About"}};

void Append(HMENU menu, std::span<const Item> items)
{
    for (const Item& item : items)
        AppendMenuW(menu, item.command ? MF_STRING : MF_SEPARATOR, item.command, item.text);
}

HMENU MakePopup(std::span<const Item> items)
{
    const HMENU menu = CreatePopupMenu();
    Append(menu, items);
    return menu;
}

void AppendPopup(HMENU menu, HMENU popup, const wchar_t* text)
{
    AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), text);
}

HMENU MakeAnalysisMenu()
{
    const HMENU menu = MakePopup(TrendItems);
    AppendPopup(menu, MakePopup(SpanItems), L"Points a&veraged");
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    // Filled by UpdateMenu, which finds it by this first item.
    const std::array first = {Item{FirstCurve, L"-"}};
    AppendPopup(menu, MakePopup(first), L"Of the c&urve");
    return menu;
}

HMENU MakeAnimationMenu()
{
    const std::array first = {Item{NoAnimation, L"&None"}};
    const HMENU menu = MakePopup(first);
    UINT_PTR command = FirstAnimation;
    for (const Animation& animation : Animations())
        AppendMenuW(menu, MF_STRING, command++, ToWide(animation.title).c_str());
    return menu;
}

// The popup that holds a command as its first item; null if there is none.
HMENU FindPopup(HMENU menu, unsigned firstCommand)
{
    for (int at = 0; at < GetMenuItemCount(menu); ++at) {
        const HMENU popup = GetSubMenu(menu, at);
        if (!popup)
            continue;
        if (GetMenuItemID(popup, 0) == firstCommand)
            return popup;
        if (const HMENU deeper = FindPopup(popup, firstCommand))
            return deeper;
    }
    return nullptr;
}

// Names become the items of the popup that has `first` as its first item.
void FillPopup(HMENU menu, unsigned first, unsigned last, std::span<const std::u16string> names)
{
    const HMENU popup = FindPopup(menu, first);
    if (!popup)
        return;
    while (GetMenuItemCount(popup) > 0)
        DeleteMenu(popup, 0, MF_BYPOSITION);
    UINT_PTR command = first;
    for (const std::u16string& name : names) {
        if (command > last)
            break;
        std::wstring text;
        for (const wchar_t unit : ToWide(name))
            text += unit == L'&' ? std::wstring(L"&&") : std::wstring(1, unit);
        AppendMenuW(popup, MF_STRING, command++, text.c_str());
    }
    if (names.empty())
        AppendMenuW(popup, MF_STRING | MF_GRAYED, first, L"none");
}

void Enable(HMENU menu, std::span<const Item> items, bool enabled)
{
    for (const Item& item : items)
        EnableMenuItem(menu, item.command, enabled ? MF_ENABLED : MF_GRAYED);
}

void Check(HMENU menu, unsigned command, bool checked)
{
    CheckMenuItem(menu, command, checked ? MF_CHECKED : MF_UNCHECKED);
}

} // namespace

HMENU MakeMainMenu()
{
    const HMENU menu = CreateMenu();
    const HMENU file = MakePopup(FileItems);
    const std::array recent = {Item{FirstRecent, L"-"}}; // filled by UpdateMenu
    InsertMenuW(file, 1, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(MakePopup(recent)),
                L"&Recent files");
    AppendPopup(menu, file, L"&File");
    AppendPopup(menu, MakePopup(EditItems), L"&Edit");
    AppendPopup(menu, MakePopup(ModeItems), L"&Mode");
    AppendPopup(menu, MakePopup(ViewItems), L"&View");
    AppendPopup(menu, MakeAnalysisMenu(), L"&Analysis");
    const HMENU chart = MakePopup(KindItems);
    AppendMenuW(chart, MF_SEPARATOR, 0, nullptr);
    AppendPopup(chart, MakeAnimationMenu(), L"&Animation");
    AppendPopup(chart, MakePopup(PieItems), L"3D pie l&ooks");
    AppendPopup(menu, chart, L"&Chart");
    AppendPopup(menu, MakePopup(HelpItems), L"&Help");
    return menu;
}

HMENU MakeGraphPopup()
{
    const HMENU menu = MakePopup(ModeItems);
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    Append(menu, std::span(ViewItems).first(2));
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu, MF_STRING, VPX_COMMAND_INSERT_LABEL, L"&Insert label");
    AppendPopup(menu, MakeAnalysisMenu(), L"&Analysis");
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu, MF_STRING, VPX_COMMAND_PRINT, L"P&rint...");
    AppendMenuW(menu, MF_STRING, VPX_COMMAND_PROPERTIES, L"Pr&operties...");
    return menu;
}

void UpdateMenu(HMENU menu, const MenuState& state)
{
    FillPopup(menu, FirstCurve, LastCurve, state.curves);
    FillPopup(menu, FirstRecent, LastRecent, state.recent);
    Check(menu, Follow, state.follows);
    const bool graph = state.kind == ChartKind::Graph;
    for (const auto items : {std::span<const Item>(ModeItems), std::span<const Item>(ViewItems),
                             std::span<const Item>(TrendItems), std::span<const Item>(SpanItems)}) {
        Enable(menu, items, graph);
    }
    for (const unsigned command :
         std::initializer_list<unsigned>{OpenGraph, SaveGraph, DeleteMeasures, VPX_COMMAND_PRINT,
                                         VPX_COMMAND_INSERT_LABEL, VPX_COMMAND_PROPERTIES}) {
        EnableMenuItem(menu, command, graph ? MF_ENABLED : MF_GRAYED);
    }
    Enable(menu, PieItems, state.kind == ChartKind::Pie3d);
    for (const Item& item : ModeItems)
        Check(menu, item.command, graph && item.command == CommandOf(state.operation));
    Check(menu, Legend, state.legend);
    Check(menu, Snap, state.snap);
    Check(menu, FirstCurve + static_cast<unsigned>(state.curve), state.curve >= 0);
    for (const Item& item : SpanItems)
        Check(menu, item.command, item.command - FirstSpan == static_cast<unsigned>(state.span));
    for (const Item& item : KindItems)
        Check(menu, item.command, item.command - FirstKind == static_cast<unsigned>(state.kind));
    Check(menu, FirstStyle + static_cast<unsigned>(PieStyle::Doughnut),
          state.style == PieStyle::Doughnut);
    Check(menu, FirstStyle + static_cast<unsigned>(PieStyle::Flat), state.style == PieStyle::Flat);
    Check(menu, LastStyle, state.style == PieStyle::Solid);
    for (unsigned order = FirstOrder; order <= LastOrder; ++order)
        Check(menu, order, order - FirstOrder == static_cast<unsigned>(state.order));
    Check(menu, NoAnimation, state.animation.empty());
    unsigned command = FirstAnimation;
    for (const Animation& animation : Animations()) {
        EnableMenuItem(menu, command, animation.kind == state.kind ? MF_ENABLED : MF_GRAYED);
        Check(menu, command++, animation.kind == state.kind && animation.word == state.animation);
    }
}

HACCEL MakeAccelerators()
{
    std::array<ACCEL, 7> keys = {{{FVIRTKEY | FCONTROL, 'O', OpenCsv},
                                  {FVIRTKEY | FCONTROL, 'S', SaveGraph},
                                  {FVIRTKEY | FCONTROL, 'E', ExportPng},
                                  {FVIRTKEY | FCONTROL, 'P', VPX_COMMAND_PRINT},
                                  {FVIRTKEY | FCONTROL, 'C', CopyBitmap},
                                  {FVIRTKEY | FCONTROL | FSHIFT, 'C', CopyMetafile},
                                  {FVIRTKEY, VK_F1, Keys}}};
    return CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
}

} // namespace Viewer
