#pragma once
// Texts on their way across the automation boundary. Inwards a BSTR is copied into a CString,
// a null one as an empty text: CString(bstr) does it. Outwards:

#include "framework/windowing/Strings.h"

#include <windows.h>
#include <oleauto.h>

// Delivers a text into *pBstr. A null text or a null pointer writes nothing. A live string in
// *pBstr is reallocated in place, null is replaced by a new string; the caller frees it with
// SysFreeString. So the host passes its variable as null or as a live string.
void DeliverString(LPCWSTR pszText, BSTR* pBstr);
