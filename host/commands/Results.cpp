// The windows of results.
#include "dialogs/results/DialogDiagrammi.h"
#include "dialogs/results/DialogNodoReazioniVincolari.h"
#include "host/commands/Subjects.h"

namespace host {

namespace {

void ShowInDiagrams(CDialog& dialog, int kind, bool shown) {
    static_cast<CDialogDiagrammi&>(dialog).AggiornaRisultato(kind, shown);
}

const Command rows[] = {
    {.menu = CommandMenu::Results,
     .dialog = CDialogDiagrammi::IDD,
     .open = OpenTool<CDialogDiagrammi>,
     .resultShown = ShowInDiagrams},
    {.menu = CommandMenu::Results,
     .dialog = CDialogNodoReazioniVincolari::IDD,
     .open = OpenTool<CDialogNodoReazioniVincolari>},
};

} // namespace

std::span<const Command> ResultCommands() {
    return rows;
}

} // namespace host
