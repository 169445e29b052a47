// The dialog of a label, by its popup menu.

#include "CurvePageHost.h"
#include "KeyWalk.h"
#include "support/Openings.h"

using namespace DialogHands;

namespace
{

constexpr const wchar_t* Label = L"属性";
enum : int {
    ok = 1,
    cancel = 2,
    apply = 5002,
    color = 6007,
    border = 6054,
    alignment = 6056,
    font = 6068,
    curve = 6071,
    transparent = 6078
};

class LabelDialog : public CurvePageTest
{
protected:
    void SetUp() override
    {
        CurvePageTest::SetUp();
        text = AddLabel({150, 60, 260, 120}, L"A label's text");
        Click({200, 90});
        Frame();
    }
    void TearDown() override
    {
        EXPECT_EQ(ModalScript::FindAny(), nullptr);
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_TRUE(host.m_hWnd == nullptr || ::IsWindowEnabled(host.m_hWnd));
    }
    // The menu of the label, its item, and then the dialog; closed after it.
    void OpenAnd(std::function<void(HWND)> work)
    {
        Begin([work](HWND hDialog) {
            work(hDialog);
            ::PostMessageW(hDialog, WM_CLOSE, 0, 0);
        });
    }
    void Begin(std::function<void(HWND)> work)
    {
        script.WhenMenu([](HWND hMenu) {
            ::PostMessageW(hMenu, WM_KEYDOWN, VK_DOWN, 0);
            ::PostMessageW(hMenu, WM_KEYDOWN, VK_RETURN, 0);
        });
        script.When(Label, std::move(work));
        // The menu is that of the object pressed last. A press on a label in its frame waits for
        // the release.
        ::PostMessageW(Handle(), WM_LBUTTONUP, 0, MAKELPARAM(200, 90));
        Press({200, 90});
        HostWindow::Pump();
        RightClick({200, 90});
    }
    // The base's colour of the label, which is the last field before its text in a file.
    COLORREF BaseColor() const
    {
        const std::string bytes = ObjectBytes();
        const std::wstring sought = L"A label's text";
        const std::size_t at =
            bytes.find(std::string(reinterpret_cast<const char*>(sought.data()), sought.size() * 2));
        COLORREF value = CLR_INVALID;
        if (at != std::string::npos)
            std::memcpy(&value, bytes.data() + at - 4 - sizeof value, sizeof value);
        return value;
    }
    template <class Value> Value Of(HRESULT (STDMETHODCALLTYPE ISGraphLabel::*get)(Value*))
    {
        return Got(text.Get(), get);
    }

    Holder<ISGraphLabel> text;
};

} // namespace

TEST_F(LabelDialog, ItsMenuOpensItOnTheLabelsFields)
{
    text->SetBorder(0);
    text->SetTransparent(1);
    OpenAnd([](HWND hDialog) {
        Choose(hDialog, curve, 1);
        Click(hDialog, apply);
    });
    text->SetAlignment(2);
    OpenAnd([](HWND hDialog) {
        EXPECT_FALSE(IsChecked(hDialog, border));
        EXPECT_TRUE(IsChecked(hDialog, transparent));
        EXPECT_EQ(RowOf(hDialog, alignment), 2);
        EXPECT_EQ(RowOf(hDialog, curve), 1);
        EXPECT_FALSE(IsEnabled(hDialog, apply));
    });
}

TEST_F(LabelDialog, TheCurvesAreNumberedWithTwoDigits)
{
    Curve(0)->SetLabel(Text(L"a"));
    Curve(1)->SetLabel(Text(L"b"));
    Curve(2)->SetLabel(Text(L"c"));
    OpenAnd([](HWND hDialog) {
        EXPECT_EQ(RowsOf(hDialog, curve), (std::vector<std::wstring>{L"01 a", L"02 b", L"03 c"}));
    });
}

// The rows are a decision of ours: left, centred, right, as DrawText counts them.
TEST_F(LabelDialog, TheAlignmentsAreLeftCentreAndRight)
{
    OpenAnd([](HWND hDialog) {
        EXPECT_EQ(RowsOf(hDialog, alignment), (std::vector<std::wstring>{L"左", L"中", L"右"}));
        EXPECT_EQ(RowOf(hDialog, alignment), 0);
        Choose(hDialog, alignment, 1);
        Click(hDialog, apply);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetAlignment), static_cast<unsigned>(DT_CENTER));
}

TEST_F(LabelDialog, AnAlignmentThatHasNoRowBecomesAllBits)
{
    text->SetAlignment(DT_WORDBREAK | DT_CENTER);
    OpenAnd([](HWND hDialog) {
        EXPECT_EQ(RowOf(hDialog, alignment), -1);
        Click(hDialog, border);
        Click(hDialog, apply);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetAlignment), 0xFFFFFFFFu);
    Shoot();
}

TEST_F(LabelDialog, ALabelOfNoCurveShowsNoneAndKeepsNone)
{
    OpenAnd([](HWND hDialog) {
        EXPECT_EQ(RowOf(hDialog, curve), -1);
        Click(hDialog, border);
        Click(hDialog, apply);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetCurve), -1);
    EXPECT_EQ(Of(&ISGraphLabel::GetBorder), 0);
}

TEST_F(LabelDialog, AGraphWithoutCurvesHasAnEmptyList)
{
    graph->DeleteCurve(2);
    graph->DeleteCurve(1);
    graph->DeleteCurve(0);
    Frame();
    OpenAnd([](HWND hDialog) { EXPECT_TRUE(RowsOf(hDialog, curve).empty()); });
}

TEST_F(LabelDialog, EachChangeEnablesApplyAndApplyDisablesIt)
{
    const std::vector<std::function<void(HWND)>> changes = {
        [](HWND hDialog) { Click(hDialog, border); },
        [](HWND hDialog) { Click(hDialog, transparent); },
        [](HWND hDialog) { Choose(hDialog, alignment, 2); },
        [](HWND hDialog) { Choose(hDialog, curve, 1); },
    };
    OpenAnd([&](HWND hDialog) {
        for (std::size_t i = 0; i < changes.size(); ++i) {
            EXPECT_FALSE(IsEnabled(hDialog, apply)) << i;
            changes[i](hDialog);
            EXPECT_TRUE(IsEnabled(hDialog, apply)) << i;
            Clean();
            Click(hDialog, apply);
            EXPECT_TRUE(IsDirty()) << i;
        }
        EXPECT_FALSE(IsEnabled(hDialog, apply));
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetBorder), 0);
    EXPECT_EQ(Of(&ISGraphLabel::GetTransparent), 1);
    EXPECT_EQ(Of(&ISGraphLabel::GetAlignment), 2u);
    EXPECT_EQ(Of(&ISGraphLabel::GetCurve), 1);
}

TEST_F(LabelDialog, TheColourIsTheObjectsAndNotTheBoxes)
{
    const unsigned long crBox = Of(&ISGraphLabel::GetColor);
    OpenAnd([](HWND hDialog) {
        Click(hDialog, color);
        const HWND hPopup = ::GetCapture();
        ASSERT_NE(hPopup, nullptr);
        for (const WPARAM nKey : {VK_DOWN, VK_RIGHT, VK_RETURN})
            ::SendMessageW(hPopup, WM_KEYDOWN, nKey, 1);
        EXPECT_TRUE(IsEnabled(hDialog, apply));
        Click(hDialog, apply);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetColor), crBox);
    const COLORREF crStored = BaseColor();
    EXPECT_NE(crStored, 0u);
    EXPECT_NE(crStored, CLR_INVALID);
    OpenAnd([&](HWND hDialog) {
        // Back from the label into the button: nothing is changed by another Apply.
        Click(hDialog, border);
        Click(hDialog, apply);
    });
    EXPECT_EQ(BaseColor(), crStored);
}

TEST_F(LabelDialog, OkAppliesAndCancelDoesNot)
{
    Begin([](HWND hDialog) {
        Click(hDialog, border);
        Click(hDialog, ok);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetBorder), 0);
    Begin([](HWND hDialog) {
        Click(hDialog, border);
        Click(hDialog, cancel);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetBorder), 0);
}

TEST_F(LabelDialog, EnterPressesOkAndEscapeCancel)
{
    Begin([](HWND hDialog) {
        Click(hDialog, border);
        ::SetFocus(::GetDlgItem(hDialog, alignment));
        PostKey(VK_ESCAPE);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetBorder), 1);
    Begin([](HWND hDialog) {
        EXPECT_EQ(::SendMessageW(hDialog, DM_GETDEFID, 0, 0), MAKELRESULT(IDOK, DC_HASDEFID));
        Click(hDialog, border);
        ::SetFocus(::GetDlgItem(hDialog, alignment));
        PostKey(VK_RETURN);
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetBorder), 0);
}

TEST_F(LabelDialog, TabFollowsTheTemplate)
{
    for (const bool bBack : {false, true}) {
        Begin([this, bBack](HWND hDialog) {
            KeyWalk::Round(script, Label, hDialog,
                           {ok, cancel, border, alignment, color, font, curve, transparent}, bBack,
                           [](HWND hStill) { ::PostMessageW(hStill, WM_CLOSE, 0, 0); });
        });
    }
}

TEST_F(LabelDialog, AChosenFontAndItsColourTakeEffectAtOnceAndSurviveCancel)
{
    text->SetTextColor(0x112233);
    const std::string before = ObjectBytes();
    OpenAnd([&](HWND hDialog) {
        script.When(ModalScript::FontDialog,
                    [](HWND hFonts) { ::PostMessageW(hFonts, WM_COMMAND, IDOK, 0); });
        Click(hDialog, font);
        EXPECT_EQ(Of(&ISGraphLabel::GetTextColor), 0u) << "the platform's dialog starts from black";
        EXPECT_NE(ObjectBytes(), before);
        EXPECT_TRUE(IsEnabled(hDialog, apply));
    });
    EXPECT_EQ(Of(&ISGraphLabel::GetTextColor), 0u);
}

TEST_F(LabelDialog, ACancelledFontChangesNothing)
{
    text->SetTextColor(0x112233);
    const std::string before = ObjectBytes();
    OpenAnd([this](HWND hDialog) {
        script.When(ModalScript::FontDialog,
                    [](HWND hFonts) { ::PostMessageW(hFonts, WM_COMMAND, IDCANCEL, 0); });
        Click(hDialog, font);
        EXPECT_FALSE(IsEnabled(hDialog, apply));
    });
    EXPECT_EQ(ObjectBytes(), before);
}

TEST_F(LabelDialog, AHostThatRemovesTheLabelUnderItIsSurvived)
{
    Begin([this](HWND hDialog) {
        graph->ResetAll();
        AddLabel({10, 10, 50, 50}, L"another"); // it may take the former one's place in memory
        graph->ResetAll();
        Click(hDialog, border);
        Click(hDialog, apply);
        EXPECT_FALSE(IsEnabled(hDialog, apply));
        script.When(ModalScript::FontDialog,
                    [](HWND hFonts) { ::PostMessageW(hFonts, WM_COMMAND, IDOK, 0); });
        Click(hDialog, font);
        Click(hDialog, ok);
    });
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(LabelDialog, AHostThatRemovesTheLabelUnderTheFontsIsSurvived)
{
    OpenAnd([this](HWND hDialog) {
        script.When(ModalScript::FontDialog, [this](HWND hFonts) {
            graph->ResetAll();
            ::PostMessageW(hFonts, WM_COMMAND, IDOK, 0);
        });
        Click(hDialog, font);
        EXPECT_FALSE(IsEnabled(hDialog, apply));
    });
}

TEST_F(LabelDialog, AHostThatDestroysTheParentUnderItIsSurvived)
{
    Begin([this](HWND hDialog) {
        host.Destroy();
        EXPECT_FALSE(::IsWindow(hDialog));
    });
}

TEST_F(LabelDialog, AHostThatDestroysTheParentUnderTheFontsIsSurvived)
{
    Begin([this](HWND hDialog) {
        script.When(ModalScript::FontDialog, [this](HWND) { host.Destroy(); });
        Click(hDialog, font);
    });
}

TEST_F(LabelDialog, OpeningsLeaveNothing)
{
    Openings::ExpectNothingLeft([this] {
        Begin([](HWND hDialog) {
            Click(hDialog, border);
            Click(hDialog, ok);
        });
        HostWindow::Pump();
    });
}
