#pragma once
// A small note pinned to one data point. It follows the point when axes change; its box keeps
// the size of its first paint.

#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"
#include "objects/XGraphObject.h"

class CXGraphDataNotation : public CXGraphObject
{
    DECLARE_SERIAL(CXGraphDataNotation)

public:
    CXGraphDataNotation();
    CXGraphDataNotation(const CXGraphDataNotation&) = delete;
    CXGraphDataNotation& operator=(const CXGraphDataNotation&) = delete;

    CFont m_Font;               // Arial 12
    bool m_bPositioned = false; // the box has its size
    double m_fXVal = 0.0;       // the point
    double m_fYVal = 0.0;
    int m_nCurve = 0; // its curve, whose axes place the note
    int m_nIndex = 0;
    CString m_cText;

    // The base's 27 bytes, both values, curve, index, text.
    void Serialize(CArchive& ar) override;
    void Draw(CDCEx* pDC) override;

private:
    void PlaceBox(CDCEx* pDC, CPoint point);
};
