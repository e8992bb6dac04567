// The commands of views, appearance and units.
#include "dialogs/views/DialogUnita.h"
#include "host/commands/Subjects.h"
#include "host/document/HostDocument.h"

namespace host {

namespace {

void RunUnits(HostDocument& document, CWnd& frame) {
    CDialogUnita dialog(&frame);
    dialog.m_nForza = static_cast<int>(document.Data().Units().force);
    dialog.m_nLunghezza = static_cast<int>(document.GetLunghezza());
    if (dialog.DoModal() == IDOK)
        document.ChangeUnits(dialog.GetLunghezza(), dialog.GetForza());
}

const Command rows[] = {{.menu = CommandMenu::Tools, .dialog = CDialogUnita::IDD, .run = RunUnits}};

} // namespace

std::span<const Command> ViewCommands() {
    return rows;
}

} // namespace host
