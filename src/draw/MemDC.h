#pragma once
// A double buffer: draws into a bitmap of the target's clip box, in the target's
// coordinates, and copies it to the target when it is destroyed. Over a printing context
// it draws straight through, with no bitmap. The target must outlive it.

#include "framework/windowing/DeviceContexts.h"

class CMemDC : public CDC
{
public:
    // The bitmap is nTrim pixels narrower than the clip box. The area is filled with the
    // target's background colour.
    // With bFill false the buffer starts undefined: for a caller that covers all of it.
    explicit CMemDC(CDC* pDC, int nTrim = 0, bool bFill = true);
    ~CMemDC() override;

    CBitmap m_Bitmap;
    HGDIOBJ m_hOldBitmap = nullptr;
    CDC* m_pDC;
    CRect m_rcArea; // what is buffered
    CRect m_rcBlit; // what the final copy is narrowed to, if not empty
    bool m_bMemDC;  // buffering is on
};
