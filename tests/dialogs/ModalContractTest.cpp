// What every modal dialog of the module keeps to. A new dialog is one row of the table, or one for each of its kinds.
#include "dialogs/generation/DialogDividiLinea.h"
#include "dialogs/generation/DialogSpezza.h"
#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "dialogs/loads/DialogCreaCombinazione.h"
#include "dialogs/loads/DialogCreaGruppo.h"
#include "dialogs/loads/DialogInsertNome.h"
#include "dialogs/loads/DialogListaCasiCarico.h"
#include "dialogs/views/DialogUnita.h"
#include "tests/dialogs/Contract.h"
#include "tests/dialogs/LoadModel.h"
#include "tests/dialogs/ModalTest.h"

#include <cstdio>
#include <memory>

namespace {

std::string NoValues(const CDialog&) {
    return "";
}

struct ModalDialog {
    const char* name; // of the class, and its kind
    int templateId;
    const char* caption;
    const char* fields; // what they show at every opening, see ContractFields
    // Makes it, with what the host holds and the values that a caller sets.
    std::unique_ptr<CDialog> (*make)(RecordingHost& host);
    std::string (*values)(const CDialog& dialog) = &NoValues; // its public fields, to the last bit; see ValuesOf
    std::set<int> whole = {};                                 // edits of whole numbers
    std::set<int> texts = {};                                 // edits that take any text
    std::set<int> commands = {};                              // numbers handled without a control
    int wait = 0;                                             // milliseconds until what a click did is in effect
    // What OK does without a change, where it does not just close with everything as it was.
    bool okDisabled = false;
    bool okStaysOpen = false;
    Lines okCalls = {}; // that the host receives
    bool okChangesHost = false;
    const char* okValues = nullptr; // its public fields then
    bool endsByOkOnly = false;
    std::vector<Typed> typed = {}; // a dialog whose edits take part has one at least
};

// To the last bit.
std::string Exact(double number) {
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%a", number);
    return buffer;
}
std::string Exact(int number) {
    return std::to_string(number);
}
std::string Exact(const CString& text) {
    return Journal::Text(text);
}

// The public fields of a dialog, with blanks between them.
template <class T, auto... fields>
std::string ValuesOf(const CDialog& dialog) {
    std::string all;
    ((all += (all.empty() ? "" : " ") + Exact(static_cast<const T&>(dialog).*fields)), ...);
    return all;
}

// What dialogs can change in the recording document.
std::string Contents(RecordingDoc& doc) {
    std::string all;
    for (const auto& loadCase : doc.casi)
        all += Exact(loadCase->GetID()) + Exact(loadCase->GetNome()) + Exact(loadCase->GetTipo()) + "\n";
    for (const auto& combination : doc.combinazioni) {
        all += Exact(combination->GetID()) + Exact(combination->GetNome());
        for (const auto& [loadCase, factor] : FactorsOf(*combination))
            all += " " + Exact(loadCase) + ":" + Exact(factor);
        all += "\n";
    }
    for (const auto& group : doc.gruppi)
        all += Exact(group->GetID()) + Exact(group->GetNome()) + "\n";
    all += doc.currentCase ? Exact(doc.currentCase->GetID()) : "-";
    all += doc.currentCombination ? Exact(doc.currentCombination->GetID()) : "-";
    return all;
}

template <class T>
std::unique_ptr<CDialog> Make(RecordingHost& host) {
    return std::make_unique<T>(&host.frame);
}

template <class T>
std::unique_ptr<CDialog> Proposing(RecordingHost& host) {
    auto dialog = std::make_unique<T>(&host.frame);
    dialog->m_strNome = "Proposta";
    return dialog;
}

void AddCases(RecordingHost& host) {
    AddNamed(host.doc.casi, 1, "Permanenti");
    AddNamed(host.doc.casi, 2, "Neve");
}

std::unique_ptr<CDialog> MakeCreaCasoCarico(RecordingHost& host) {
    auto dialog = Proposing<CDialogCreaCasoCarico>(host);
    static_cast<CDialogCreaCasoCarico&>(*dialog).m_strNumero = "12";
    return dialog;
}

std::unique_ptr<CDialog> MakeCreaCombinazione(RecordingHost& host) {
    AddCases(host);
    return std::make_unique<CDialogCreaCombinazione>(CDialogCreaCombinazione::Crea, &host.frame);
}

std::unique_ptr<CDialog> MakeModificaCombinazione(RecordingHost& host) {
    AddCases(host);
    host.doc.currentCombination = &AddCombination(host.doc, 5, "SLU.1", {{2, 1.0 / 3}, {99, 0.1 + 0.2}});
    return std::make_unique<CDialogCreaCombinazione>(CDialogCreaCombinazione::Modifica, &host.frame);
}

std::unique_ptr<CDialog> MakeListaCasiCarico(RecordingHost& host) {
    AddCases(host);
    return std::make_unique<CDialogListaCasiCarico>(&host.doc, &host.frame);
}

std::string ChosenUnits(const CDialog& dialog) {
    const auto& units = static_cast<const CDialogUnita&>(dialog);
    return Exact(static_cast<int>(units.GetLunghezza())) + " " + Exact(static_cast<int>(units.GetForza()));
}

std::unique_ptr<CDialog> MakeDividiLinea(RecordingHost& host) {
    host.doc.NewNodo(0, 0, 0);
    host.doc.NewNodo(3, 4, 0);
    auto dialog = std::make_unique<CDialogDividiLinea>(&host.frame);
    dialog->SetDoc(&host.doc);
    dialog->SetLinea(host.doc.NewTrave(1, 2));
    return dialog;
}

const std::vector<ModalDialog> modalDialogs = {
    {.name = "CDialogCreaCasoCarico",
     .templateId = CDialogCreaCasoCarico::IDD,
     .caption = "Crea Caso di Carico",
     .fields = "Proposta",
     .make = &MakeCreaCasoCarico,
     .values = &ValuesOf<CDialogCreaCasoCarico, &CDialogCreaCasoCarico::m_strTitolo, &CDialogCreaCasoCarico::m_strNome,
                         &CDialogCreaCasoCarico::m_strNumero>,
     .texts = {CDialogCreaCasoCarico::IDC_NOME},
     // No rule of its own: the caller's would then tell twice.
     .typed = {{{" Perché no!"}, {}, "\"\" \" Perché no!\" \"12\""}, {{""}, {}, "\"\" \"\" \"12\""}}},
    {.name = "CDialogCreaCombinazione_Crea",
     .templateId = CDialogCreaCombinazione::IDD,
     .caption = "Crea Combinazione",
     .fields = "1  ",
     .make = &MakeCreaCombinazione,
     .texts = {CDialogCreaCombinazione::IDC_NOME, CDialogCreaCombinazione::IDC_FATTORE_COMBINAZIONE},
     .okDisabled = true}, // without a name and a case
    {.name = "CDialogCreaCombinazione_Modifica",
     .templateId = CDialogCreaCombinazione::IDD,
     .caption = "Modifica Combinazione",
     .fields = "1  SLU.1",
     .make = &MakeModificaCombinazione,
     .texts = {CDialogCreaCombinazione::IDC_NOME, CDialogCreaCombinazione::IDC_FATTORE_COMBINAZIONE},
     .okCalls = {"ModificaCombinazione 5 \"SLU.1\""},
     .typed = {{{"1", "", "Neve"}, {"ModificaCombinazione 5 \"Neve\""}}}}, // a name is not tested here
    {.name = "CDialogCreaGruppo",
     .templateId = CDialogCreaGruppo::IDD,
     .caption = "Crea Gruppo",
     .fields = "Proposta",
     .make = &Proposing<CDialogCreaGruppo>,
     .values = &ValuesOf<CDialogCreaGruppo, &CDialogCreaGruppo::m_strNome>,
     .texts = {CDialogCreaGruppo::IDC_NOME},
     .typed = {{{"Solaio è giù"}, {}, "\"Solaio è giù\""}, {{""}, {}, "\"\""}}},
    {.name = "CDialogInsertNome",
     .templateId = CDialogInsertNome::IDD,
     .caption = "Nuovo Nome",
     .fields = "Proposta",
     .make = &Proposing<CDialogInsertNome>,
     .values = &ValuesOf<CDialogInsertNome, &CDialogInsertNome::m_strNome, &CDialogInsertNome::m_strEtichetta>,
     .texts = {CDialogInsertNome::IDC_NOME},
     .endsByOkOnly = true,
     .typed = {{{"Forlì"}, {}, "\"Forlì\" \"\""}}},
    {.name = "CDialogListaCasiCarico",
     .templateId = CDialogListaCasiCarico::IDD,
     .caption = "Casi di Carico",
     .fields = "",
     .make = &MakeListaCasiCarico,
     .commands = {CDialogListaCasiCarico::IDC_PERMUTA},
     .okDisabled = true}, // without a selected case
    {.name = "CDialogUnita",
     .templateId = CDialogUnita::IDD,
     .caption = "Unita di Misura",
     .fields = "[Kg] [cm] [Secondi]",
     .make = &Make<CDialogUnita>,
     .values = &ChosenUnits,
     .typed = {{{"[m]", "[KNewton]"}, {}, "2 3"}, {{"[inch]", "[KPound]"}, {}, "3 5"}, {{"[mm]"}, {}, "0 5"}}},
    {.name = "CDialogDividiLinea",
     .templateId = CDialogDividiLinea::IDD,
     .caption = "Dividi",
     .fields = "",
     .make = &MakeDividiLinea,
     .texts = {CDialogDividiLinea::IDC_N_NODI, CDialogDividiLinea::IDC_DISTANZA, CDialogDividiLinea::IDC_PROPORZIONE},
     .typed = {{{"3", "1"}, {}}}}, // what was not inserted counts for nothing
    {.name = "CDialogSpezza",
     .templateId = CDialogSpezza::IDD,
     .caption = "Spezza",
     .fields = "0",
     .make = &Make<CDialogSpezza>,
     .values = &ValuesOf<CDialogSpezza, &CDialogSpezza::m_nDivisioni>,
     .whole = {CDialogSpezza::IDC_DIVISIONI},
     .typed = {{{"-12"}, {}, "-12"}}},
};

class EveryModalDialog : public ModalTest, public testing::WithParamInterface<ModalDialog> {
  protected:
    std::string Values() const { return GetParam().values(*m_dialog); }
    // A click of OK, once what was clicked before is in effect.
    void Confirm(DialogDriver& driver) const {
        DialogDriver::Wait(GetParam().wait);
        driver.Click(IDOK);
    }
    // What the dialog and the host hold together.
    std::string State() { return Values() + "\n" + Contents(m_host.doc); }

    const ContractFields m_fields{GetParam().templateId};
    std::unique_ptr<CDialog> m_dialog = GetParam().make(m_host);
};

// Catches a control that the template lacks (the exchange throws), a field that no control shows, and what Cancel has
// let through to the next opening of the same object.
TEST_P(EveryModalDialog, CancelChangesNothing) {
    const std::string before = State();
    for (int times = 0; times < 2; ++times) {
        m_user.WhenDialogOpens([&](DialogDriver& driver) {
            EXPECT_EQ(driver.Caption(), GetParam().caption);
            EXPECT_EQ(m_fields.Shown(driver), GetParam().fields);
            m_fields.ExpectNoPlaceholder(driver);
            if (!GetParam().endsByOkOnly) {
                m_fields.ClickOtherChoices(driver);
                m_fields.SpoilTexts(driver); // no field is read, so no message
            }
            DialogDriver::Wait(GetParam().wait);
            driver.Press(VK_ESCAPE);
            if (!GetParam().endsByOkOnly)
                return;
            driver.Click(IDCANCEL);
            driver.CloseBox();
            ASSERT_TRUE(IsShown(driver));
            Confirm(driver);
        });
        EXPECT_EQ(m_dialog->DoModal(), GetParam().endsByOkOnly ? IDOK : IDCANCEL);
        EXPECT_EQ(m_host.Take(), Lines{});
        EXPECT_EQ(State(), before);
    }
}

// Catches a number rounded to the digits that its edit shows, a field that comes back from another control, and a host
// that is told of a change where there is none.
TEST_P(EveryModalDialog, OkWithoutAChangeLeavesEveryBit) {
    const std::string before = Values(), host = Contents(m_host.doc);
    const bool closes = !GetParam().okDisabled && !GetParam().okStaysOpen;
    const int result = Run(*m_dialog, [&](DialogDriver& driver) {
        EXPECT_EQ(driver.Enabled(IDOK), !GetParam().okDisabled);
        if (!GetParam().okDisabled)
            Confirm(driver);
        EXPECT_EQ(IsShown(driver), !closes);
    });
    EXPECT_EQ(result, closes ? IDOK : IDCANCEL);
    EXPECT_EQ(m_host.Take(), GetParam().okCalls);
    EXPECT_EQ(Values(), GetParam().okValues ? GetParam().okValues : before);
    EXPECT_EQ(Contents(m_host.doc) != host, GetParam().okChangesHost);
}

// Catches an OK that goes on with a text that does not parse.
TEST_P(EveryModalDialog, TextThatIsNoNumberStopsOk) {
    Run(*m_dialog, [&](DialogDriver& driver) {
        if (!GetParam().okDisabled)
            m_fields.RefusesTexts(driver, m_user, GetParam().whole, GetParam().texts, [&] {
                driver.Click(IDOK);
                EXPECT_EQ(m_host.Take(), Lines{});
                ASSERT_TRUE(IsShown(driver));
            });
        if (GetParam().endsByOkOnly)
            Confirm(driver);
    });
}

// Catches an edit that no field is bound to, or another one's, and a wrong argument of what the host is told.
TEST_P(EveryModalDialog, WhatIsTypedReachesItsPlace) {
    EXPECT_TRUE(!m_fields.Any() || GetParam().okDisabled || !GetParam().typed.empty())
        << "the table lacks what comes of typing";
    for (const Typed& row : GetParam().typed) {
        Run(*m_dialog, [&](DialogDriver& driver) {
            m_fields.Type(driver, row.texts);
            Confirm(driver);
        });
        EXPECT_EQ(m_host.Take(), row.calls);
        EXPECT_EQ(Values(), row.values);
    }
}

// Null from a getter is "none", whatever the user does then; in the end there is no document either.
TEST_P(EveryModalDialog, TakesNullForNone) {
    HoldNothing(m_host);
    Run(*m_dialog, [&](DialogDriver& driver) {
        m_fields.ClickEverything(driver);
        m_host.hasDoc = false;
        m_fields.ClickEverything(driver);
        if (GetParam().endsByOkOnly)
            Confirm(driver);
    });
}

TEST_P(EveryModalDialog, EveryHandledNumberIsInTheTemplate) {
    ExpectHandledNumbersExist(*m_dialog, GetParam().templateId, GetParam().commands);
}

INSTANTIATE_TEST_SUITE_P(Module, EveryModalDialog, testing::ValuesIn(modalDialogs),
                         [](const testing::TestParamInfo<ModalDialog>& info) { return info.param.name; });

} // namespace
