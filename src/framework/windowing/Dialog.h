#pragma once
// CDialog: a window made from a dialog template of the module, modal or modeless.
//
// A derived class overrides DoDataExchange to tie its members to the controls, OnInitDialog
// to prepare them, OnOK and OnCancel. UpdateData moves the data: TRUE from the controls to the
// members, FALSE the other way. The keys of a dialog (Tab, Enter, Escape, mnemonics) work in
// every loop of the thread, by PreTranslateMessage.

#include "framework/windowing/DataExchange.h"
#include "framework/windowing/Window.h"

class CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
    DECLARE_MESSAGE_MAP()
public:
    // For a modeless dialog, which Create makes.
    CDialog() = default;
    // For a modal dialog. Its owner is the parent's top-level window; without a parent, the
    // active window of the thread.
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);

    // Makes a modeless dialog; FALSE if there is no such template or no window.
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    // Runs the dialog until EndDialog, with its owner disabled. The result is that of
    // EndDialog; -1 if the dialog could not be made, IDABORT if its window was destroyed or
    // the thread has to quit meanwhile.
    virtual INT_PTR DoModal();
    // Ends the modal loop; DoModal then destroys the window.
    void EndDialog(int nResult);

    // FALSE if the data was refused; the user knows why by then. Notifications of the
    // controls go nowhere while the exchange runs.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    // The lists of the template's initialisation resource are filled here, and the controls
    // set from the members. TRUE lets the platform set the focus to the first control.
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnNcDestroy();

private:
    [[nodiscard]] bool CreateIndirect(UINT nIDTemplate, HWND hWndParent);
    void RunModalLoop();
    // The owner learns that the dialog waits for messages.
    void NotifyIdle() const;
    // Over the middle of its owner, unless the template or OnInitDialog has placed it.
    void CenterOnOwner() const;

    UINT m_nIDTemplate = 0;
    CWnd* m_pParentWnd = nullptr;
    INT_PTR m_nModalResult = -1;
    bool m_bUnplaced = false;   // the template leaves the place to us
    bool m_bRunning = false;    // a modal loop is to go on
    bool m_bExchanging = false; // UpdateData is under way
};
