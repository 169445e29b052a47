#pragma once
// A picture on the graph, stretched into its rectangle.

#include "objects/XGraphObject.h"

class CBitmapEx;

class CXGraphBitmap : public CXGraphObject
{
    DECLARE_SERIAL(CXGraphBitmap)

public:
    CXGraphBitmap();
    CXGraphBitmap(const CXGraphBitmap&) = delete;
    CXGraphBitmap& operator=(const CXGraphBitmap&) = delete;
    ~CXGraphBitmap() override;

    bool m_bOwnsBitmap = false; // the destructor deletes m_pBitmap
    CBitmapEx* m_pBitmap = nullptr;
    bool m_bBorder = true; // thin frame around it

    // The base's 27 bytes, the border flag, the bitmap. Reading makes and owns a bitmap where
    // there is none.
    void Serialize(CArchive& ar) override;
    void Draw(CDCEx* pDC) override;

private:
    void DrawPicture(CDCEx* pDC, const CRect& rcTarget) const;
    void DrawTracker(CDCEx* pDC);
};
