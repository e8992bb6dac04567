#include "dialogs/selection/DialogCopiaTrasla.h"
#include "model/element/Nodo.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogCopiaTrasla;
constexpr int list = Dialog::IDC_LISTA_PASSI, editor = Dialog::IDC_EDIT_LISTA, spacing = Dialog::IDC_SPAZIATURA;
constexpr int spin = Dialog::IDC_SPIN_COPIE, copies = Dialog::IDC_COPIE;
constexpr int radioX = Dialog::IDC_DIREZIONE_X, radioY = Dialog::IDC_DIREZIONE_Y, radioZ = Dialog::IDC_DIREZIONE_Z;
constexpr int radioVector = Dialog::IDC_DIREZIONE_VETTORE;

class CopiaTrasla : public ToolTest<CDialogCopiaTrasla> {
  protected:
    CopiaTrasla() { m_host.View().endsDialogs = false; }

    // The whole command with these cycle lines; `steps` is the size of the wait bar.
    static Lines Command(const Lines& cycles, int objects, int steps) {
        Lines lines{"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "InizioCicloTraslaSelezione " + std::to_string(objects),
                    "InizioAttesa \"Attendere...Traslazione dei nodi/elementi selezionati.\" " + std::to_string(steps)};
        for (std::size_t i = 0; i < cycles.size(); ++i)
            lines.push_back("CicloTraslaSelezione " + cycles[i] + " " + std::to_string(i));
        lines.insert(lines.end(), {"FineCicloTraslaSelezione " + std::to_string(cycles.size()), "EndUndo 4",
                                   "FineAttesa", "WM_FINEDIALOGO 1"});
        return lines;
    }
    static std::string Row(int number, const char* step) {
        return std::to_string(number) + std::string(12, ' ') + step;
    }
    // Types a step of one digit over a row.
    void TypeStep(int row, char digit) {
        m_driver.ClickRow(list, row);
        m_driver.Press({digit, VK_RETURN});
    }
    bool VectorEnabled() const {
        return EnabledTogether({{Dialog::IDC_GROUP_VETTORE, Dialog::IDC_GROUP_VETTORE},
                                {Dialog::IDC_LABEL_VETTORE_FIRST, Dialog::IDC_LABEL_VETTORE_LAST},
                                {Dialog::IDC_X1, Dialog::IDC_Z2}});
    }
    CRect PlaceOf(int id) {
        CRect place;
        m_dialog.GetDlgItem(id)->GetWindowRect(place);
        return place;
    }
};

TEST_F(CopiaTrasla, StepsTypedByKeyboardAlone) {
    // The wait bar counts copies times objects: one of the two alone would end early.
    m_host.doc.selected.AddTail(m_host.doc.NewNodo(0, 0, 0));
    m_host.doc.selected.AddTail(m_host.doc.NewNodo(1, 0, 0));
    m_dialog.GetIndexPass(0) = 5;
    m_driver = Reopen(); // the step that the opening before has left is gone
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "3")});
    m_driver.Press('C', AltKey);
    m_driver.TypeKeys("3");
    m_driver.Click(radioX);
    m_driver.Click(Dialog::IDC_UNIONE_BIELLE);
    m_driver.ClickRow(list, 0);
    for (const UINT digit : {'1', '2', '3'}) {
        m_driver.Press(digit);
        EXPECT_TRUE(m_driver.Visible(editor));
        m_driver.Press(VK_RETURN);
        EXPECT_FALSE(m_driver.Visible(editor));
        EXPECT_EQ(m_driver.Focus(), list);
        m_driver.Press(VK_DOWN);
    }
    EXPECT_EQ(m_driver.Rows(list), (Lines{Row(1, "1"), Row(2, "2"), Row(3, "3")}));
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Command({"1 0 0 2", "2 0 0 2", "3 0 0 2"}, 2, 6));
    // The silent vector of an axis must not stick: the next command reads the buttons again.
    m_dialog.SetVettoreTo(CFPoint(0, 0, 50), 0);
    m_driver.Click(Dialog::IDC_UNIONE_TRAVI);
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Command({"1 0 0 1", "2 0 0 1", "3 0 0 1"}, 2, 6));
}

TEST_F(CopiaTrasla, EditorTakesDigitsStopAndEditingKeysOnly) {
    m_driver.ClickRow(list, 0);
    m_driver.Press('1');
    EXPECT_EQ(m_driver.Focus(), editor);
    EXPECT_TRUE(m_driver.SelectedRows(list).empty());
    m_driver.Press({'2', VK_OEM_PERIOD, '5'});
    EXPECT_EQ(m_driver.Text(editor), "12.5") << "the first digit must not be selected or lost";
    m_driver.Press({VK_NUMPAD0 + 5, VK_OEM_MINUS, 'A', VK_DELETE, VK_TAB, VK_HOME, VK_UP, VK_ESCAPE, VK_DECIMAL});
    EXPECT_EQ(m_driver.Text(editor), "12.5");
    EXPECT_EQ(m_driver.Focus(), editor);
    EXPECT_EQ(m_host.Take(), Lines{}) << "Escape cancelled the dialog";
    m_driver.Press({VK_LEFT, VK_BACK, VK_RIGHT, '7'});
    EXPECT_EQ(m_driver.Text(editor), "1257");
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "1257")});
    EXPECT_EQ(m_driver.SelectedRows(list), std::vector<int>{0});
}

TEST_F(CopiaTrasla, SpaceAndDoubleClickEditTheCurrentValue) {
    m_driver.Type(copies, "2");
    m_driver.Type(spacing, "4.5");
    m_driver.ClickRow(list, 1);
    m_driver.Press(VK_SPACE);
    EXPECT_EQ(m_driver.Text(editor), "4.5");
    m_driver.Press('6'); // over the selected text
    EXPECT_EQ(m_driver.Text(editor), "6");
    m_driver.Press(VK_RETURN);
    m_driver.DoubleClickRow(list, 0);
    EXPECT_EQ(m_driver.Text(editor), "4.5");
    EXPECT_EQ(m_driver.Focus(), editor);
    m_driver.Press('8');
    m_driver.Click(Dialog::IDC_UNIONE_NIENTE); // leaving by mouse commits as well
    EXPECT_EQ(m_driver.Rows(list), (Lines{Row(1, "8"), Row(2, "6")}));
    EXPECT_FALSE(m_driver.Visible(editor));
}

TEST_F(CopiaTrasla, EditorLiesOverItsRow) {
    m_driver.Type(copies, "3");
    m_driver.ClickRow(list, 2);
    m_driver.Press(VK_SPACE);
    CRect row;
    auto& box = dynamic_cast<CListBox&>(*m_dialog.GetDlgItem(list));
    box.GetItemRect(2, &row);
    box.ClientToScreen(row);
    row.left += 44; // the row's number must stay visible
    EXPECT_EQ(PlaceOf(editor), row);
    m_driver.Press(VK_RETURN);
    // A row that was scrolled away comes back under its editor.
    m_driver.Type(copies, "90");
    m_driver.ClickRow(list, 0);
    box.SetTopIndex(60);
    m_driver.Press(VK_SPACE);
    EXPECT_GE(PlaceOf(editor).top, PlaceOf(list).top);
    EXPECT_LE(PlaceOf(editor).bottom, PlaceOf(list).bottom);
    EXPECT_EQ(box.GetTopIndex(), 0);
}

TEST_F(CopiaTrasla, ZeroStepIsTakenBackOrRefused) {
    m_driver.ClickRow(list, 0);
    m_driver.Press({VK_SPACE, '0', VK_RETURN});
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "3")});
    // A zero that reaches the array another way stops OK, and the row is shown.
    m_driver.Type(copies, "2");
    m_dialog.GetIndexPass(1) = 0;
    m_user.ExpectMessage("Passo non valido.", IDOK, MB_OK);
    m_driver.Click(IDOK);
    EXPECT_EQ(m_driver.SelectedRows(list), std::vector<int>{1});
    EXPECT_EQ(m_driver.Focus(), list);
    EXPECT_EQ(m_host.Take(), Lines{});
}

TEST_F(CopiaTrasla, EditorWithoutARowWritesTheFirstStep) {
    m_driver.Type(copies, "2");
    m_driver.SetFocus(list);
    m_driver.Press({'9', VK_RETURN});
    EXPECT_EQ(m_driver.Rows(list), (Lines{Row(1, "9"), Row(2, "3")}));
    EXPECT_TRUE(m_driver.SelectedRows(list).empty());
}

TEST_F(CopiaTrasla, SpacingOverwritesEveryStep) {
    m_driver.Type(copies, "2");
    TypeStep(0, '7');
    m_driver.Type(spacing, "0.5"); // by way of "0", which is not taken
    EXPECT_EQ(m_driver.Text(spacing), "0.5");
    EXPECT_EQ(m_driver.Rows(list), (Lines{Row(1, "0.5"), Row(2, "0.5")}));
    EXPECT_EQ(m_dialog.GetIndexPass(99), 0.5);
    for (const char* refused : {"0", "-2"}) {
        m_driver.Type(spacing, refused);
        EXPECT_EQ(m_driver.Text(spacing), refused) << "the text stays as typed";
        EXPECT_EQ(m_driver.Rows(list), (Lines{Row(1, "0.5"), Row(2, "0.5")}));
    }
}

TEST_F(CopiaTrasla, PickedVectorSetsDirectionAndSteps) {
    m_driver.Type(copies, "2");
    m_host.View().Pick(1, 1, 1);
    EXPECT_TRUE(m_driver.Checked(radioVector));
    EXPECT_TRUE(VectorEnabled());
    EXPECT_EQ(m_driver.Text(spacing), "3") << "the first point says nothing about the distance";
    m_host.View().Pick(4, 5, 1);
    EXPECT_EQ(Texts({Dialog::IDC_X1, Dialog::IDC_Y1, Dialog::IDC_X2, Dialog::IDC_Y2, spacing}), "1 1 4 5 5");
    EXPECT_EQ(m_driver.Rows(list), (Lines{Row(1, "5"), Row(2, "5")}));
    m_user.ExpectMessage("La spaziatura non può essere cambiata con il vettore attivo.", IDOK, MB_OK);
    m_driver.Type(spacing, "7");
    EXPECT_EQ(m_driver.Text(spacing), "5");
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(), Command({"3 4 0 0", "3 4 0 0"}, 0, 0));
}

TEST_F(CopiaTrasla, SilentPointsTouchNoControl) {
    m_dialog.SetVettoreFrom(CFPoint(1, 2, 3), 0);
    m_dialog.SetVettoreTo(CFPoint(1, 2, 9), 0);
    EXPECT_EQ(m_dialog.GetVettoreDiff().z, 6);
    EXPECT_EQ(m_dialog.m_nDirezione, 3);
    EXPECT_TRUE(VectorEnabled());
    EXPECT_TRUE(m_driver.Checked(radioZ));
    EXPECT_EQ(Texts({Dialog::IDC_X1, spacing}), "0 3");
    EXPECT_EQ(m_dialog.GetIndexPass(0), 3);
    // The same slots with a non-zero argument are the picked points.
    m_dialog.SetVettoreTo(CFPoint(0, 8, 0), 1);
    EXPECT_EQ(Texts({Dialog::IDC_Y2, spacing}), "8 8") << "the first point was read back from its edits";
}

TEST_F(CopiaTrasla, TypedCoordinateUpdatesTheSteps) {
    m_driver.Click(radioVector);
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "0")}) << "the vector's length, null so far";
    TypeFrom(Dialog::IDC_X1, {"1", "2", "3", "2", "4", "5"});
    m_driver.Press(VK_TAB);
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "3")});
    TypeStep(0, '8');
    m_driver.Click(Dialog::IDC_Y1);
    m_driver.Press(VK_TAB);
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "8")}) << "leaving an edit unchanged resets nothing";
}

// Catches steps of the former length where another reading than that of the edit's leaving takes the change of a point.
TEST_F(CopiaTrasla, AnyReadingOfAChangedPointResetsTheSteps) {
    m_host.View().Pick(0, 0, 0);
    m_host.View().Pick(5, 0, 0);
    m_driver.Type(Dialog::IDC_X2, "9");
    m_driver.Press(VK_RETURN); // the edit keeps the focus
    EXPECT_EQ(m_host.Take(), Command({"9 0 0 0"}, 0, 0));
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "9")});
    m_driver.SetText(Dialog::IDC_X2, "7");
    EXPECT_EQ(m_dialog.GetNPass(), 1);
    EXPECT_EQ(m_driver.Text(spacing) + m_driver.Rows(list)[0], "7" + Row(1, "7"));
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Command({"7 0 0 0"}, 0, 0));
}

TEST_F(CopiaTrasla, LeavingTheVectorResetsTheSteps) {
    TypeStep(0, '8');
    m_driver.Click(radioX);
    m_driver.Click(radioY);
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "8")}) << "from axis to axis nothing is reset";
    m_host.View().Pick(0, 0, 0);
    m_host.View().Pick(0, 6, 8);
    TypeStep(0, '9');
    m_driver.Click(radioZ);
    EXPECT_FALSE(VectorEnabled());
    EXPECT_EQ(m_driver.Rows(list), Lines{Row(1, "10")});
    m_driver.Press(VK_DOWN); // arrows inside the group click the button that they check
    EXPECT_TRUE(m_driver.Checked(radioVector));
    EXPECT_TRUE(VectorEnabled());
}

TEST_F(CopiaTrasla, NumbersOfCopies) {
    m_driver.ClickSpinUp(spin);
    EXPECT_EQ(m_driver.Rows(list).size(), 2u);
    m_driver.Type(copies, "0");
    EXPECT_TRUE(m_driver.Rows(list).empty());
    m_user.ExpectMessage("Numero copie non valido.", IDOK, MB_OK);
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Lines{});
    m_driver.SetText(copies, "-2");
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Command({}, 0, 0)) << "a negative number makes no copy but is one undo step";
}

TEST_F(CopiaTrasla, CopiesBeyondTheHundredthShareTheFirstStep) {
    m_driver.Type(copies, "102");
    ASSERT_EQ(m_driver.Rows(list).size(), 102u);
    TypeStep(101, '4');
    const Lines rows = m_driver.Rows(list);
    EXPECT_EQ(rows[0], Row(1, "4"));
    EXPECT_EQ(rows[1], Row(2, "3"));
    EXPECT_EQ(rows[99], Row(100, "3"));
    EXPECT_EQ(rows[100], Row(101, "4"));
    m_driver.Click(IDOK);
    const Lines lines = m_host.Take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "CicloTraslaSelezione 0 0 4 0 101"), 1);
    m_driver.Type(copies, "250000"); // a long fill shows that it is alive
    EXPECT_EQ(m_host.Take(), (Lines{"InizioAttesa \"Attendere...\" 2", "StepBar", "StepBar", "FineAttesa"}));
    // Catches a list that fills the memory with a row for each of the copies of a slip of the keyboard.
    m_driver.SetText(copies, "2147483647");
    EXPECT_EQ(m_dialog.GetNPass(), 2147483647);
    EXPECT_EQ(m_driver.Rows(list).size(), 1'000'000u);
}

TEST_F(CopiaTrasla, NullVectorAndTextAreRefused) {
    m_driver.Click(radioVector);
    m_user.ExpectMessage("Vettore non valido.", IDOK, MB_OK); // before the steps, which are all 0
    m_driver.Click(IDOK);
    m_driver.Type(Dialog::IDC_Z2, "abc");
    m_user.ExpectMessage("Immettere un numero.");
    m_driver.Press(VK_RETURN);
    // Leaving the edit reads it again; a picked point is not taken while it is wrong.
    m_user.ExpectMessage("Immettere un numero.");
    m_host.View().Pick(1, 2, 3);
    EXPECT_EQ(m_driver.Text(Dialog::IDC_X1), "0");
    EXPECT_EQ(m_host.Take(), Lines{});
    // The view goes: no message about a text that nobody can correct any more.
    m_host.CloseView(m_host.View());
    m_dialog.DestroyWindow();
}

TEST_F(CopiaTrasla, AfterCancelNothingIsRead) {
    // The edit loses the focus while the window goes: its text must not be judged any more.
    m_driver.Click(radioVector);
    m_driver.Type(Dialog::IDC_X2, "abc");
    m_driver.Press(VK_ESCAPE);
    m_dialog.DestroyWindow();
    m_dialog.SetVettoreFrom(CFPoint(5, 5, 5));
    EXPECT_EQ(m_dialog.m_dX1, 0);
    EXPECT_EQ(m_dialog.GetNPass(), 0);
}

TEST_F(CopiaTrasla, StepsOutsideTheArrayAreTheFirst) {
    EXPECT_EQ(m_dialog.GetMaxPass(), 100);
    for (const int outside : {-1, 100, 1000000})
        EXPECT_EQ(&m_dialog.GetIndexPass(outside), &m_dialog.m_dPasso[0]);
    EXPECT_EQ(&m_dialog.GetIndexPass(99), &m_dialog.m_dPasso[99]);
    const CFPoint unit = m_dialog.GetVettoreDir(CFPoint(0, 3, 4));
    EXPECT_DOUBLE_EQ(unit.y, 0.6);
    EXPECT_DOUBLE_EQ(unit.z, 0.8);
    EXPECT_EQ(m_dialog.GetVettoreDir(CFPoint()), CFPoint());
    // A join kind outside the group's three does nothing at all.
    m_dialog.m_nUnione = -1;
    m_dialog.CambiaDocumento();
    EXPECT_EQ(m_host.Take(), Lines{});
}

} // namespace
