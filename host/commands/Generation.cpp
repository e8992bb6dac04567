// The commands that generate nodes and meshes, and the one that measures.
#include "dialogs/generation/DialogDistanza.h"
#include "dialogs/generation/DialogGenNodi2P.h"
#include "dialogs/generation/DialogGenNodiArco3Punti.h"
#include "dialogs/generation/DialogGenNodiArcoCentro.h"
#include "dialogs/generation/DialogGenNodiCerchio.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "dialogs/generation/DialogMesh2PuntiDir.h"
#include "dialogs/generation/DialogMesh3Punti.h"
#include "dialogs/generation/DialogMesh4Punti.h"
#include "dialogs/generation/DialogNodoRelativo.h"
#include "host/commands/Subjects.h"

namespace host {

namespace {

template <class Dialog>
constexpr Command row = {.menu = CommandMenu::Generate, .dialog = Dialog::IDD, .open = OpenTool<Dialog>};

const Command rows[] = {
    row<CDialogGenNodiLineare>,
    row<CDialogGenNodi2P>,
    row<CDialogGenNodiArco3Punti>,
    row<CDialogGenNodiArcoCentro>,
    row<CDialogGenNodiCerchio>,
    {.menu = CommandMenu::Generate,
     .dialog = CDialogNodoRelativo::IDD,
     .open = OpenTool<CDialogNodoRelativo>,
     .titled = false},
    row<CDialogMesh4Punti>,
    row<CDialogMesh3Punti>,
    row<CDialogMesh2PuntiDir>,
    {.menu = CommandMenu::Tools, .dialog = CDialogDistanza::IDD, .open = OpenTool<CDialogDistanza>},
};

} // namespace

std::span<const Command> GenerationCommands() {
    return rows;
}

} // namespace host
