// The commands that generate nodes and meshes, those that divide lines, and the one that measures.
#include "dialogs/generation/DialogDistanza.h"
#include "dialogs/generation/DialogDividiLinea.h"
#include "dialogs/generation/DialogGenNodi2P.h"
#include "dialogs/generation/DialogGenNodiArco3Punti.h"
#include "dialogs/generation/DialogGenNodiArcoCentro.h"
#include "dialogs/generation/DialogGenNodiCerchio.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "dialogs/generation/DialogGrigliaNodi.h"
#include "dialogs/generation/DialogIntLineaPiano.h"
#include "dialogs/generation/DialogMesh2PuntiDir.h"
#include "dialogs/generation/DialogMesh3Punti.h"
#include "dialogs/generation/DialogMesh4Punti.h"
#include "dialogs/generation/DialogNodoRelativo.h"
#include "dialogs/generation/DialogSpezza.h"
#include "host/commands/Subjects.h"
#include "host/document/HostDocument.h"
#include "model/element/LineaFisica.h"
#include "platform/window/Application.h"

namespace host {

namespace {

template <class Dialog>
constexpr Command row = {.menu = CommandMenu::Generate, .dialog = Dialog::IDD, .open = OpenTool<Dialog>};

CLinea* OnlySelectedLine(HostDocument& document) {
    const HostSelection& selection = document.Selection();
    if (selection.Size(Kind::Beam) + selection.Size(Kind::Truss) != 1)
        return nullptr;
    CElemento* line = selection.Size(Kind::Beam) ? selection.At(Kind::Beam, 0) : selection.At(Kind::Truss, 0);
    return static_cast<CLinea*>(line);
}

void RunDivideLine(HostDocument& document, CWnd& frame) {
    CLinea* line = OnlySelectedLine(document);
    if (!line) {
        AfxMessageBox("Selezionare una sola trave o asta.");
        return;
    }
    CDialogDividiLinea dialog(&frame);
    dialog.SetDoc(&document);
    dialog.SetLinea(line);
    dialog.DoModal();
}

void RunSplitLines(HostDocument& document, CWnd& frame) {
    HostSelection& selection = document.Selection();
    if (selection.Size(Kind::Beam) + selection.Size(Kind::Truss) == 0) {
        AfxMessageBox("Selezionare prima le travi o le aste.");
        return;
    }
    CDialogSpezza dialog(&frame);
    while (dialog.DoModal() == IDOK && !selection.DivideEqually(dialog.m_nDivisioni)) {
        // The number that was refused is there to be mended.
    }
}

std::unique_ptr<CDialog> OpenGrid(HostView& view, CWnd& frame) {
    auto dialog = std::make_unique<CDialogGrigliaNodi>(&frame);
    if (!view.EditGrid(*dialog))
        dialog.reset();
    return dialog;
}

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
    {.menu = CommandMenu::Generate, .dialog = CDialogDividiLinea::IDD, .needs = Needs::Selection, .run = RunDivideLine},
    {.menu = CommandMenu::Generate, .dialog = CDialogSpezza::IDD, .needs = Needs::Selection, .run = RunSplitLines},
    {.menu = CommandMenu::Generate,
     .dialog = CDialogIntLineaPiano::IDD,
     .needs = Needs::Selection,
     .open = OpenTool<CDialogIntLineaPiano>,
     .picksNodes = true},
    {.menu = CommandMenu::Generate, .dialog = CDialogGrigliaNodi::IDD, .open = OpenGrid, .titled = false},
    {.menu = CommandMenu::Tools, .dialog = CDialogDistanza::IDD, .open = OpenTool<CDialogDistanza>},
};

} // namespace

std::span<const Command> GenerationCommands() {
    return rows;
}

} // namespace host
