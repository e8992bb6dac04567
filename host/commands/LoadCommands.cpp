#include "host/commands/LoadCommands.h"

#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "dialogs/loads/DialogCreaCombinazione.h"
#include "dialogs/loads/DialogCreaGruppo.h"
#include "dialogs/loads/DialogInsertNome.h"
#include "dialogs/loads/DialogListaCasiCarico.h"
#include "host/document/HostDocument.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Gruppo.h"
#include "platform/window/Application.h"

namespace host {

void RunLoadCaseList(HostDocument& document, CWnd& frame) {
    CDialogListaCasiCarico(&document, &frame).DoModal();
}

void RunNewLoadCase(HostDocument& document, CWnd& frame) {
    CDialogCreaCasoCarico dialog(&frame);
    dialog.m_strNumero.Format("%d", document.Data().NextId(Kind::LoadCase));
    dialog.m_strNome = "Caso " + dialog.m_strNumero;
    if (!AskNewName(dialog, document))
        return;
    if (CCasoCarico* loadCase = document.CreaCasoCarico(dialog.m_strNome))
        document.SelectCasoCarico(loadCase->GetID());
}

void RunNewCombination(HostDocument&, CWnd& frame) {
    CDialogCreaCombinazione(CDialogCreaCombinazione::Crea, &frame).DoModal();
}

void RunChangeCombination(HostDocument&, CWnd& frame) {
    CDialogCreaCombinazione(CDialogCreaCombinazione::Modifica, &frame).DoModal();
}

void RunNewGroup(HostDocument& document, CWnd& frame) {
    if (document.Selection().IsEmpty()) {
        AfxMessageBox("Selezionare prima gli elementi del gruppo.");
        return;
    }
    CDialogCreaGruppo dialog(&frame);
    dialog.m_strNome.Format("Gruppo %d", document.Data().NextId(Kind::Group));
    while (dialog.DoModal() == IDOK) {
        if (dialog.m_strNome.IsEmpty()) {
            AfxMessageBox("Immettere il nome del gruppo.");
        } else if (document.GetGroup(dialog.m_strNome)) {
            AfxMessageBox("Esiste già un gruppo con lo stesso nome."_t);
        } else {
            document.CreateGroup(dialog.m_strNome);
            return;
        }
    }
}

void RunNamePrompt(HostDocument&, CWnd& frame) {
    CDialogInsertNome dialog(&frame);
    dialog.m_strEtichetta = "Nome :";
    dialog.DoModal();
}

} // namespace host
