#pragma once
// The platform's controls as windows of ours.

#include "framework/windowing/Window.h"

class CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    using CWnd::Create;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
    }
};
