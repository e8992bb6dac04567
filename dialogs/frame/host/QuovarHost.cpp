#include "dialogs/frame/host/QuovarHost.h"

#include "dialogs/frame/host/MainFrame.h"

namespace {
CQuovarHost* installedHost = nullptr;
}

CQuovarHost::~CQuovarHost() {
    if (installedHost == this)
        installedHost = nullptr;
}

void CQuovarHost::Install(CQuovarHost* pHost) {
    installedHost = pHost;
}

CQuovarHost* CQuovarHost::Get() {
    return installedHost;
}

void CMainFrame::_InizioAttesa(CString messaggio, unsigned int nPassi) {
    if (installedHost)
        installedHost->InizioAttesa(messaggio, nPassi);
}

void CMainFrame::_StepBar() {
    if (installedHost)
        installedHost->StepBar();
}

void CMainFrame::_FineAttesa() {
    if (installedHost)
        installedHost->FineAttesa();
}

CMainFrame* CMainFrame::_GetMainFrame() {
    return installedHost ? installedHost->GetMainFrame() : nullptr;
}

CQuovarDoc* CQuovarGlobal::_GetActiveDoc() {
    return installedHost ? installedHost->GetActiveDoc() : nullptr;
}

ModificaDocumento CQuovarGlobal::_GetInformazioniBase(long lHint) {
    return installedHost ? installedHost->GetInformazioniBase(lHint) : static_cast<ModificaDocumento>(lHint);
}

long CQuovarGlobal::_GetInformazioniAggiuntive(long lHint) {
    return installedHost ? installedHost->GetInformazioniAggiuntive(lHint) : 0;
}

void CQuovarGlobal::_SetInformazioniAggiuntive(unsigned long& lHint, unsigned short valore) {
    if (installedHost)
        installedHost->SetInformazioniAggiuntive(lHint, valore);
}

CString CQuovarGlobal::_GetPathFilesVorm(CString path) {
    return installedHost ? installedHost->GetPathFilesVorm(path) : CString();
}

CString CQuovarGlobal::_GetFileInputVorm(int n) {
    return installedHost ? installedHost->GetFileInputVorm(n) : CString();
}

CCasoCarico* CQuovarInterface::CreaCasoCarico(CQuovarDoc* pDoc) {
    return installedHost ? installedHost->CreaCasoCarico(pDoc) : nullptr;
}
