// Copying in the application, for all commands on the selection: what the user does in the dialog and in the view ends
// up at the right places of the document, as one step that undo and redo give back exactly.
#include "dialogs/selection/DialogCopiaRuota.h"
#include "dialogs/selection/DialogCopiaTrasla.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

using namespace host;

namespace {

using CopiaTrasla = CDialogCopiaTrasla;
using CopiaRuota = CDialogCopiaRuota;

class SelectionCommandsTest : public WorkspaceTest {
  protected:
    void SetUp() override { BuildSmallModel(); }

    // A whole command that ends its dialog and is one step with the command's name.
    void Run(UINT dialog, const std::function<void(DialogDriver&)>& action) {
        ExpectOneStep(CaptionOf(*FindCommand(dialog)).toUtf8(), [&] {
            DialogDriver driver(*OpenTool(dialog));
            action(driver);
            CWinApp::PumpMessages();
            EXPECT_FALSE(driver.IsOpen());
        });
    }
    void Pick(const CFPoint& node) { Click(PixelOf(node)); }
    CNodo* Find(double x, double y, double z) {
        CFPoint place(x, y, z);
        return Document().GetNodo(place, nullptr, 1e-6);
    }
    // How many elements of a kind have these two nodes.
    int Joined(Kind kind, const CFPoint& from, const CFPoint& to) {
        CNodo* first = Find(from.x, from.y, from.z);
        CNodo* second = Find(to.x, to.y, to.z);
        if (!first || !second)
            return -1;
        int count = 0;
        for (int i = 0; i < first->GetSizeElementi(); ++i) {
            CElemento* element = first->GetIndexElemento(i);
            Kind its;
            count += KindOf(*element, its) && its == kind &&
                     (element->GetIndexNodo(0) == second || element->GetIndexNodo(1) == second);
        }
        return count;
    }
    // Beams, truss members, walls, slabs and nodes.
    std::vector<int> Sizes() {
        HostDocument& document = Document();
        return {document.GetSizeTravi(), document.GetSizeAste(), document.GetSizeSetti(), document.GetSizeSolai(),
                document.GetSizeNodi()};
    }
    static std::vector<int> Plus(std::vector<int> sizes, const std::vector<int>& more) {
        for (std::size_t i = 0; i < sizes.size(); ++i)
            sizes[i] += more[i];
        return sizes;
    }
    CElemento* Column() { return Document().GetIndexAsta(0); } // from (0, 0, 0) to (0, 0, 3)
};

// Catches steps counted from the selection instead of from the copy before, joins that skip a copy or miss a node, and
// picks that do not reach the fields.
TEST_F(SelectionCommandsTest, CopiesAlongAPickedVectorWithStepsOfTheirOwn) {
    Select({Column()});
    const std::vector<int> before = Sizes();
    Run(CopiaTrasla::IDD, [this](DialogDriver& driver) {
        Pick({0, 0, 0});
        Pick({4, 0, 0});
        EXPECT_EQ(driver.Text(CopiaTrasla::IDC_SPAZIATURA), "4");
        driver.Type(CopiaTrasla::IDC_COPIE, "3");
        driver.Click(CopiaTrasla::IDC_UNIONE_TRAVI);
        driver.ClickRow(CopiaTrasla::IDC_LISTA_PASSI, 0);
        for (const UINT digit : {'1', '2', '3'}) {
            driver.Press(digit);
            driver.Press(VK_RETURN);
            driver.Press(VK_DOWN);
        }
        driver.Press(VK_RETURN);
    });
    EXPECT_FALSE(View().IsDefinisciVettore());
    EXPECT_EQ(Sizes(), Plus(before, {6, 3, 0, 0, 6}));
    double last = 0;
    for (const double x : {1.0, 3.0, 6.0}) {
        EXPECT_EQ(Joined(Kind::Truss, {x, 0, 0}, {x, 0, 3}), 1) << x;
        EXPECT_EQ(Joined(Kind::Beam, {last, 0, 0}, {x, 0, 0}), 1) << x;
        EXPECT_EQ(Joined(Kind::Beam, {last, 0, 3}, {x, 0, 3}), 1) << x;
        last = x;
    }
    EXPECT_EQ(Document().Selection().All(), std::vector<CElemento*>{Column()}) << "the original stays selected";
}

// The whole command without the pointer. Catches a mnemonic, a tab stop or an arrow key that leads elsewhere.
TEST_F(SelectionCommandsTest, CopiesByKeyboardAlone) {
    Select({Column()});
    const std::vector<int> before = Sizes();
    Run(CopiaTrasla::IDD, [this](DialogDriver& driver) {
        // The arrows go round in a group, wherever its mnemonic puts the focus.
        const auto choose = [&driver](UINT mnemonic, int button) {
            driver.Press(mnemonic, AltKey);
            for (int presses = 0; presses < 4 && !driver.Checked(button); ++presses)
                driver.Press(VK_DOWN);
            EXPECT_TRUE(driver.Checked(button));
        };
        choose('D', CopiaTrasla::IDC_DIREZIONE_Y); // first: passing by "Vettore" sets the spacing
        choose('U', CopiaTrasla::IDC_UNIONE_TRAVI + 1);
        driver.Press('C', AltKey);
        driver.TypeKeys("2");
        driver.Press('S', AltKey);
        driver.TypeKeys("2.5");
        for (int tabs = 0; tabs < 30 && driver.Focus() != CopiaTrasla::IDC_LISTA_PASSI; ++tabs)
            driver.Press(VK_TAB);
        ASSERT_EQ(driver.Focus(), CopiaTrasla::IDC_LISTA_PASSI);
        driver.Press(VK_END);
        driver.Press(VK_SPACE);
        driver.Press('4');
        driver.Press(VK_OEM_PERIOD);
        driver.Press('5');
        driver.Press(VK_RETURN);
        EXPECT_EQ(driver.Rows(CopiaTrasla::IDC_LISTA_PASSI).back(), "2            4.5");
        driver.Press(VK_RETURN);
    });
    EXPECT_EQ(Sizes(), Plus(before, {0, 6, 0, 0, 4}));
    EXPECT_EQ(Joined(Kind::Truss, {0, 2.5, 0}, {0, 2.5, 3}), 1);
    EXPECT_EQ(Joined(Kind::Truss, {0, 2.5, 3}, {0, 7, 3}), 1);
}

// Ten million copies are refused before one of them is made. Catches an endless command, a half one, and a dialog that
// stays when its command was refused.
TEST_F(SelectionCommandsTest, TooManyCopiesAreRefused) {
    Select({Column()});
    const std::string before = State();
    const auto refuse = [&](DialogDriver& driver, int copies) {
        driver.SetText(copies, "10000000");
        m_user.ExpectMessage("Troppe copie: il comando non è stato eseguito.", IDOK, MB_OK);
        driver.Press(VK_RETURN);
        EXPECT_FALSE(driver.IsOpen());
        EXPECT_EQ(State(), before);
        EXPECT_EQ(Document().Undo().UndoCount(), 0u);
    };
    DialogDriver along(*OpenTool(CopiaTrasla::IDD));
    refuse(along, CopiaTrasla::IDC_COPIE);
    DialogDriver driver(*OpenTool(CopiaRuota::IDD));
    driver.Type(CopiaRuota::IDC_X2 + 2, "1");
    driver.Type(CopiaRuota::IDC_X1, "0.25");
    driver.Type(CopiaRuota::IDC_X2, "0.25");
    driver.Type(CopiaRuota::IDC_ANGOLO, "1.5");
    refuse(driver, CopiaRuota::IDC_COPIE);
}

} // namespace
