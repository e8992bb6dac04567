// The commands whose dialogs the application offers. A new dialog is one line in Commands.cpp.
#pragma once

#include <memory>
#include <span>

class CDialogDocument;
class CWnd;

namespace host {

class HostDocument;

// Prompts are parts of other commands: they have no entry of their own and are only shown in the gallery.
enum class CommandMenu { Generate, Select, Loads, Results, Tools, Prompts };

// Opens a tool dialog on the active view.
struct ToolCommand {
    CommandMenu menu;
    const char* caption; // the dialog's, UTF-8
    std::unique_ptr<CDialogDocument> (*make)(CWnd* parent);
    void (*opened)(HostDocument& document) = nullptr; // what follows its opening; null for nothing
};

// Runs a modal dialog, and whatever belongs to its command, on the active document.
struct ModalCommand {
    CommandMenu menu;
    const char* caption; // the dialog's, UTF-8
    void (*run)(HostDocument& document, CWnd& frame);
};

std::span<const ToolCommand> ToolCommands();   // in menu order
std::span<const ModalCommand> ModalCommands(); // in menu order, before the tools of their menu

} // namespace host
