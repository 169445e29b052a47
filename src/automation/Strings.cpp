#include "automation/Strings.h"

void DeliverString(LPCWSTR pszText, BSTR* pBstr)
{
    if (!pszText || !pBstr)
        return;
    if (*pBstr)
        ::SysReAllocString(pBstr, pszText);
    else
        *pBstr = ::SysAllocString(pszText);
}
