// What the application around the dialogs does for their static functions. One host is installed at a time.
#pragma once

#include "dialogs/frame/host/QuovarGlobal.h"
#include "platform/core/String.h"

class CMainFrame;

class CQuovarHost {
  public:
    virtual ~CQuovarHost();

    // Makes pHost the one that the static functions reach; it stays the caller's. Null uninstalls. A host that is
    // destroyed while installed uninstalls itself. Without a host the static functions are harmless: no document, no
    // main window, no wait bar, and hints that are all change code.
    static void Install(CQuovarHost* pHost);
    static CQuovarHost* Get();

    virtual CQuovarDoc* GetActiveDoc() = 0;
    virtual CMainFrame* GetMainFrame() = 0;

    virtual void InizioAttesa(CString messaggio, unsigned int nPassi) = 0;
    virtual void StepBar() = 0;
    virtual void FineAttesa() = 0;

    // The packing of hints: the three must agree with each other, and leave 0x200000 and 0x300000 readable as they are.
    virtual ModificaDocumento GetInformazioniBase(long lHint) = 0;
    virtual long GetInformazioniAggiuntive(long lHint) = 0;
    virtual void SetInformazioniAggiuntive(unsigned long& lHint, unsigned short valore) = 0;

    virtual CString GetPathFilesVorm(CString path) = 0;
    virtual CString GetFileInputVorm(int n) = 0;
    virtual CCasoCarico* CreaCasoCarico(CQuovarDoc* pDoc) = 0;
};
