// Base of the modeless tool dialogs: a dialog that is bound to one structure view, and through it to a document, that
// receives the points picked there, and that asks the view to end it on OK and on Cancel.
#pragma once

#include "dialogs/frame/host/QuovarView.h"
#include "model/values/FPoint.h"
#include "platform/window/Dialog.h"

class CDialogDocument : public CDialog {
    DECLARE_DYNAMIC(CDialogDocument)

  public:
    CDialogDocument(UINT nIDD, CWnd* pParent);

    // Binds the dialog to the view and makes its window from the template. An open dialog is only bound again and the
    // result is 0, as when the window cannot be made.
    int Create(CQuovarView* pView);
    int IsWindow();
    int IsCancel();

    // The host's news about views: one is going, told while its window still exists; one became active and may be taken
    // by a dialog that has none.
    void VistaEliminata(CView* pView);
    void AggiornaVista(CQuovarView* pView);

    // Points picked in the view. bAggiorna says whether the controls are read before and written after.
    virtual void SetVettoreFrom(CFPoint point, int bAggiorna);
    virtual void SetVettoreFrom(CFPoint point);
    virtual void SetVettoreTo(CFPoint point, int bAggiorna);
    virtual void SetVettoreTo(CFPoint point);
    // Every change of the document, with the arguments of CQuovarDoc::UpdateAllViews.
    virtual void Update(CView* pSender, long lHint, CObject* pHint);
    // Runs the command and leaves the dialog open.
    virtual void OnApply();
    // The caption: the document's file name, " : " and the title; without a document the title alone. A dialog with the
    // title of its template gives the caption that it opens with, GetWindowText().
    virtual void SetTitle(CString titolo);
    // The dialog's command on the document.
    virtual void CambiaDocumento();

  protected:
    virtual void SetView(CQuovarView* pView);

  public:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    BOOL OnInitDialog() override;
    // The view ends the dialog, and may delete it, before these return: nothing is touched after calling them.
    void OnOK() override;
    void OnCancel() override;

  protected:
    // The view and its document; null once the view's window is gone.
    CQuovarView* GetView();
    CQuovarDoc* GetDoc();

    // Set when an edit changed, cleared when its value was applied; kept by derived dialogs only.
    void SetModified(int bModified);
    int IsModified();
    // Whether the mouse over the dialog's frame pulls the keyboard focus, and to which control (null: the dialog).
    void SetAutoFocus(int bAutoFocus);
    int IsAutoFocus();
    void SetWndAutoFocus(CWnd* pWnd);
    CWnd* GetWndAutoFocus();

    CQuovarView* m_pView;
    UINT m_nIDD;
    int m_bCancel;
    int m_bModified;
    int m_bAutoFocus;
    CWnd* m_pWndAutoFocus;

    DECLARE_MESSAGE_MAP()
};
