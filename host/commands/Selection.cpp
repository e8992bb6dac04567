// The commands that copy and transform what is selected.
#include "dialogs/selection/DialogBeta.h"
#include "dialogs/selection/DialogCopiaRuota.h"
#include "dialogs/selection/DialogCopiaTrasla.h"
#include "dialogs/selection/DialogMuovi.h"
#include "dialogs/selection/DialogRuota.h"
#include "dialogs/selection/DialogSpecchia.h"
#include "host/commands/Subjects.h"

namespace host {

namespace {

template <class Dialog>
constexpr Command row = {
    .menu = CommandMenu::Select, .dialog = Dialog::IDD, .needs = Needs::Selection, .open = OpenTool<Dialog>};

const Command rows[] = {
    row<CDialogCopiaTrasla>, row<CDialogCopiaRuota>,
    row<CDialogMuovi>,       row<CDialogRuota>,
    row<CDialogSpecchia>,    {.menu = CommandMenu::Select, .dialog = CDialogBeta::IDD, .open = OpenTool<CDialogBeta>}};

} // namespace

std::span<const Command> SelectionCommands() {
    return rows;
}

} // namespace host
