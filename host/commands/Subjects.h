// The rows of each subject, and what they share.
#pragma once

#include "dialogs/frame/tool/DialogDocument.h"
#include "host/commands/Commands.h"
#include "host/view/HostView.h"

#include <span>

namespace host {

std::span<const Command> GenerationCommands();
std::span<const Command> SelectionCommands();
std::span<const Command> LoadCommands();
std::span<const Command> ResultCommands();
std::span<const Command> CheckCommands();
std::span<const Command> ViewCommands();

// Opens a tool dialog; for Command::open.
template <class Dialog>
std::unique_ptr<CDialog> OpenTool(HostView& view, CWnd& frame) {
    auto dialog = std::make_unique<Dialog>(&frame);
    if (!dialog->Create(&view))
        dialog.reset();
    return dialog;
}

} // namespace host
