#pragma once
// A text box on the graph, which may be tied to a curve by a line.

#include "framework/windowing/Controls.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"
#include "objects/XGraphObject.h"

class CXGraphLabel;

// Opens the property dialog of a label; the dialogs define it.
void ShowLabelProperties(CXGraphLabel& label);

class CXGraphLabel : public CXGraphObject
{
    DECLARE_SERIAL(CXGraphLabel)

public:
    CXGraphLabel();
    CXGraphLabel(const CXGraphLabel&) = delete;
    CXGraphLabel& operator=(const CXGraphLabel&) = delete;
    ~CXGraphLabel() override;

    CString m_cText; // " " at first; may hold line feeds
    CEdit m_Edit;    // the in-place editor, while one is open
    CFont m_Font;    // Arial 14
    COLORREF m_crFillColor;
    COLORREF m_crTextColor = 0;
    bool m_bBorder = true;
    bool m_bTransparent = false;
    UINT m_nAlignment = 0; // DrawText format flags
    int m_nCurve = -1;     // curve that the label is tied to; -1 for none

    void SetFont(const LOGFONTW& font);

    // The base's 27 bytes, text, font record, both colours, both flags, alignment, curve.
    void Serialize(CArchive& ar) override;
    void Draw(CDCEx* pDC) override;

    // An edit control over the box; EndEdit takes its text. There is no way to cancel.
    void BeginEdit() override;
    void EndEdit() override;
    // A popup menu at the mouse, and from it the property dialog.
    void InvokeProperties() override;

private:
    void DrawTie(CDCEx* pDC);
};
