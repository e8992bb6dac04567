// The commands whose dialogs the application offers. A dialog is one row in the file of its subject (Generation.cpp,
// Selection.cpp ...); menu, gallery and tests take what they need of it from there.
#pragma once

#include "platform/core/Types.h"

#include <memory>
#include <vector>

class CDialog;
class CDialogDocument;
class CWnd;
class QString;

namespace host {

class HostDocument;
class HostView;

// Prompts are parts of other commands: they have no entry of their own and are only shown in the gallery.
enum class CommandMenu { Generate, Select, Loads, Results, Tools, Prompts };

// What a command of the menus cannot do without.
enum class Needs { Nothing, View, Selection, Undo, Redo };

// Where a window goes: to a free place beside the view, or where it puts itself.
enum class Place { BesideView, Own };

struct Command {
    CommandMenu menu;
    UINT dialog;                   // number of the template, whose caption the menu bears
    const char* caption = nullptr; // UTF-8, in its place; null for the template's
    int kind = 0;                  // tells the commands of one dialog class apart
    Needs needs = Needs::View;

    // One of the two is there.
    // Makes a dialog that stays open beside the view, window included; null when there can be none. One that is no
    // CDialogDocument, or lies inside the view, ends with the view.
    std::unique_ptr<CDialog> (*open)(HostView& view, CWnd& frame) = nullptr;
    // Runs a modal dialog, and whatever belongs to its command, until the user is done.
    void (*run)(HostDocument& document, CWnd& frame) = nullptr;

    // ---- Of those that stay open.
    Place place = Place::BesideView;
    bool titled = true;      // the caption begins with the document's name; otherwise it stays the template's
    bool picksNodes = false; // its points must be nodes: no crossings of construction lines
    int rangeAxis = -1;      // 0 X to 2 Z, along which a selection by range limits; -1 for other commands
    void (*opened)(HostDocument& document) = nullptr; // what follows the opening; null for nothing
    // A kind of results of beams (CElementoSettings) was shown or hidden in the dialog's view; null for who does not
    // care.
    void (*resultShown)(CDialog& dialog, int kind, bool shown) = nullptr;
};

// The rows live as long as the program and are known by address. In menu order.
const std::vector<const Command*>& Commands();
const Command* FindCommand(UINT dialog, int kind = 0); // null when there is none

// Without the blanks that some templates end theirs with. The module of the dialogs must have started.
QString CaptionOf(const Command& command);
// The menu's action of that name runs it.
QString ActionName(UINT dialog, int kind = 0);

} // namespace host
