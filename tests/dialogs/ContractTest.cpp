// What every dialog of the module keeps to. A new dialog is one line in the table.
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
#include "platform/Application.h"
#include "platform/Resource.h"
#include "tests/support/DialogTest.h"

#include <algorithm>
#include <memory>
#include <set>

// Lets a test read the message map of any window.
struct platform::MessageMapAccess {
    static const MessageMap& of(const CWnd& window) { return window.GetMessageMap(); }
};

namespace {

struct ToolDialog {
    const char* name;
    int templateId;
    const char* caption; // on a document called "Ponte"
    std::unique_ptr<CDialogDocument> (*make)();
};

template <class T>
std::unique_ptr<CDialogDocument> Make() {
    return std::make_unique<T>();
}

const ToolDialog toolDialogs[] = {
    {"CDialogGenNodiLineare", 9015, "Ponte : Generazione Nodi Lineare", &Make<CDialogGenNodiLineare>},
    {"CDialogGenNodi2P", 9011, "Ponte : Generazione Nodi 2 Punti", &Make<CDialogGenNodi2P>},
    {"CDialogCopiaTrasla", 9006, "Ponte : Copia Trasla", &Make<CDialogCopiaTrasla>},
    {"CDialogCopiaRuota", 9005, "Ponte : Copia Ruota", &Make<CDialogCopiaRuota>},
    {"CDialogMuovi", 9027, "Ponte : Muovi", &Make<CDialogMuovi>},
    {"CDialogRuota", 9032, "Ponte : Ruota", &Make<CDialogRuota>},
    {"CDialogSpecchia", 9038, "Ponte : Specchia", &Make<CDialogSpecchia>},
    {"CDialogCheck", 109, "Check Modello", &Make<CDialogCheck>},
    {"CDialogStrutture", 110, "Strutture ", &Make<CDialogStrutture>},
    {"CDialogDiagrammi", 9009, "Ponte : Diagramma - (Nessuna trave selezionata)", &Make<CDialogDiagrammi>},
    {"CDialogNodoReazioniVincolari", 113, "Ponte : Nodo Reazioni Vincolari", &Make<CDialogNodoReazioniVincolari>},
    {"CDialogListaGruppi", 9021, "Ponte : Gruppi", &Make<CDialogListaGruppi>},
};

// Of the pop-up menus that dialogs track.
const int menus[] = {106, 351, 376};

std::set<int> ControlsOf(int templateId) {
    std::set<int> ids;
    if (const platform::DialogTemplate* source = platform::FindDialogTemplate(templateId))
        for (const platform::ControlTemplate& control : source->controls)
            ids.insert(control.id);
    for (const int menu : menus)
        if (const platform::MenuTemplate* source = platform::FindMenu(menu))
            for (const platform::MenuItemTemplate& item : source->items)
                ids.insert(item.id);
    return ids;
}

// What closing tells the view is no command.
Lines CommandsIn(Lines lines) {
    std::erase_if(lines, [](const std::string& line) {
        return line == "StopDefinisciVettore" || line.starts_with("WM_FINEDIALOGO");
    });
    return lines;
}

class EveryToolDialog : public DialogTest, public testing::WithParamInterface<ToolDialog> {
  protected:
    std::unique_ptr<CDialogDocument> dialog = GetParam().make();
};

TEST_P(EveryToolDialog, OpensFromItsTemplate) {
    // The exchange reaches every bound control while opening: one that the template lacks throws.
    ASSERT_TRUE(platform::FindDialogTemplate(GetParam().templateId));
    ASSERT_NE(host.Open(*dialog), 0);
    EXPECT_EQ(DialogDriver(*dialog).Caption(), GetParam().caption);
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_TRUE(dialog->UpdateData(TRUE)) << "the defaults must be valid";
    dialog->DestroyWindow();
}

TEST_P(EveryToolDialog, EveryHandledNumberIsInTheTemplate) {
    // A handler for a control that does not exist is never called, and nothing else would tell.
    const std::set<int> ids = ControlsOf(GetParam().templateId);
    const platform::MessageMap& end = platform::MessageMapAccess::of(CDialog());
    int maps = 0; // a dialog's own may be empty
    for (const platform::MessageMap* map = &platform::MessageMapAccess::of(*dialog); map && map != &end;
         map = map->base) {
        ++maps;
        for (std::size_t i = 0; i < map->count; ++i) {
            const platform::MessageEntry& entry = map->entries[i];
            if (entry.message != WM_COMMAND && entry.message != WM_NOTIFY)
                continue;
            for (UINT id = entry.idFirst; id <= entry.idLast; ++id)
                EXPECT_TRUE(ids.contains(static_cast<int>(id))) << "no control or menu command " << id;
        }
    }
    EXPECT_GE(maps, 2) << "the maps were not read";
}

TEST_P(EveryToolDialog, CancelChangesNothing) {
    host.Open(*dialog);
    host.Take();
    DialogDriver(*dialog).Press(VK_ESCAPE);
    const Lines lines = host.Take();
    EXPECT_EQ(CommandsIn(lines), Lines{});
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "WM_FINEDIALOGO 2"), 1);
    EXPECT_FALSE(dialog->IsWindow());
    EXPECT_FALSE(host.View().IsDefinisciVettore()) << "the view stays in picking mode";
}

TEST_P(EveryToolDialog, SurvivesItsView) {
    host.Open(*dialog);
    RecordingView& second = host.AddView();
    host.CloseView(host.View());
    CWinApp::PumpMessages();
    host.Take();
    DialogDriver driver(*dialog);
    driver.Press(VK_RETURN);
    host.doc.UpdateAllViews(nullptr, MODIFICA_STRUTTURA);
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), Lines{"UpdateAllViews null 42 null"}) << "without a view it has no document to change";
    ASSERT_TRUE(dialog->IsWindow());
    second.tool = dialog.get();
    dialog->AggiornaVista(&second);
    driver.Press(VK_ESCAPE);
    EXPECT_FALSE(dialog->IsWindow());
}

TEST_P(EveryToolDialog, MayBeDestroyedWhileOpen) {
    // By its object's end and by its owner's: either must leave no window, timer or picking mode behind.
    host.Open(*dialog);
    dialog.reset();
    EXPECT_FALSE(host.View().IsDefinisciVettore());
    dialog = GetParam().make();
    host.Open(*dialog);
    host.frame.DestroyWindow();
    EXPECT_FALSE(dialog->IsWindow());
}

INSTANTIATE_TEST_SUITE_P(Module, EveryToolDialog, testing::ValuesIn(toolDialogs),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
