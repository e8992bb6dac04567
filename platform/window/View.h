// The framework's document and view, as far as dialogs know them.
#pragma once

#include "platform/window/Window.h"

class CDocument : public CObject {
    DECLARE_DYNAMIC(CDocument)
  public:
    const CString& GetPathName() const { return m_strPathName; } // empty while the document was never saved
    virtual void SetPathName(LPCTSTR path) { m_strPathName = path; }
    const CString& GetTitle() const { return m_strTitle; }
    virtual void SetTitle(LPCTSTR title) { m_strTitle = title; }
    BOOL IsModified() const { return m_bModified; }
    virtual void SetModifiedFlag(BOOL modified = TRUE) { m_bModified = modified; }

  protected:
    CString m_strPathName;
    CString m_strTitle;
    BOOL m_bModified = FALSE;
};

class CView : public CWnd {
    DECLARE_DYNAMIC(CView)
};
