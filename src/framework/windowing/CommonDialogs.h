#pragma once
// The platform's dialogs for a font and for a colour. They run modally over the parent's
// top-level window; without a parent, over the active window of the thread.

#include <windows.h>

#include <commdlg.h>

class CWnd;

class CFontDialog
{
public:
    // With lplfInitial the dialog starts from that font, which also takes the result.
    explicit CFontDialog(LOGFONTW* lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CWnd* pParentWnd = nullptr) noexcept;
    CFontDialog(const CFontDialog&) = delete;
    CFontDialog& operator=(const CFontDialog&) = delete;

    // IDOK, or IDCANCEL where the user or the platform ended it.
    INT_PTR DoModal();
    // The chosen font, after IDOK.
    void GetCurrentFont(LOGFONTW* lplf) const noexcept { *lplf = m_lf; }
    [[nodiscard]] COLORREF GetColor() const noexcept { return m_cf.rgbColors; }

    CHOOSEFONTW m_cf = {};
    LOGFONTW m_lf = {};

private:
    LOGFONTW* m_pInitial;
    CWnd* m_pParentWnd;
};

class CColorDialog
{
public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr) noexcept;
    CColorDialog(const CColorDialog&) = delete;
    CColorDialog& operator=(const CColorDialog&) = delete;

    INT_PTR DoModal();
    // The chosen colour, after IDOK.
    [[nodiscard]] COLORREF GetColor() const noexcept { return m_cc.rgbResult; }
    // The 16 custom colours that all these dialogs of the module share.
    [[nodiscard]] static COLORREF* GetSavedCustomColors() noexcept;

    CHOOSECOLORW m_cc = {};

private:
    CWnd* m_pParentWnd;
};
