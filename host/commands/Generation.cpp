// The commands that generate nodes.
#include "dialogs/generation/DialogGenNodi2P.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/commands/Subjects.h"

namespace host {

namespace {

const Command rows[] = {
    {.menu = CommandMenu::Generate, .dialog = CDialogGenNodiLineare::IDD, .open = OpenTool<CDialogGenNodiLineare>},
    {.menu = CommandMenu::Generate, .dialog = CDialogGenNodi2P::IDD, .open = OpenTool<CDialogGenNodi2P>},
};

} // namespace

std::span<const Command> GenerationCommands() {
    return rows;
}

} // namespace host
