#include "Scripts.h"

namespace
{
class PieHand
{
public:
    explicit PieHand(Watch& watch)
        : m_watch(watch), m_pie(watch.TheServer().Make<PieChart3d, IPieChart3d>())
    {
        RECT rect = {10, 10, 610, 410};
        m_pie->Create(Text(L"Caption"), &rect, watch.Host().Wire(), 9);
        HostWindow::Settle();
    }

    IPieChart3d* operator->() const { return m_pie.Get(); }
    [[nodiscard]] HWND Window() const
    {
        wireHWND wire = nullptr;
        m_pie->GetHandle(&wire);
        return reinterpret_cast<HWND>(wire);
    }
    [[nodiscard]] VARIANT* Item(const std::wstring& name) const
    {
        VARIANT* pItem = nullptr;
        m_pie->GetPieChartItem(Text(name), &pItem);
        return pItem;
    }
    template <class Action> void Step(const std::string& what, Action action) const
    {
        m_watch.Step(what, action);
        Report& report = m_watch.TheReport();
        PrintSelected(report);
        const HWND hBar = ::GetDlgItem(Window(), 1);
        report.ExactState("bar", "%s at %d", ::IsWindowVisible(hBar) ? "shown" : "hidden",
                          ::GetScrollPos(hBar, SB_CTL));
        const bool bDirty = ::GetUpdateRect(Window(), nullptr, FALSE) != FALSE;
        report.State("paint", "%s", bDirty ? "due" : "not due");
        ::UpdateWindow(Window());
        PrintPicture(report, "picture", Window());
    }
    void Click(int x, int y) const
    {
        ::SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    }
    void Scroll(int nCode) const
    {
        ::SendMessageW(Window(), WM_VSCROLL, static_cast<WPARAM>(nCode),
                       reinterpret_cast<LPARAM>(::GetDlgItem(Window(), 1)));
    }

private:
    void PrintSelected(Report& report) const
    {
        VARIANT* pItem = nullptr;
        m_pie->GetSelectedElement(&pItem);
        Text name;
        if (pItem != nullptr)
            m_pie->GetElementName(pItem, name.Out());
        report.State("selected", "%s", pItem != nullptr ? name.Narrow().c_str() : "none");
    }

    Watch& m_watch;
    Holder<IPieChart3d> m_pie;
};

void Insert(const PieHand& pie, int nFrom, int nTo)
{
    const COLORREF colors[] = {0x2020E0, 0x20C020, 0xE08020, 0x20C0C0, 0xC020C0};
    for (int i = nFrom; i < nTo; ++i) {
        const std::wstring name = L"e" + std::to_wstring(i);
        pie->InsertItem(Text(name), Text(L"label " + name), 3.0 + (i * 29) % 17, colors[i % 5]);
    }
}

void Looks(const PieHand& pie)
{
    pie.Step("angles and depth", [&] {
        pie->SetStartAngle(75);
        pie->SetInclineAngle(35);
        pie->SetDepth(60);
    });
    pie.Step("gradients", [&] {
        pie->SetPieElementGradientLight(pie.Item(L"e1"), 0.8f);
        pie->SetPieElementGradientDark(pie.Item(L"e2"), 0.2f);
        pie->SetBackGroundGradientLight(0.9f);
        pie->SetBackGroundGradientDark(0.4f);
    });
    pie.Step("colours and texts", [&] {
        pie->SetBackgrndColor(0xFFE0C0);
        pie->SetLabelColor(0x800000);
        pie->SetLabelBoxColor(0xC0FFFF);
        pie->SetParentWindowColor(0x80FF80);
        pie->SetPieChartTitle(Text(L"Title"));
        pie->SetTitleFontName(Text(L"Times New Roman"));
    });
    for (const int nStyle : {1, 2, 0}) {
        pie.Step("style " + std::to_string(nStyle), [&] { pie->SetPieChartStyle(nStyle); });
        pie.Step("a click on a slice", [&] { pie.Click(200, 190); });
        pie.Step("a click beside the centre", [&] { pie.Click(240, 260); });
        pie.Step("a click outside", [&] { pie.Click(5, 5); });
    }
}

void Items(const PieHand& pie)
{
    pie.Step("changed", [&] {
        pie->UpdateItemLabel(pie.Item(L"e0"), Text(L"a longer label than before"));
        pie->UpdateItemValue(pie.Item(L"e1"), 40);
        pie->UpdateItemColor(pie.Item(L"e2"), 0x000000);
    });
    pie.Step("sorted", [&] { pie->sortPiechartElements(1); });
    pie.Step("sorted the other way", [&] { pie->sortPiechartElements(0); });
    pie.Step("in the old order", [&] { pie->SortToOrginalOrder(); });
    pie.Step("removed", [&] {
        pie->RemoveItem(Text(L"e1"));
        pie->RemoveItemByIndex(0);
        pie->RemoveItem(Text(L"nobody"));
    });
    pie.Step("refused", [&] {
        pie->InsertItem(Text(L"e3"), Text(L"twice"), 5, 0);
        pie->InsertItem(Text(L"below"), Text(L"below"), -5, 0);
    });
}

void List(const PieHand& pie)
{
    pie.Step("many", [&] { Insert(pie, 10, 40); });
    for (const int nCode : {SB_LINEDOWN, SB_LINEDOWN, SB_PAGEDOWN, SB_LINEUP, SB_PAGEUP, SB_BOTTOM})
        pie.Step("scrolled by " + std::to_string(nCode), [&] { pie.Scroll(nCode); });
    pie.Step("smaller", [&] { ::SetWindowPos(pie.Window(), nullptr, 10, 10, 420, 260, SWP_NOZORDER); });
    pie.Step("tiny", [&] { ::SetWindowPos(pie.Window(), nullptr, 10, 10, 60, 40, SWP_NOZORDER); });
    pie.Step("emptied", [&] { pie->RemoveAllItem(); });
}
} // namespace

void Scripts::Pies(Watch& watch)
{
    watch.Begin("pie", true);
    const PieHand pie(watch);
    pie.Step("empty", [] {});
    pie.Step("filled", [&] { Insert(pie, 0, 6); });
    Looks(pie);
    Items(pie);
    List(pie);
}
