// The commands of load cases, combinations and groups.
#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "dialogs/loads/DialogCreaCombinazione.h"
#include "dialogs/loads/DialogCreaGruppo.h"
#include "dialogs/loads/DialogInsertNome.h"
#include "dialogs/loads/DialogListaCasiCarico.h"
#include "dialogs/loads/DialogListaGruppi.h"
#include "host/commands/Subjects.h"
#include "host/document/HostDocument.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Gruppo.h"
#include "platform/window/Application.h"

namespace host {

namespace {

void RunLoadCaseList(HostDocument& document, CWnd& frame) {
    CDialogListaCasiCarico(&document, &frame).DoModal();
}

// And makes it the current one.
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

// The current one.
void RunChangeCombination(HostDocument&, CWnd& frame) {
    CDialogCreaCombinazione(CDialogCreaCombinazione::Modifica, &frame).DoModal();
}

// Of what is selected.
void RunNewGroup(HostDocument& document, CWnd& frame) {
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

// The bare prompt, for pictures.
void RunNamePrompt(HostDocument&, CWnd& frame) {
    CDialogInsertNome dialog(&frame);
    dialog.m_strEtichetta = "Nome :";
    dialog.DoModal();
}

const Command rows[] = {
    {.menu = CommandMenu::Loads, .dialog = CDialogListaCasiCarico::IDD, .run = RunLoadCaseList},
    {.menu = CommandMenu::Loads, .dialog = CDialogCreaCasoCarico::IDD, .run = RunNewLoadCase},
    {.menu = CommandMenu::Loads,
     .dialog = CDialogCreaCombinazione::IDD,
     .kind = CDialogCreaCombinazione::Crea,
     .run = RunNewCombination},
    {.menu = CommandMenu::Loads,
     .dialog = CDialogCreaCombinazione::IDD,
     .caption = "Modifica Combinazione",
     .kind = CDialogCreaCombinazione::Modifica,
     .run = RunChangeCombination},
    {.menu = CommandMenu::Loads, .dialog = CDialogCreaGruppo::IDD, .needs = Needs::Selection, .run = RunNewGroup},
    {.menu = CommandMenu::Loads, .dialog = CDialogListaGruppi::IDD, .open = OpenTool<CDialogListaGruppi>},
    {.menu = CommandMenu::Prompts, .dialog = CDialogInsertNome::IDD, .run = RunNamePrompt},
};

} // namespace

std::span<const Command> LoadCommands() {
    return rows;
}

} // namespace host
