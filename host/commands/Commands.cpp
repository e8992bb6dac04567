#include "host/commands/Commands.h"

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
#include "host/commands/CheckCommands.h"
#include "host/commands/LoadCommands.h"

namespace host {

namespace {

template <class Dialog>
std::unique_ptr<CDialogDocument> Make(CWnd* parent) {
    return std::make_unique<Dialog>(parent);
}

const ToolCommand toolCommands[] = {
    {CommandMenu::Generate, "Generazione Nodi Lineare", Make<CDialogGenNodiLineare>},
    {CommandMenu::Generate, "Generazione Nodi 2 Punti", Make<CDialogGenNodi2P>},
    {CommandMenu::Select, "Copia Trasla", Make<CDialogCopiaTrasla>},
    {CommandMenu::Select, "Copia Ruota", Make<CDialogCopiaRuota>},
    {CommandMenu::Select, "Muovi", Make<CDialogMuovi>},
    {CommandMenu::Select, "Ruota", Make<CDialogRuota>},
    {CommandMenu::Select, "Specchia", Make<CDialogSpecchia>},
    {CommandMenu::Loads, "Lista Gruppi", Make<CDialogListaGruppi>},
    {CommandMenu::Results, "Diagrammi", Make<CDialogDiagrammi>},
    {CommandMenu::Results, "Nodo Reazioni Vincolari", Make<CDialogNodoReazioniVincolari>},
    {CommandMenu::Tools, "Check Modello", Make<CDialogCheck>, RequestCheck},
    {CommandMenu::Tools, "Strutture", Make<CDialogStrutture>},
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

} // namespace host
