#pragma once
// A font from face, height and weight. A face longer than the platform's limit, or any
// other refusal, leaves it without a handle; selecting it then changes nothing.

#include "framework/windowing/GdiObjects.h"

class CQuickFont : public CFont
{
public:
    CQuickFont(LPCTSTR lpszFace, int nHeight, int nWeight, bool bUnderline = false);
};
