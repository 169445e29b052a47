#pragma once
// Dialog data exchange: moves values between members and controls, in the direction that
// the CDataExchange says, and checks what the user typed. A value that can't be taken gives
// a message box, puts the focus back into the control with its text selected, and ends the
// exchange with an exception that UpdateData catches.
//
// A DDV_ check follows the DDX_ call of its control at once.

#include <windows.h>

#include "framework/windowing/Strings.h"

class COleDateTime;
class CWnd;

class CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate) noexcept
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd)
    {
    }

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;

    // The control, noted as the one that a failure goes back to. Raises an exception if the
    // dialog has no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // Ends the exchange, with the focus in the control noted last.
    [[noreturn]] void Fail();

private:
    HWND m_hWndLastControl = nullptr;
    bool m_bEditLastControl = false;
};

// Makes rControl the object of the control, at the first exchange.
void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
void DDX_Text(CDataExchange* pDX, int nIDC, double& value);
// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE; other values show as unchecked.
void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// The number of the button that is set in the group that nIDC starts; -1 if none is.
void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
// The selected row; -1 if none is.
void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value);

void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minVal, double maxVal);
