#include "draw/QuickFont.h"

CQuickFont::CQuickFont(LPCTSTR lpszFace, int nHeight, int nWeight, bool bUnderline)
{
    CreateFont(nHeight, 0, 0, 0, nWeight, FALSE, bUnderline, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
               CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, DEFAULT_PITCH | FF_DONTCARE, lpszFace);
}
