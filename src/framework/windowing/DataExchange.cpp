#include "framework/windowing/DataExchange.h"

#include <cfloat>

#include <windows.h>

#include <commctrl.h>

#include "framework/windowing/App.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/NumberText.h"
#include "framework/windowing/OleDateTime.h"
#include "framework/windowing/Texts.h"
#include "framework/windowing/Window.h"

namespace
{

CString TextOf(HWND control)
{
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

// A text that is there already is left alone: the caret and the selection stay.
void ShowText(HWND control, const CString& text)
{
    if (!(TextOf(control) == text))
        ::SetWindowTextW(control, text);
}

[[noreturn]] void Refuse(CDataExchange* pDX, const CString& message, UINT idPrompt)
{
    AfxMessageBox(message, MB_ICONEXCLAMATION, idPrompt);
    pDX->Fail();
}

[[noreturn]] void RefuseText(CDataExchange* pDX, UINT idPrompt)
{
    CString message;
    message.LoadString(idPrompt);
    Refuse(pDX, message, idPrompt);
}

[[noreturn]] void RefuseRange(CDataExchange* pDX, UINT idPrompt, const CString& lower,
                              const CString& upper)
{
    CString message;
    message.LoadString(idPrompt);
    message.Replace(L"%1", lower);
    message.Replace(L"%2", upper);
    Refuse(pDX, message, idPrompt);
}

// A number in an edit control, read by `parse`; a text that is none shows the box idPrompt.
template <class T, class TParse>
void ExchangeNumber(CDataExchange* pDX, int nIDC, T& value, TParse parse, UINT idPrompt, LPCWSTR format)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        text.Format(format, value);
        ShowText(control, text);
        return;
    }
    const auto parsed = parse(TextOf(control).ToU16());
    if (!parsed)
        RefuseText(pDX, idPrompt);
    value = static_cast<T>(*parsed);
}

CString RealText(double value)
{
    CString text;
    text.Format(L"%.15g", value);
    return text;
}

static_assert(DBL_DIG == 15, "the digits that every double keeps");

} // namespace

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (!control)
        AfxThrowResourceException();
    m_hWndLastControl = control;
    m_bEditLastControl = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = true;
    return control;
}

void CDataExchange::Fail()
{
    // The box may have outlived the dialog.
    if (m_bSaveAndValidate && ::IsWindow(m_hWndLastControl)) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (!rControl.m_hWnd && !rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
        AfxThrowResourceException();
}

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = TextOf(control);
    else
        ShowText(control, value);
}

void DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    ExchangeNumber(pDX, nIDC, value, &NumberText::ParseInteger, AFX_IDP_PARSE_INT, L"%d");
}

void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value)
{
    ExchangeNumber(pDX, nIDC, value, &NumberText::ParseUnsigned, AFX_IDP_PARSE_UINT, L"%u");
}

void DDX_Text(CDataExchange* pDX, int nIDC, double& value)
{
    ExchangeNumber(pDX, nIDC, value, &NumberText::ParseReal, AFX_IDP_PARSE_REAL, L"%.15g");
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageW(control, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
        value = BST_UNCHECKED;
    ::SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int number = 0;
    do {
        if (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessageW(control, BM_SETCHECK, number == value, 0);
            else if (::SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED)
                value = number;
            ++number;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control && !(::GetWindowLongPtrW(control, GWL_STYLE) & WS_GROUP));
}

void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageW(control, CB_GETCURSEL, 0, 0));
    else
        ::SendMessageW(control, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    SYSTEMTIME time{};
    if (pDX->m_bSaveAndValidate) {
        const LRESULT state =
            ::SendMessageW(control, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
        value = state == GDT_VALID ? COleDateTime(time) : COleDateTime();
        if (state != GDT_VALID)
            value.SetStatus(COleDateTime::null);
    } else if (value.GetAsSystemTime(time)) {
        ::SendMessageW(control, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
    } else {
        // Where the control has a box for "no date", it loses its tick; others keep their date.
        ::SendMessageW(control, DTM_SETSYSTEMTIME, static_cast<WPARAM>(GDT_NONE), 0);
    }
}

void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal)
{
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    CString lower;
    CString upper;
    lower.Format(L"%u", minVal);
    upper.Format(L"%u", maxVal);
    RefuseRange(pDX, AFX_IDP_PARSE_INT_RANGE, lower, upper);
}

void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minVal, double maxVal)
{
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    RefuseRange(pDX, AFX_IDP_PARSE_REAL_RANGE, RealText(minVal), RealText(maxVal));
}
