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
#include "platform/resource/Resource.h"
#include "platform/window/Application.h"
#include "platform/window/Styles.h"
#include "tests/support/DialogTest.h"

#include <algorithm>
#include <memory>
#include <set>
#include <span>

// Lets a test read the message map of any window.
struct platform::MessageMapAccess {
    static const MessageMap& Of(const CWnd& window) { return window.GetMessageMap(); }
};

namespace {

struct ToolDialog {
    const char* name;
    int templateId;
    const char* caption; // on a document called "Ponte"
    const char* opening; // the one line that the host receives, "" for none
    const char* fields;  // what its edits and radio buttons show at every opening, see Shown
    std::unique_ptr<CDialogDocument> (*make)();
};

template <class T>
std::unique_ptr<CDialogDocument> Make() {
    return std::make_unique<T>();
}

constexpr const char* picking = "StartDefinisciVettore \"\" \"\"";
constexpr const char* pickingPlane = "StartDefinisciVettore \"Definisci il punto del piano.\" \"\"";

const ToolDialog toolDialogs[] = {
    {"CDialogGenNodiLineare", 9015, "Ponte : Generazione Nodi Lineare", picking, "[X] 1 1 0 0 0 -0 -0 -0 -0 -0 -0",
     &Make<CDialogGenNodiLineare>},
    {"CDialogGenNodi2P", 9011, "Ponte : Generazione Nodi 2 Punti", picking, "0 0 0 0 0 0 1", &Make<CDialogGenNodi2P>},
    {"CDialogCopiaTrasla", 9006, "Ponte : Copia Trasla", picking, "[Z] 1 3 [Niente] -0 -0 -0 -0 -0 -0",
     &Make<CDialogCopiaTrasla>},
    {"CDialogCopiaRuota", 9005, "Ponte : Copia Ruota", picking, "0 0 0 0 0 0 1 0 [Niente]", &Make<CDialogCopiaRuota>},
    {"CDialogMuovi", 9027, "Ponte : Muovi", picking, "0 0 0 0 0 0", &Make<CDialogMuovi>},
    {"CDialogRuota", 9032, "Ponte : Ruota", picking, "[Asse Generico] 0 0 0 0 0 0 0", &Make<CDialogRuota>},
    {"CDialogSpecchia", 9038, "Ponte : Specchia", pickingPlane, "[// XY] 0 0 0", &Make<CDialogSpecchia>},
    {"CDialogCheck", 109, "Check Modello", "", "", &Make<CDialogCheck>},
    {"CDialogStrutture", 110, "Strutture ", "Deseleziona null", "", &Make<CDialogStrutture>},
    {"CDialogDiagrammi", 9009, "Ponte : Diagramma - (Nessuna trave selezionata)", "", "", &Make<CDialogDiagrammi>},
    {"CDialogNodoReazioniVincolari", 113, "Ponte : Nodo Reazioni Vincolari", "", "",
     &Make<CDialogNodoReazioniVincolari>},
    {"CDialogListaGruppi", 9021, "Ponte : Gruppi", "", "", &Make<CDialogListaGruppi>},
};

// Numbers of nodes and copies.
const std::set<int> wholeNumbers = {1192, 1203, 1221};

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
    using Control = platform::ControlTemplate;

    std::span<const Control> Controls() { return platform::FindDialogTemplate(GetParam().templateId)->controls; }
    static bool IsField(const Control& control) {
        return control.kind == Control::Kind::Edit && (control.style & WS_VISIBLE) && !(control.style & ES_READONLY);
    }
    static bool IsRadio(const Control& control) {
        return control.kind == Control::Kind::Button && (control.style & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
    }
    // The visible edits' texts, "-" before disabled ones, and the texts of the checked radio buttons, in brackets.
    std::string Shown(const DialogDriver& driver) {
        std::string all;
        for (const Control& control : Controls()) {
            const bool radio = IsRadio(control) && driver.Checked(control.id);
            if (!radio && !IsField(control))
                continue;
            const std::string text = driver.Text(control.id);
            all +=
                (all.empty() ? "" : " ") + (radio ? "[" + text + "]" : (driver.Enabled(control.id) ? "" : "-") + text);
        }
        return all;
    }

    std::unique_ptr<CDialogDocument> m_dialog = GetParam().make();
};

class EveryDialogWithFields : public EveryToolDialog {};

// Catches fields, buttons or enabling that the opening before has left, and a control that the template lacks: the
// exchange reaches every bound control and throws.
TEST_P(EveryToolDialog, OpensFromItsTemplateWithItsDefaults) {
    ASSERT_TRUE(platform::FindDialogTemplate(GetParam().templateId));
    // Hosts find their tool dialogs by class: a missing declaration makes one invisible to them.
    const std::string name = GetParam().name;
    EXPECT_EQ(m_dialog->GetRuntimeClass()->m_lpszClassName, name == "CDialogDiagrammi" ? "CDialogDocument" : name);
    EXPECT_TRUE(m_dialog->IsKindOf(RUNTIME_CLASS(CDialogDocument)));
    const std::string opening = GetParam().opening, fields = GetParam().fields;
    for (int times = 0; times < 2; ++times) {
        ASSERT_NE(m_host.Open(*m_dialog), 0);
        EXPECT_EQ(m_host.Take(), opening.empty() ? Lines{} : Lines{opening});
        DialogDriver driver(*m_dialog);
        EXPECT_EQ(driver.Caption(), GetParam().caption);
        EXPECT_TRUE(m_dialog->IsWindowVisible());
        EXPECT_EQ(Shown(driver), fields);
        EXPECT_TRUE(m_dialog->UpdateData(TRUE)) << "the defaults must be valid";
        for (const Control& control : Controls())
            if (IsField(control))
                driver.SetText(control.id, "7");
        for (const Control& control : Controls())
            if (IsRadio(control) && fields.find("[" + driver.Text(control.id) + "]") == std::string::npos)
                driver.Click(control.id);
        m_dialog->UpdateData(TRUE);
        m_dialog->DestroyWindow();
        m_host.Take();
    }
}

// Catches an edit that no field is bound to, and an OK that goes on with a text that does not parse. A comma is no
// decimal separator, whatever the machine's language: reading half of the text would be worse.
TEST_P(EveryDialogWithFields, TextThatIsNoNumberStopsOk) {
    m_host.Open(*m_dialog);
    m_host.Take();
    DialogDriver driver(*m_dialog);
    for (const Control& control : Controls()) {
        if (!IsField(control) || !driver.Enabled(control.id))
            continue;
        const std::string valid = driver.Text(control.id);
        const std::string invalid = valid + ",5"; // the number before the comma is no change, for who looks at each key
        driver.SetText(control.id, invalid);
        m_user.ExpectMessage(wholeNumbers.contains(control.id) ? "Immettere un numero intero."
                                                               : "Immettere un numero.");
        driver.Press(VK_RETURN);
        EXPECT_EQ(m_host.Take(), Lines{}) << control.id;
        ASSERT_TRUE(driver.IsOpen());
        EXPECT_EQ(driver.Text(control.id), invalid);
        EXPECT_EQ(driver.Focus(), control.id);
        driver.SetText(control.id, valid);
    }
}

TEST_P(EveryToolDialog, EveryHandledNumberIsInTheTemplate) {
    // A handler for a control that does not exist is never called, and nothing else would tell.
    const std::set<int> ids = ControlsOf(GetParam().templateId);
    const platform::MessageMap& end = platform::MessageMapAccess::Of(CDialog());
    int maps = 0; // a dialog's own may be empty
    for (const platform::MessageMap* map = &platform::MessageMapAccess::Of(*m_dialog); map && map != &end;
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
    m_host.Open(*m_dialog);
    m_host.Take();
    DialogDriver driver(*m_dialog);
    for (const Control& control : Controls())
        if (IsField(control))
            driver.SetText(control.id, driver.Text(control.id) + ",5"); // no field is read, so no message either
    driver.Press(VK_ESCAPE);
    const Lines lines = m_host.Take();
    EXPECT_EQ(CommandsIn(lines), Lines{});
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "WM_FINEDIALOGO 2"), 1);
    EXPECT_FALSE(m_dialog->IsWindow());
    EXPECT_FALSE(m_host.View().IsDefinisciVettore()) << "the view stays in picking mode";
}

TEST_P(EveryToolDialog, SurvivesItsView) {
    m_host.Open(*m_dialog);
    RecordingView& second = m_host.AddView();
    m_host.CloseView(m_host.View());
    CWinApp::PumpMessages();
    m_host.Take();
    DialogDriver driver(*m_dialog);
    driver.Press(VK_RETURN);
    m_host.doc.UpdateAllViews(nullptr, MODIFICA_STRUTTURA);
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(m_host.Take(), Lines{"UpdateAllViews null 42 null"}) << "without a view it has no document to change";
    ASSERT_TRUE(m_dialog->IsWindow());
    second.tool = m_dialog.get();
    m_dialog->AggiornaVista(&second);
    driver.Press(VK_ESCAPE);
    EXPECT_FALSE(m_dialog->IsWindow());
}

TEST_P(EveryToolDialog, MayBeDestroyedWhileOpen) {
    // By its object's end and by its owner's: either must leave no window, timer or picking mode behind.
    m_host.Open(*m_dialog);
    m_dialog.reset();
    EXPECT_FALSE(m_host.View().IsDefinisciVettore());
    m_dialog = GetParam().make();
    m_host.Open(*m_dialog);
    m_host.frame.DestroyWindow();
    EXPECT_FALSE(m_dialog->IsWindow());
}

std::vector<ToolDialog> WithFields() {
    std::vector<ToolDialog> chosen;
    std::ranges::copy_if(toolDialogs, std::back_inserter(chosen), [](const ToolDialog& each) { return *each.fields; });
    return chosen;
}

std::string NameOf(const testing::TestParamInfo<ToolDialog>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Module, EveryToolDialog, testing::ValuesIn(toolDialogs), NameOf);
INSTANTIATE_TEST_SUITE_P(Module, EveryDialogWithFields, testing::ValuesIn(WithFields()), NameOf);

} // namespace
