#include "Stage.h"

namespace
{
class PieHand
{
public:
    void Create(Stage& stage)
    {
        m_pie.Release();
        m_bMade = false;
        Stage::Try([&] { m_pie = stage.TheServer().Make<PieChart3d, IPieChart3d>(); });
        RECT rect = {10, 10, 510, 410};
        if (m_pie)
            Stage::Try(
                [&] { m_bMade = m_pie->Create(Text(L"a caption"), &rect, stage.Parent(), 9) == S_OK; });
    }
    [[nodiscard]] HWND Window() const
    {
        wireHWND hWnd = nullptr;
        if (m_bMade) // without a chart the call would fault
            Stage::Try([&] { m_pie->GetHandle(&hWnd); });
        return reinterpret_cast<HWND>(hWnd);
    }
    IPieChart3d* operator->() const { return m_pie.Get(); }
    void Fill()
    {
        if (!Window())
            return;
        Stage::Try([&] { m_pie->SetPieChartTitle(Text(L"a title of some length")); });
        for (int i = 0; i < 14; ++i) {
            const std::wstring name = L"an element with the number " + std::to_wstring(i);
            Stage::Try([&] {
                m_pie->InsertItem(Text(name), Text(L"its label"), 3 + (i * 29) % 17, 0x102030u * i);
            });
        }
        Stage::Try([&] { m_pie->SetTitleFontName(Text(L"Times New Roman")); });
        Frame(Window());
    }
    void Change()
    {
        Stage::Try([&] { m_pie->RemoveItemByIndex(3); });
        Stage::Try(
            [&] { m_pie->InsertItem(Text(L"an element that comes late"), Text(L"late"), 20, 0xFF); });
        VARIANT* pItem = nullptr;
        Stage::Try([&] { m_pie->GetPieChartItem(Text(L"an element that comes late"), &pItem); });
        if (pItem) {
            Stage::Try([&] { m_pie->UpdateItemLabel(pItem, Text(L"a label that is changed")); });
            Stage::Try([&] { m_pie->UpdateItemValue(pItem, 33); });
            Stage::Try([&] { m_pie->UpdateItemColor(pItem, 0xFF00); });
        }
        Stage::Try([&] { m_pie->sortPiechartElements(1); });
        Stage::Try([&] { m_pie->SetDepth(70); });
        Stage::Try([&] { m_pie->SortToOrginalOrder(); });
        Stage::Try([&] { m_pie->RemoveItem(Text(L"an element that comes late")); });
        Frame(Window());
        Stage::Try([&] { m_pie->RemoveAllItem(); });
    }
    void Touch()
    {
        for (const int nCode : {SB_LINEDOWN, SB_PAGEDOWN, SB_LINEUP})
            ::SendMessageW(Window(), WM_VSCROLL, static_cast<WPARAM>(nCode),
                           reinterpret_cast<LPARAM>(::GetDlgItem(Window(), 1)));
        for (int nStyle = 2; nStyle >= 0; --nStyle) {
            Stage::Try([&] { m_pie->SetPieChartStyle(nStyle); });
            for (const POINT at : {POINT{200, 190}, POINT{240, 240}, POINT{5, 5}})
                ::SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
            Frame(Window());
        }
        ::SetWindowPos(Window(), nullptr, 10, 10, 420, 300, SWP_NOZORDER);
        Frame(Window());
        ::SetWindowPos(Window(), nullptr, 10, 10, 500, 400, SWP_NOZORDER);
        for (const int nCode : {SB_LINEUP, SB_PAGEUP, SB_PAGEUP})
            ::SendMessageW(Window(), WM_VSCROLL, static_cast<WPARAM>(nCode),
                           reinterpret_cast<LPARAM>(::GetDlgItem(Window(), 1)));
    }

private:
    Holder<IPieChart3d> m_pie;
    bool m_bMade = false;
};

class OnPie : public Scenario
{
public:
    using Scenario::Scenario;
    void Prepare() override
    {
        m_pie.Create(TheStage());
        m_pie.Fill();
    }
    std::uint64_t Result() override { return PictureOf(m_pie.Window()); }

protected:
    PieHand m_pie;
};

class Create : public OnPie
{
public:
    using OnPie::OnPie;
    void Prepare() override {}
    void Act() override
    {
        m_pie.Create(TheStage());
        m_pie.Fill();
    }
};

class Paint : public OnPie
{
public:
    using OnPie::OnPie;
    void Act() override { Frame(m_pie.Window()); }
};

class Touch : public OnPie
{
public:
    using OnPie::OnPie;
    void Act() override { m_pie.Touch(); }
};

class Change : public OnPie
{
public:
    using OnPie::OnPie;
    void Act() override
    {
        m_pie.Change();
        m_pie.Fill();
    }
};
} // namespace

void Scenarios::AddPies(std::vector<TScenario>& scenarios)
{
    scenarios.insert(scenarios.end(), {{"pie-create", &MakeScenario<Create>},
                                       {"pie-paint", &MakeScenario<Paint>},
                                       {"pie-touch", &MakeScenario<Touch>},
                                       {"pie-change", &MakeScenario<Change>},
                                       {"pie-end", &MakeScenario<Ending<Paint>>}});
}
