#include "Actor.h"

#include <cwchar>

namespace
{
// A 3D pie. Items are asked for by name each time: one that is gone gives no item.
class PieActor : public Actor
{
public:
    PieActor(const Server& server, wireHWND parent, const RECT& place)
        : m_pie(server.Make<PieChart3d, IPieChart3d>())
    {
        RECT rect = place;
        m_pie->Create(Text(L"Pie"), &rect, parent, 9);
    }

    [[nodiscard]] HWND Window() const override
    {
        wireHWND wire = nullptr;
        m_pie->GetHandle(&wire);
        return reinterpret_cast<HWND>(wire);
    }

    void Act(Random& random, Log& log) override
    {
        switch (random.Int(0, 10)) {
        case 0:
        case 1:
            return Insert(random, log);
        case 2:
            return Remove(random, log);
        case 3:
            return Update(random, log);
        case 4:
            return SetLooks(random, log);
        case 5:
            return SetShape(random, log);
        case 6:
            return Click(random, log);
        case 10:
            return AskItems(random, log);
        case 7:
            return Scroll(random, log);
        default:
            return Paint(random, log);
        }
    }

private:
    static std::wstring NameOf(int i) { return L"e" + std::to_wstring(i); }
    [[nodiscard]] VARIANT* AnyItem(Random& random) const
    {
        VARIANT* pItem = nullptr;
        m_pie->GetPieChartItem(Text(NameOf(random.Int(0, 30))), &pItem);
        return pItem;
    }
    void Insert(Random& random, Log& log)
    {
        log.Say("pie: insertion");
        for (int n = random.Int(1, 12); n > 0; --n)
            m_pie->InsertItem(Text(NameOf(random.Int(0, 30))), Text(Extremes::String(random)),
                              Extremes::Value(random), random.Color());
    }
    void Remove(Random& random, Log& log)
    {
        log.Say("pie: removal");
        m_pie->RemoveItem(Text(NameOf(random.Int(0, 30))));
        m_pie->RemoveItemByIndex(Extremes::Number(random, 0, 10));
        if (random.OneIn(10))
            m_pie->RemoveAllItem();
    }
    void Update(Random& random, Log& log)
    {
        log.Say("pie: update");
        m_pie->UpdateItemLabel(AnyItem(random), Text(Extremes::String(random)));
        m_pie->UpdateItemValue(AnyItem(random), Extremes::Value(random));
        m_pie->UpdateItemColor(AnyItem(random), random.Color());
        m_pie->SetPieElementGradientLight(AnyItem(random), Extremes::Angle(random));
        m_pie->SetPieElementGradientDark(AnyItem(random), Extremes::Angle(random));
    }
    void SetLooks(Random& random, Log& log)
    {
        log.Say("pie: looks");
        m_pie->SetPieChartTitle(Text(Extremes::String(random)));
        m_pie->SetLabelFontName(Text(Extremes::String(random)));
        m_pie->SetTitleFontName(Text(Extremes::String(random)));
        m_pie->SetBackgrndColor(random.Color());
        m_pie->SetBackGroundGradientLight(Extremes::Angle(random));
        m_pie->SetBackGroundGradientDark(Extremes::Angle(random));
        m_pie->SetPieElementGradientDarkAll(Extremes::Angle(random));
        m_pie->SetPieElementGradientLightAll(Extremes::Angle(random));
        m_pie->SetLabelBoxColor(random.Color());
        m_pie->SetLabelColor(random.Color());
        m_pie->SetParentWindowColor(random.Color());
        LOGFONTW font = {};
        font.lfHeight = Extremes::Number(random, -40, 40);
        font.lfWeight = Extremes::Number(random, 0, 900);
        font.lfItalic = static_cast<BYTE>(random.Int(0, 1));
        std::wcscpy(font.lfFaceName, random.OneIn(2) ? L"Arial" : L"no such face");
        if (random.OneIn(2))
            m_pie->SetLabelFont(reinterpret_cast<VARIANT*>(&font));
        else
            m_pie->SetTitleFont(reinterpret_cast<VARIANT*>(&font));
    }
    void AskItems(Random& random, Log& log)
    {
        log.Say("pie: questions");
        int nElement = 0;
        m_pie->GetElementID(Text(NameOf(random.Int(0, 30))), &nElement);
        float light = 0;
        m_pie->GetBackGroungGrLight(&light);
        m_pie->GetBackgroundGrDark(&light);
        VARIANT* const pItem = AnyItem(random);
        m_pie->GetElementGrLight(pItem, &light);
        m_pie->GetElementGrDark(pItem, &light);
        Text name;
        if (pItem != nullptr) // null ends the process
            m_pie->GetElementName(pItem, name.Out());
        m_pie->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(random.Int(0, 400), random.Int(0, 300)));
        m_pie->PostMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                           MAKELPARAM(random.Int(0, 400), random.Int(0, 300)));
    }
    void SetShape(Random& random, Log& log)
    {
        log.Say("pie: shape and order");
        m_pie->SetPieChartStyle(Extremes::Number(random, 0, 3));
        m_pie->SetStartAngle(Extremes::Angle(random));
        m_pie->SetInclineAngle(Extremes::Angle(random));
        m_pie->SetDepth(Extremes::Angle(random));
        if (random.OneIn(2))
            m_pie->sortPiechartElements(random.Int(0, 1));
        else
            m_pie->SortToOrginalOrder();
    }
    void Click(Random& random, Log& log)
    {
        log.Say("pie: click");
        ::SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON,
                       MAKELPARAM(random.Int(0, 400), random.Int(0, 300)));
        VARIANT* pItem = nullptr;
        m_pie->GetSelectedElement(&pItem);
    }
    void Scroll(Random& random, Log& log)
    {
        log.Say("pie: scroll or size");
        ::SendMessageW(Window(), WM_VSCROLL, static_cast<WPARAM>(random.Int(0, 8)),
                       reinterpret_cast<LPARAM>(::GetDlgItem(Window(), 1)));
        if (random.OneIn(3))
            ::SetWindowPos(Window(), nullptr, 0, 0, random.Int(0, 500), random.Int(0, 400),
                           SWP_NOZORDER | SWP_NOMOVE);
    }
    void Paint(Random&, Log& log)
    {
        log.Say("pie: paint");
        m_pie->Invalidate(1);
        ::UpdateWindow(Window());
    }

    Holder<IPieChart3d> m_pie;
};
} // namespace

std::unique_ptr<Actor> Actors::MakePie(const Server& server, wireHWND parent, const RECT& place)
{
    return std::make_unique<PieActor>(server, parent, place);
}
