// Load cases, combinations and groups in the application: what the user does in their dialogs reaches the document and
// is one step each.
#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "dialogs/loads/DialogCreaCombinazione.h"
#include "dialogs/loads/DialogCreaGruppo.h"
#include "dialogs/loads/DialogListaCasiCarico.h"
#include "dialogs/loads/DialogListaGruppi.h"
#include "host/commands/Commands.h"
#include "host/document/ExampleModel.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "platform/window/Application.h"
#include "tests/host/Dump.h"
#include "tests/host/TestModel.h"
#include "tests/host/WorkspaceTest.h"

#include <QComboBox>

using namespace host;

namespace {

constexpr int casesId = CDialogListaCasiCarico::IDC_LIST_CASICARICO;
constexpr int groupsId = CDialogListaGruppi::IDC_LIST;

class LoadCommandsTest : public WorkspaceTest {
  protected:
    void SetUp() override {
        BuildEverything(Document());
        CWinApp::PumpMessages();
        Document().Undo().Clear();
        Document().MarkSaved();
    }

    // Runs a modal command; the action closes its dialog.
    void Run(UINT dialog, int kind, const std::function<void(DialogDriver&)>& action) {
        m_user.WhenDialogOpens(action);
        Trigger(dialog, kind);
        CWinApp::PumpMessages();
    }
    // The same for the list of load cases, which is left open by its commands.
    void RunList(const std::function<void(DialogDriver&)>& action) {
        Run(CDialogListaCasiCarico::IDD, 0, [&action](DialogDriver& driver) {
            action(driver);
            CWinApp::PumpMessages(); // the step of the command ends
            driver.Click(IDCANCEL);
        });
    }
    void ExpectListStep(const char* name, const std::function<void(DialogDriver&)>& action) {
        ExpectOneStep(name, [&] { RunList(action); });
    }
    void AnswerName(const std::string& name) {
        m_user.WhenDialogOpens([name](DialogDriver& driver) {
            driver.SetText(CDialogCreaCasoCarico::IDC_NOME, name);
            driver.Click(IDOK);
        });
    }

    QComboBox& CaseBox() { return *m_workspace->Window().findChild<QComboBox*>("carico"); }
    int CurrentCase() { return Document().Data().CurrentCase(); }
};

TEST_F(LoadCommandsTest, ANewLoadCaseIsTheCurrentOne) {
    ExpectOneStep("Crea caso di carico", [this] {
        AnswerName("Attrito – più");
        Trigger(CDialogCreaCasoCarico::IDD);
    });
    CCasoCarico* made = Document().GetSelectCasoCarico();
    ASSERT_TRUE(made);
    EXPECT_EQ(made->GetNome().ToUtf8(), "Attrito – più");
    EXPECT_EQ(CaseBox().currentText(), QString("Attrito – più"));
    EXPECT_EQ(CaseBox().currentData().toInt(), made->GetID());
    // Refused names keep the dialog going; Cancel makes nothing.
    const std::string before = State();
    m_user.ExpectMessage("Il Caso Carico c'è già!");
    m_user.ExpectMessage("Il nome non è valido!");
    AnswerName("SLU"); // a combination's
    AnswerName(" x");
    m_user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Text(CDialogCreaCasoCarico::IDC_NOME), " x");
        driver.Press(VK_ESCAPE);
    });
    Trigger(CDialogCreaCasoCarico::IDD);
    EXPECT_EQ(State(), before);
}

// Catches loads of the copy that stay on elements when the copy itself has gone, and steps that fall apart.
TEST_F(LoadCommandsTest, CopyingACaseIsOneStep) {
    const int count = Document().GetSizeCasiCarico(), loads = Document().GetIndexTrave(3)->GetSizeCarichi();
    ExpectListStep("Copia caso di carico", [](DialogDriver& driver) {
        driver.ClickRow(casesId, 2);
        driver.Click(CDialogListaCasiCarico::IDC_COPIA);
    });
    ASSERT_EQ(Document().GetSizeCasiCarico(), count + 1);
    EXPECT_EQ(Document().GetIndexTrave(3)->GetSizeCarichi(), loads + 4);
}

TEST_F(LoadCommandsTest, RenamingIsOneStepEach) {
    ExpectListStep("Rinomina caso di carico", [this](DialogDriver& driver) {
        driver.ClickRow(casesId, 0);
        AnswerName("Perché no");
        driver.Click(CDialogListaCasiCarico::IDC_RINOMINA);
    });
    EXPECT_EQ(CaseBox().itemText(0), QString("Perché no"));
    EXPECT_TRUE(Document().IsModified());
}

TEST_F(LoadCommandsTest, DeletingSeveralCasesIsOneStep) {
    const int loads = Document().GetIndexTrave(3)->GetSizeCarichi();
    ExpectListStep("Elimina caso di carico", [](DialogDriver& driver) {
        driver.ClickRow(casesId, 0);
        driver.ClickRow(casesId, 2, CtrlKey);
        driver.Press(VK_DELETE);
    });
    // Of its own, though it follows in the same dialog.
    const std::size_t steps = Document().Undo().UndoCount();
    RunList([](DialogDriver& driver) {
        driver.ClickRow(casesId, 0);
        driver.Press(VK_DELETE);
        driver.Press(VK_DELETE); // nothing selected
    });
    EXPECT_EQ(Document().Undo().UndoCount(), steps + 1);
    Trigger("modifica.annulla");
    ASSERT_EQ(Document().GetSizeCasiCarico(), 1);
    EXPECT_EQ(CurrentCase(), Document().GetIndexCasoCarico(0)->GetID()) << "the current one went";
    EXPECT_LT(Document().GetIndexTrave(3)->GetSizeCarichi(), loads);
    EXPECT_EQ(CaseBox().count(), 2);
}

// Catches results thrown away because another case is looked at, and views that do not hear of an undo.
TEST_F(LoadCommandsTest, SelectingTheCurrentCaseIsAStepThatKeepsTheResults) {
    ASSERT_EQ(CurrentCase(), Document().GetIndexCasoCarico(0)->GetID());
    Document().m_pAnalisi->m_bRisultatiValidi = 1;
    ExpectOneStep("Seleziona caso di carico", [this] {
        Run(CDialogListaCasiCarico::IDD, 0, [](DialogDriver& driver) {
            driver.ClickRow(casesId, 1);
            driver.Click(IDOK);
        });
    });
    EXPECT_EQ(Document().m_pAnalisi->m_bRisultatiValidi, 1);
    EXPECT_EQ(CurrentCase(), Document().GetIndexCasoCarico(1)->GetID());
    EXPECT_EQ(CaseBox().currentIndex(), 1);
    Trigger("modifica.annulla");
    EXPECT_EQ(CaseBox().currentIndex(), 0);
}

TEST_F(LoadCommandsTest, CombinationsAreMadeAndChangedInOneStep) {
    ExpectOneStep("Crea combinazione", [this] {
        Run(CDialogCreaCombinazione::IDD, CDialogCreaCombinazione::Crea, [](DialogDriver& driver) {
            driver.Type(CDialogCreaCombinazione::IDC_FATTORE, "1.35");
            driver.Click(CDialogCreaCombinazione::IDC_VATUTTO);
            driver.Type(CDialogCreaCombinazione::IDC_NOME, "Città");
            driver.Click(IDOK);
        });
    });
    CCombinazione* made = Document().GetSelectCombinazione();
    ASSERT_TRUE(made);
    EXPECT_EQ(made->GetSizeCDC(), 3);
    EXPECT_EQ(CaseBox().currentText(), QString("Città"));
    ExpectOneStep("Modifica combinazione", [this] {
        Run(CDialogCreaCombinazione::IDD, CDialogCreaCombinazione::Modifica, [](DialogDriver& driver) {
            driver.ClickRow(CDialogCreaCombinazione::IDC_LIST_CDCB, 0);
            driver.Type(CDialogCreaCombinazione::IDC_FATTORE_COMBINAZIONE, "0.7");
            driver.Click(IDOK);
        });
    });
    // Catches a name that a case bears already: the project would be saved and could not be read again.
    const std::string taken = Document().GetIndexCasoCarico(0)->GetNome().ToUtf8();
    const std::string kept = made->GetNome().ToUtf8();
    m_user.ExpectMessage("Il nome \"" + taken + "\" non è ammesso o è già usato: la combinazione conserva il nome \"" +
                         kept + "\".");
    Run(CDialogCreaCombinazione::IDD, CDialogCreaCombinazione::Modifica, [&taken](DialogDriver& driver) {
        driver.Type(CDialogCreaCombinazione::IDC_NOME, taken);
        driver.Click(IDOK);
    });
    EXPECT_EQ(made->GetNome().ToUtf8(), kept);
}

TEST_F(LoadCommandsTest, GroupsAreMadeOfTheSelection) {
    EXPECT_FALSE(m_workspace->Window().Command(ActionName(CDialogCreaGruppo::IDD))->isEnabled()) << "nothing to group";
    Select({Document().GetIndexTrave(3), Document().GetIndexNodo(7)});
    m_user.ExpectMessage("Immettere il nome del gruppo.");
    m_user.ExpectMessage("Esiste già un gruppo con lo stesso nome.");
    ExpectOneStep("Crea gruppo", [this] {
        for (const char* name : {"", "Copertura"})
            m_user.WhenDialogOpens([name](DialogDriver& driver) {
                driver.SetText(CDialogCreaGruppo::IDC_NOME, name);
                driver.Click(IDOK);
            });
        Run(CDialogCreaGruppo::IDD, 0, [](DialogDriver& driver) {
            driver.SetText(CDialogCreaGruppo::IDC_NOME, "Facciata");
            driver.Click(IDOK);
        });
    });
    CGruppo* group = Document().GetGroup("Facciata");
    ASSERT_TRUE(group);
    EXPECT_EQ(group->GetSizeElementi(), 2);
    EXPECT_TRUE(Document().GetIndexTrave(3)->IsGruppo(group->GetID()));
    Document().Selection().Clear();
    Document().SelezionaGruppo(group->GetID());
    EXPECT_EQ(Document().Selection().All().size(), 2u);
}

// Catches a list that goes out of step with the document during a deletion, or is not told of an undo.
TEST_F(LoadCommandsTest, TheGroupListDeletesInOneStepAndFollowsUndo) {
    Document().Selection().Add(Document().GetIndexTrave(0));
    for (const char* name : {"B", "C", "D"})
        Document().CreateGroup(name);
    CDialogDocument* list = OpenTool(CDialogListaGruppi::IDD);
    ASSERT_TRUE(list);
    DialogDriver driver(*list);
    const std::vector<std::string> all = {"Copertura", "B", "C", "D"};
    EXPECT_EQ(driver.Rows(groupsId), all);
    driver.ClickRow(groupsId, 0);
    EXPECT_GT(Document().Selection().All().size(), 1u);
    driver.ClickRow(groupsId, 2, CtrlKey);
    ExpectOneStep("Elimina gruppo", [&] {
        driver.Click(CDialogListaGruppi::IDC_ELIMINA);
        CWinApp::PumpMessages();
    });
    EXPECT_EQ(driver.Rows(groupsId), (std::vector<std::string>{"B", "D"}));
    EXPECT_TRUE(Document().Selection().IsEmpty());
    Trigger("modifica.annulla");
    EXPECT_EQ(driver.Rows(groupsId), all);
}

// Catches a swap that stays in borrowed records, reaches another case, or is not shown.
TEST_F(LoadCommandsTest, SwapsTheSignsOfRealResults) {
    BuildExample(Document());
    CCasoCarico* seismic = Document().GetIndexCasoCarico(0);
    Document().Modify(*seismic, [seismic] { seismic->SetTipo(dynamicSeismicCase); });
    ASSERT_FALSE(Document().RunAnalysis().refusal);
    CTrave* column = Document().GetIndexTrave(0);
    const auto axial = [column](int end) { return column->GetRisultati()->GetNodeResults(end)->GetV1(); };
    const double near = axial(0), far = axial(1);
    ASSERT_NE(far, 0);
    CDialogListaCasiCarico dialog(&Document(), &m_workspace->Window().Frame());
    const auto swap = [&](int row) {
        m_user.WhenDialogOpens([&](DialogDriver& driver) {
            driver.ClickRow(casesId, row);
            dialog.SendMessage(WM_COMMAND, MAKEWPARAM(CDialogListaCasiCarico::IDC_PERMUTA, BN_CLICKED), 0);
            driver.Click(IDCANCEL);
        });
        dialog.DoModal();
    };
    swap(0);
    EXPECT_EQ(axial(0), near);
    EXPECT_EQ(axial(1), -far);
    swap(1); // no dynamic seismic case
    Document().SelectIndexCasoCarico(1);
    const double other = axial(1);
    swap(0);
    EXPECT_EQ(axial(1), other) << "the case that is shown keeps its own results";
    Document().SelectIndexCasoCarico(0);
    EXPECT_EQ(axial(1), far);
    EXPECT_TRUE(Document().m_pAnalisi->m_bRisultatiValidi);
}

// The same operations for an application that closes each step at once: nothing may be lost, or recorded twice.
TEST(LoadDocument, WithoutALoopEachCallIsAStep) {
    HostDocument document;
    BuildEverything(document);
    document.Undo().Clear();
    const std::string before = Dump(document.Data());
    CCasoCarico* source = document.GetIndexCasoCarico(2);
    CCasoCarico* copy = document.CreaCasoCarico();
    const CString name = copy->GetNome();
    const int id = copy->GetID();
    *copy = *source;
    copy->SetNome(name);
    copy->SetID(id);
    document.GetIndexTrave(3)->AddCarico(copy->GetIndexCarico(0), 1);
    document.UpdateAllViews(nullptr, MODIFICA_CASI_CARICO, nullptr);
    EXPECT_EQ(document.Undo().UndoCount(), 2u);
    // Loads that were recorded by themselves are not recorded again with the case.
    CCasoCarico* other = document.CreaCasoCarico("Altro");
    CCarico* load = document.AddCarico(*other, std::make_unique<CCaricoUniforme>(CFPoint(0, 0, -1), 0));
    CTrave* beam = document.GetIndexTrave(5);
    document.Modify(*beam, [&] { beam->AddCarico(load, 1); });
    EXPECT_NE(document.CreaCasoCarico()->GetNome(), name);
    const std::size_t steps = document.Undo().UndoCount();
    document.UpdateAllViews(nullptr, MODIFICA_CASI_CARICO, nullptr);
    EXPECT_EQ(document.Undo().UndoCount(), steps);
    EXPECT_EQ(document.CreaCasoCarico("Altro"), nullptr) << "a name that is taken";
    const std::string after = Dump(document.Data());
    while (document.Undo().Undo()) {
    }
    EXPECT_EQ(Dump(document.Data()), before);
    while (document.Undo().Redo()) {
    }
    EXPECT_EQ(Dump(document.Data()), after);
}

} // namespace
