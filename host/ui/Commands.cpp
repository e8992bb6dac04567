#include "host/ui/Commands.h"

#include "dialogs/check/DialogCheck.h"
#include "dialogs/check/DialogStrutture.h"
#include "dialogs/generation/DialogGenNodi2P.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "dialogs/loads/DialogListaGruppi.h"
#include "dialogs/results/DialogDiagrammi.h"
#include "dialogs/results/DialogNodoReazioniVincolari.h"
#include "dialogs/selection/DialogCopiaRuota.h"
#include "dialogs/selection/DialogCopiaTrasla.h"
#include "dialogs/selection/DialogMuovi.h"
#include "dialogs/selection/DialogRuota.h"
#include "dialogs/selection/DialogSpecchia.h"
#include "host/ui/CheckCommands.h"
#include "host/ui/LoadCommands.h"

namespace {

template <class Dialog>
std::unique_ptr<CDialogDocument> make(CWnd* parent) {
    return std::make_unique<Dialog>(parent);
}

const ToolCommand toolCommands[] = {
    {CommandMenu::Generate, "Generazione Nodi Lineare", make<CDialogGenNodiLineare>},
    {CommandMenu::Generate, "Generazione Nodi 2 Punti", make<CDialogGenNodi2P>},
    {CommandMenu::Select, "Copia Trasla", make<CDialogCopiaTrasla>},
    {CommandMenu::Select, "Copia Ruota", make<CDialogCopiaRuota>},
    {CommandMenu::Select, "Muovi", make<CDialogMuovi>},
    {CommandMenu::Select, "Ruota", make<CDialogRuota>},
    {CommandMenu::Select, "Specchia", make<CDialogSpecchia>},
    {CommandMenu::Loads, "Lista Gruppi", make<CDialogListaGruppi>},
    {CommandMenu::Results, "Diagrammi", make<CDialogDiagrammi>},
    {CommandMenu::Results, "Nodo Reazioni Vincolari", make<CDialogNodoReazioniVincolari>},
    {CommandMenu::Tools, "Check Modello", make<CDialogCheck>, RequestCheck},
    {CommandMenu::Tools, "Strutture", make<CDialogStrutture>},
};

const ModalCommand modalCommands[] = {
    {CommandMenu::Loads, "Casi di Carico", RunLoadCaseList},
    {CommandMenu::Loads, "Crea Caso di Carico", RunNewLoadCase},
    {CommandMenu::Loads, "Crea Combinazione", RunNewCombination},
    {CommandMenu::Loads, "Modifica Combinazione", RunChangeCombination},
    {CommandMenu::Loads, "Crea Gruppo", RunNewGroup},
    {CommandMenu::Prompts, "Nuovo Nome", RunNamePrompt},
};

} // namespace

std::span<const ToolCommand> ToolCommands() {
    return toolCommands;
}

std::span<const ModalCommand> ModalCommands() {
    return modalCommands;
}
