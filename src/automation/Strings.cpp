#include "automation/Strings.h"

void DeliverString(LPCWSTR pszText, BSTR* pBstr)
{
    if (pszText == nullptr || pBstr == nullptr) {
        return;
    }
    if (*pBstr != nullptr) {
        SysReAllocString(pBstr, pszText);
    } else {
        *pBstr = SysAllocString(pszText);
    }
}
