// Labels under the user's hands: the editor in place, the popup menu, and texts of any length.

#include "FrameRecording.h"
#include "NativeGraph.h"

namespace
{

class LabelEditing : public GraphTest
{
protected:
    LabelEditing()
    {
        graph.m_bShowLegend = false;
        label = graph.InsertLabel(CRect(100, 100, 200, 150), L"old text");
        Paint();
    }
    void Click(int x, int y)
    {
        graph.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
        graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    void DoubleClick(int x, int y)
    {
        Click(x, y);
        graph.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
        graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    void Type(const wchar_t* pszText)
    {
        for (; *pszText != 0; ++pszText)
            label->m_Edit.SendMessage(WM_CHAR, *pszText);
    }
    CXGraphLabel* label;
};

CString LongText()
{
    std::wstring text;
    for (int i = 0; i < 10000; ++i)
        text += i % 10 == 0 ? L"50% %s%n\r\n" : L"0123456789";
    return CString(text.c_str());
}

} // namespace

TEST_F(LabelEditing, ADoubleClickOpensAnEditorOverTheBox)
{
    label->m_nAlignment = DT_CENTER;
    DoubleClick(150, 125);
    ASSERT_NE(label->m_Edit.m_hWnd, nullptr);
    EXPECT_TRUE(label->m_bEditing);
    EXPECT_FALSE(label->m_bSizing);
    EXPECT_EQ(::GetDlgCtrlID(label->m_Edit.m_hWnd), 65534);
    EXPECT_EQ(::GetParent(label->m_Edit.m_hWnd), graph.m_hWnd);
    const LONG style = ::GetWindowLongW(label->m_Edit.m_hWnd, GWL_STYLE);
    EXPECT_EQ(style & 0x500010C4, 0x500010C4);
    EXPECT_EQ(style & ES_CENTER, ES_CENTER); // the alignment's bit is the editor's too
    CRect place;
    ::GetWindowRect(label->m_Edit.m_hWnd, &place);
    ::MapWindowPoints(nullptr, graph.m_hWnd, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place, CRect(101, 101, 199, 149));
    CString text;
    label->m_Edit.GetWindowText(text);
    EXPECT_EQ(text, L"old text");
    DWORD from = 9;
    DWORD to = 9;
    label->m_Edit.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(from, 0u);
    EXPECT_EQ(to, 8u);
    EXPECT_EQ(::GetFocus(), label->m_Edit.m_hWnd);
    EXPECT_EQ(label->m_Edit.SendMessage(WM_GETFONT),
              reinterpret_cast<LRESULT>(static_cast<HFONT>(label->m_Font)));
}

TEST_F(LabelEditing, TypingReplacesTheTextAndAClickElsewhereCommitsIt)
{
    DoubleClick(150, 125);
    Type(L"new 100%");
    EXPECT_EQ(label->m_cText, L"old text");
    Click(300, 200);
    EXPECT_EQ(label->m_cText, L"new 100%");
    EXPECT_EQ(label->m_Edit.m_hWnd, nullptr);
    EXPECT_FALSE(label->m_bEditing);
    EXPECT_FALSE(label->m_bSelected);
}

TEST_F(LabelEditing, ReturnMakesASecondLine)
{
    DoubleClick(150, 125);
    Type(L"one\rtwo");
    Click(300, 200);
    EXPECT_EQ(label->m_cText, L"one\r\ntwo");
}

TEST_F(LabelEditing, WhileItIsEditedTheLabelDrawsNoText)
{
    const std::size_t nTexts = FrameRecording(graph).Texts().size();
    DoubleClick(150, 125);
    EXPECT_EQ(FrameRecording(graph).Texts().size(), nTexts - 1);
}

TEST_F(LabelEditing, OutsideItsOperationADoubleClickDoesNothing)
{
    graph.Zoom();
    DoubleClick(150, 125);
    EXPECT_FALSE(label->m_bEditing);
    graph.NoOp();
    label->m_bCanEdit = false;
    DoubleClick(150, 125);
    EXPECT_EQ(label->m_Edit.m_hWnd, nullptr);
    label->EndEdit();
    EXPECT_EQ(label->m_cText, L"old text");
}

TEST_F(LabelEditing, EditingAgainStartsWithANewEditor)
{
    label->BeginEdit();
    Type(L"lost");
    label->BeginEdit();
    ASSERT_NE(label->m_Edit.m_hWnd, nullptr);
    CString text;
    label->m_Edit.GetWindowText(text);
    EXPECT_EQ(text, L"old text");
    EXPECT_EQ(::FindWindowExW(graph.m_hWnd, label->m_Edit.m_hWnd, L"EDIT", nullptr), nullptr);
}

TEST_F(LabelEditing, LongTextsWithPercentSignsAndLinesComeBackWhole)
{
    const CString text = LongText();
    ASSERT_GT(text.GetLength(), 99000);
    label->m_cText = text;
    Paint();
    label->BeginEdit();
    Paint();
    label->EndEdit();
    EXPECT_TRUE(label->m_cText == text);
    for (const UINT nAlignment :
         {DT_WORDBREAK, DT_SINGLELINE | DT_VCENTER | DT_RIGHT, DT_END_ELLIPSIS}) {
        label->m_nAlignment = nAlignment;
        Paint();
    }
    EXPECT_TRUE(label->m_cText == text);
}

TEST_F(LabelEditing, EveryAlignmentFromOutsidePaintsAndEdits)
{
    label->m_cText = L"a text that is too long for its box by far, and for its second line too";
    for (const UINT nAlignment : {0xFFFFFFFFu, 0x80000000u, 0x08000000u, 0x30000000u, 0x7FFFFFFFu}) {
        label->m_nAlignment = nAlignment;
        Paint();
        label->BeginEdit();
        ASSERT_NE(label->m_Edit.m_hWnd, nullptr) << nAlignment;
        EXPECT_TRUE(::IsChild(graph.m_hWnd, label->m_Edit.m_hWnd)) << nAlignment;
        EXPECT_TRUE(::IsWindowEnabled(label->m_Edit.m_hWnd)) << nAlignment;
        Paint();
        label->EndEdit();
        EXPECT_EQ(label->m_cText.GetLength(), 71) << nAlignment;
    }
}

TEST_F(LabelEditing, TheEditorTakesANewFontOverAtOnce)
{
    label->BeginEdit();
    LOGFONTW font = {};
    font.lfHeight = 30;
    label->SetFont(font);
    EXPECT_EQ(label->m_Edit.SendMessage(WM_GETFONT),
              reinterpret_cast<LRESULT>(static_cast<HFONT>(label->m_Font)));
}

TEST_F(LabelEditing, AnEditorThatGoesWithItsWindowKeepsTheText)
{
    label->BeginEdit();
    Type(L"typed");
    graph.DestroyWindow();
    EXPECT_EQ(label->m_Edit.m_hWnd, nullptr);
    label->EndEdit();
    EXPECT_FALSE(label->m_bEditing);
    EXPECT_EQ(label->m_cText, L"old text");
}

TEST_F(LabelEditing, ALabelThatIsDeletedTakesItsEditorAlong)
{
    label->BeginEdit();
    const HWND hEditor = label->m_Edit.m_hWnd;
    graph.ResetAll();
    EXPECT_FALSE(::IsWindow(hEditor));
    EXPECT_EQ(graph.m_Objects.GetCount(), 1);
}

TEST_F(LabelEditing, DeleteInTheEditorDeletesCharactersOnly)
{
    DoubleClick(150, 125);
    MSG message = {};
    message.hwnd = label->m_Edit.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = VK_DELETE;
    graph.PreTranslateMessage(&message);
    EXPECT_EQ(graph.m_Objects.GetCount(), 2);
}

TEST_F(LabelEditing, ATieIsHiddenByTheBoxOfAnOpaqueLabelOnly)
{
    AddLine();
    graph.GetCurve(0)->m_bVisible = false;
    label->m_cText = L"";
    label->m_nCurve = 0;
    label->m_rcObject = CRect(60, 60, 120, 120);
    label->m_crFillColor = 0x00FF00;
    const Picture opaque = Shoot();
    EXPECT_EQ(opaque.At(90, 90), 0x00FF00u);
    label->m_bTransparent = true;
    const Picture transparent = Shoot();
    CRect inner = label->m_rcObject;
    inner.DeflateRect(2, 2);
    EXPECT_GT(transparent.Count(inner, 0x000000), 10); // the line's inner half
}

TEST_F(LabelEditing, ATieToACurveWithoutPointsIsLeftOut)
{
    label->m_nCurve = 0;
    AddLine()->ReplaceData(nullptr, 0, false);
    Paint();
    SUCCEED();
}

TEST_F(LabelEditing, OnAMonochromeTargetTheBoxIsWhiteAndTheTextBlack)
{
    label->m_crFillColor = 0x00FF00;
    label->m_crTextColor = 0x0000FF;
    COLORREF crText = 1;
    const FrameRecording recording(graph, [](CDCEx& dc) { dc.m_bMono = true; });
    recording.ForEach([&](const ENHMETARECORD& record) {
        if (record.iType == EMR_SETTEXTCOLOR &&
            reinterpret_cast<const EMRSETTEXTCOLOR&>(record).crColor == 0x0000FF)
            crText = 0x0000FF;
    });
    EXPECT_EQ(crText, 1u); // its own colour was never set
    for (const COLORREF color : recording.FilledColors())
        EXPECT_NE(color, 0x00FF00u);
}
