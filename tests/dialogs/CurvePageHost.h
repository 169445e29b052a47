#pragma once
// A graph of three curves under a person's hands, for tests that open the property sheet on one
// of them by a double click and work its page.

#include "frontdoor/InteractionHost.h"
#include "support/DialogHands.h"
#include "support/ModalScript.h"

#include <cstring>

namespace CurvePage
{
inline constexpr const wchar_t* SheetCaption = L"XGraph-属性";
inline constexpr const wchar_t* AverageDialog = L"Moving average";
inline constexpr const wchar_t* Trend = L"Trend";
inline constexpr const wchar_t* Box = L"Vantoplex"; // of every message box

// Controls of the page and of the dialogs that it opens.
enum : int {
    ok = 1,
    cancel = 2,
    apply = 5002,
    lineSizeSpin = 6006,
    color = 6007,
    lineStyle = 6008,
    visible = 6009,
    label = 6010,
    fill = 6011,
    transparent = 6012,
    fill1 = 6027,
    fill2 = 6028,
    fill5 = 6031,
    fill6 = 6032,
    type = 6034,
    lineSize = 6035,
    fillCurve = 6036,
    showMarker = 6038,
    fill3 = 6042,
    fill4 = 6043,
    fill0 = 6045,
    symbol = 6059,
    marker = 6060,
    numbered = 6062,
    span = 6063,
    spanSpin = 6064,
    average = 6065,
    linearTrend = 6066,
    cubicTrend = 6067,
    expandSpin = 6069,
    tabs = 6073,
    expand = 6079,
    polynomialTrend = 6080,
    degree = 6082,
    degreeSpin = 6084,
    markerSize = 6022,
    markerSizeSpin = 6023
};
inline constexpr int FillStyles[] = {fill0, fill1, fill2, fill3, fill4, fill5, fill6};
} // namespace CurvePage

class CurvePageTest : public FrontDoorInteraction
{
protected:
    // "T1" rises from (0, 0) to (10, 10), "T2" falls from (0, 10) to (10, 0), "T3" lies flat.
    void SetUp() override
    {
        FrontDoorInteraction::SetUp();
        std::vector<TDataPoint> falling, flat;
        for (int i = 0; i <= 10; ++i) {
            falling.push_back({i * 1.0, 10.0 - i});
            flat.push_back({i * 1.0, 7.0});
        }
        Add(falling, 1);
        Add(flat, 2);
        Curve(0)->SetLabel(Text(L"T1"));
        Curve(1)->SetLabel(Text(L"T2"));
        Curve(2)->SetLabel(Text(L"T3"));
        ShowAsTold();
        Frame();
    }
    void Add(std::vector<TDataPoint> points, int nCurve)
    {
        graph->SetData(nullptr, points.data(), static_cast<long>(points.size()), nCurve, 0, 0, 1);
    }

    using FrontDoorInteraction::Click; // on the graph
    static void Click(HWND hWnd) { DialogHands::Click(hWnd); }
    static void Click(HWND hDialog, int nID) { DialogHands::Click(hDialog, nID); }

    using OnPage = std::function<void(HWND hPage)>;
    // What is done on the page when the sheet opens; the sheet is closed after it.
    void Work(OnPage onPage)
    {
        script.When(CurvePage::SheetCaption, [onPage](HWND hSheet) {
            const HWND hPage = DialogHands::PageOf(hSheet);
            if (hPage == nullptr)
                ADD_FAILURE() << "no page is seen";
            else
                onPage(hPage);
            ::PostMessageW(hSheet, WM_CLOSE, 0, 0);
        });
    }
    // Double clicks on a curve, at a place where it is alone; returns when the sheet has closed.
    void Open(int nCurve = 0)
    {
        Frame(); // what was added since has moved the curves
        const POINT at[] = {At(2, 2), At(2, 8), At(8.5, 7)};
        DoubleClick(at[nCurve]);
    }
    void OpenAnd(OnPage onPage, int nCurve = 0)
    {
        Work(std::move(onPage));
        Open(nCurve);
    }

    // Presses a button of the page that opens a dialog, and works that dialog. With `bOk` it is
    // closed by its OK button after that.
    void Ask(HWND hPage, int nButton, const wchar_t* pszDialog, std::function<void(HWND)> work,
             bool bOk = true)
    {
        script.When(pszDialog, [work, bOk](HWND hDialog) {
            work(hDialog);
            if (bOk && ::IsWindow(hDialog))
                DialogHands::Click(hDialog, CurvePage::ok);
            if (::IsWindow(hDialog))
                ::PostMessageW(hDialog, WM_CLOSE, 0, 0);
        });
        DialogHands::Click(hPage, nButton);
    }

    // Expects a message box from what is done, answers it and returns its text.
    std::wstring BoxFrom(const std::function<void()>& act)
    {
        std::wstring text;
        script.When(CurvePage::Box, [&text](HWND hBox) {
            text = DialogHands::TextOf(hBox, 0xFFFF);
            ::PostMessageW(hBox, WM_COMMAND, IDOK, 0);
        });
        act();
        return text;
    }

    template <class Interface, class Value>
    static Value Got(Interface* p, HRESULT (STDMETHODCALLTYPE Interface::*get)(Value*))
    {
        Value value{};
        (p->*get)(&value);
        return value;
    }
    template <class Value>
    Value Got(int nCurve, HRESULT (STDMETHODCALLTYPE ISGraphDataSerie::*get)(Value*))
    {
        return Got(Curve(nCurve).Get(), get);
    }
    std::wstring LabelOf(int nCurve)
    {
        Text text;
        Curve(nCurve)->GetLabel(text.Out());
        return text.Str();
    }
    // The points of a curve: an average over one point is the point.
    std::vector<TDataPoint> PointsOf(int nCurve)
    {
        TDataPoint* pPoints = nullptr;
        auto curve = Curve(nCurve);
        curve->GetSimpleMovingAverage(&pPoints, 1);
        return Taken(pPoints, Got(nCurve, &ISGraphDataSerie::GetCount));
    }
    static std::vector<TDataPoint> Taken(TDataPoint* pPoints, long nCount)
    {
        std::vector<TDataPoint> points;
        if (pPoints != nullptr)
            points.assign(pPoints, pPoints + nCount);
        ::CoTaskMemFree(pPoints);
        return points;
    }
    // The graph's objects as its file holds them.
    std::string ObjectBytes() const
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        const std::wstring path = std::wstring(folder) + L"dialog objects.bin";
        graph->Save(Text(path.c_str()), PERSIST_OBJECTS);
        const HANDLE hFile =
            ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        std::string bytes(::GetFileSize(hFile, nullptr), '\0');
        DWORD nRead = 0;
        ::ReadFile(hFile, bytes.data(), static_cast<DWORD>(bytes.size()), &nRead, nullptr);
        ::CloseHandle(hFile);
        ::DeleteFileW(path.c_str());
        return bytes;
    }

    ModalScript script;
};

inline bool operator==(const TDataPoint& a, const TDataPoint& b)
{
    return a.fXVal == b.fXVal && a.fYVal == b.fYVal;
}
inline void PrintTo(const TDataPoint& point, std::ostream* stream)
{
    *stream << '(' << point.fXVal << ", " << point.fYVal << ')';
}
