#include "dialogs/selection/DialogCopiaTrasla.h"
#include "model/Nodo.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int list = 1004, spacing = 1093, editor = 1096, spin = 1171, copies = 1203;
constexpr int radioX = 1090, radioY = 1091, radioZ = 1092, radioVector = 1102;

class CopiaTrasla : public ToolTest<CDialogCopiaTrasla> {
  protected:
    CopiaTrasla() { host.View().endsDialogs = false; }

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
        driver.ClickRow(list, row);
        driver.Press({digit, VK_RETURN});
    }
    bool VectorEnabled() const { return EnabledTogether({{1125, 1125}, {1113, 1118}, {1194, 1199}}); }
    CRect PlaceOf(int id) {
        CRect place;
        dialog.GetDlgItem(id)->GetWindowRect(place);
        return place;
    }
};

TEST_F(CopiaTrasla, DefaultsMakeOneCopyAlongZ) {
    // The wait bar counts copies times objects: one of the two alone would end early.
    host.doc.selected.AddTail(host.doc.NewNodo(0, 0, 0));
    host.doc.selected.AddTail(host.doc.NewNodo(1, 0, 0));
    dialog.GetIndexPass(0) = 5;
    driver = Reopen(); // the step that the opening before has left is gone
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "3")});
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Command({"0 0 3 0"}, 2, 2));
}

TEST_F(CopiaTrasla, StepsTypedByKeyboardAlone) {
    host.doc.selected.AddTail(host.doc.NewNodo(0, 0, 0));
    driver.Press('C', AltKey);
    driver.TypeKeys("3");
    driver.Click(radioX);
    driver.Click(1201);
    driver.ClickRow(list, 0);
    for (const UINT digit : {'1', '2', '3'}) {
        driver.Press(digit);
        EXPECT_TRUE(driver.Visible(editor));
        driver.Press(VK_RETURN);
        EXPECT_FALSE(driver.Visible(editor));
        EXPECT_EQ(driver.Focus(), list);
        driver.Press(VK_DOWN);
    }
    EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "1"), Row(2, "2"), Row(3, "3")}));
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Command({"1 0 0 2", "2 0 0 2", "3 0 0 2"}, 1, 3));
    // The silent vector of an axis must not stick: the next command reads the buttons again.
    dialog.SetVettoreTo(CFPoint(0, 0, 50), 0);
    driver.Click(1200);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Command({"1 0 0 1", "2 0 0 1", "3 0 0 1"}, 1, 3));
}

TEST_F(CopiaTrasla, EditorTakesDigitsStopAndEditingKeysOnly) {
    driver.ClickRow(list, 0);
    driver.Press('1');
    EXPECT_EQ(driver.Focus(), editor);
    EXPECT_TRUE(driver.SelectedRows(list).empty());
    driver.Press({'2', VK_OEM_PERIOD, '5'});
    EXPECT_EQ(driver.Text(editor), "12.5") << "the first digit must not be selected or lost";
    driver.Press({VK_NUMPAD0 + 5, VK_OEM_MINUS, 'A', VK_DELETE, VK_TAB, VK_HOME, VK_UP, VK_ESCAPE, VK_DECIMAL});
    EXPECT_EQ(driver.Text(editor), "12.5");
    EXPECT_EQ(driver.Focus(), editor);
    EXPECT_EQ(host.Take(), Lines{}) << "Escape cancelled the dialog";
    driver.Press({VK_LEFT, VK_BACK, VK_RIGHT, '7'});
    EXPECT_EQ(driver.Text(editor), "1257");
    driver.Press(VK_RETURN);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "1257")});
    EXPECT_EQ(driver.SelectedRows(list), std::vector<int>{0});
}

TEST_F(CopiaTrasla, SpaceAndDoubleClickEditTheCurrentValue) {
    driver.Type(copies, "2");
    driver.Type(spacing, "4.5");
    driver.ClickRow(list, 1);
    driver.Press(VK_SPACE);
    EXPECT_EQ(driver.Text(editor), "4.5");
    driver.Press('6'); // over the selected text
    EXPECT_EQ(driver.Text(editor), "6");
    driver.Press(VK_RETURN);
    driver.DoubleClickRow(list, 0);
    EXPECT_EQ(driver.Text(editor), "4.5");
    EXPECT_EQ(driver.Focus(), editor);
    driver.Press('8');
    driver.Click(1202); // leaving by mouse commits as well
    EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "8"), Row(2, "6")}));
    EXPECT_FALSE(driver.Visible(editor));
}

TEST_F(CopiaTrasla, EditorLiesOverItsRow) {
    driver.Type(copies, "3");
    driver.ClickRow(list, 2);
    driver.Press(VK_SPACE);
    CRect row;
    auto& box = dynamic_cast<CListBox&>(*dialog.GetDlgItem(list));
    box.GetItemRect(2, &row);
    box.ClientToScreen(row);
    row.left += 44; // the row's number must stay visible
    EXPECT_EQ(PlaceOf(editor), row);
    driver.Press(VK_RETURN);
    // A row that was scrolled away comes back under its editor.
    driver.Type(copies, "90");
    driver.ClickRow(list, 0);
    box.SetTopIndex(60);
    driver.Press(VK_SPACE);
    EXPECT_GE(PlaceOf(editor).top, PlaceOf(list).top);
    EXPECT_LE(PlaceOf(editor).bottom, PlaceOf(list).bottom);
    EXPECT_EQ(box.GetTopIndex(), 0);
}

TEST_F(CopiaTrasla, ZeroStepIsTakenBackOrRefused) {
    driver.ClickRow(list, 0);
    driver.Press({VK_SPACE, '0', VK_RETURN});
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "3")});
    // A zero that reaches the array another way stops OK, and the row is shown.
    driver.Type(copies, "2");
    dialog.GetIndexPass(1) = 0;
    user.ExpectMessage("Passo non valido.", IDOK, MB_OK);
    driver.Click(IDOK);
    EXPECT_EQ(driver.SelectedRows(list), std::vector<int>{1});
    EXPECT_EQ(driver.Focus(), list);
    EXPECT_EQ(host.Take(), Lines{});
}

TEST_F(CopiaTrasla, EditorWithoutARowWritesTheFirstStep) {
    driver.Type(copies, "2");
    driver.SetFocus(list);
    driver.Press({'9', VK_RETURN});
    EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "9"), Row(2, "3")}));
    EXPECT_TRUE(driver.SelectedRows(list).empty());
}

TEST_F(CopiaTrasla, SpacingOverwritesEveryStep) {
    driver.Type(copies, "2");
    TypeStep(0, '7');
    driver.Type(spacing, "0.5"); // by way of "0", which is not taken
    EXPECT_EQ(driver.Text(spacing), "0.5");
    EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "0.5"), Row(2, "0.5")}));
    EXPECT_EQ(dialog.GetIndexPass(99), 0.5);
    for (const char* refused : {"0", "-2"}) {
        driver.Type(spacing, refused);
        EXPECT_EQ(driver.Text(spacing), refused) << "the text stays as typed";
        EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "0.5"), Row(2, "0.5")}));
    }
}

TEST_F(CopiaTrasla, PickedVectorSetsDirectionAndSteps) {
    driver.Type(copies, "2");
    host.View().Pick(1, 1, 1);
    EXPECT_TRUE(driver.Checked(radioVector));
    EXPECT_TRUE(VectorEnabled());
    EXPECT_EQ(driver.Text(spacing), "3") << "the first point says nothing about the distance";
    host.View().Pick(4, 5, 1);
    EXPECT_EQ(Texts({1194, 1195, 1197, 1198, spacing}), "1 1 4 5 5");
    EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "5"), Row(2, "5")}));
    user.ExpectMessage("La spaziatura non può essere cambiata con il vettore attivo.", IDOK, MB_OK);
    driver.Type(spacing, "7");
    EXPECT_EQ(driver.Text(spacing), "5");
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Command({"3 4 0 0", "3 4 0 0"}, 0, 0));
}

TEST_F(CopiaTrasla, SilentPointsTouchNoControl) {
    dialog.SetVettoreFrom(CFPoint(1, 2, 3), 0);
    dialog.SetVettoreTo(CFPoint(1, 2, 9), 0);
    EXPECT_EQ(dialog.GetVettoreDiff().z, 6);
    EXPECT_EQ(dialog.m_nDirezione, 3);
    EXPECT_TRUE(VectorEnabled());
    EXPECT_TRUE(driver.Checked(radioZ));
    EXPECT_EQ(Texts({1194, spacing}), "0 3");
    EXPECT_EQ(dialog.GetIndexPass(0), 3);
    // The same slots with a non-zero argument are the picked points.
    dialog.SetVettoreTo(CFPoint(0, 8, 0), 1);
    EXPECT_EQ(Texts({1198, spacing}), "8 8") << "the first point was read back from its edits";
}

TEST_F(CopiaTrasla, TypedCoordinateUpdatesTheSteps) {
    driver.Click(radioVector);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "0")}) << "the vector's length, null so far";
    TypeFrom(1194, {"1", "2", "3", "2", "4", "5"});
    driver.Press(VK_TAB);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "3")});
    TypeStep(0, '8');
    driver.Click(1195);
    driver.Press(VK_TAB);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "8")}) << "leaving an edit unchanged resets nothing";
}

TEST_F(CopiaTrasla, LeavingTheVectorResetsTheSteps) {
    TypeStep(0, '8');
    driver.Click(radioX);
    driver.Click(radioY);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "8")}) << "from axis to axis nothing is reset";
    host.View().Pick(0, 0, 0);
    host.View().Pick(0, 6, 8);
    TypeStep(0, '9');
    driver.Click(radioZ);
    EXPECT_FALSE(VectorEnabled());
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "10")});
    driver.Press(VK_DOWN); // arrows inside the group click the button that they check
    EXPECT_TRUE(driver.Checked(radioVector));
    EXPECT_TRUE(VectorEnabled());
}

TEST_F(CopiaTrasla, NumbersOfCopies) {
    driver.ClickSpinUp(spin);
    EXPECT_EQ(driver.Rows(list).size(), 2u);
    driver.Type(copies, "0");
    EXPECT_TRUE(driver.Rows(list).empty());
    user.ExpectMessage("Numero copie non valido.", IDOK, MB_OK);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Lines{});
    driver.ClickSpinDown(spin);
    EXPECT_EQ(driver.Text(copies), "0");
    driver.SetText(copies, "-2");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Command({}, 0, 0)) << "a negative number makes no copy but is one undo step";
}

TEST_F(CopiaTrasla, CopiesBeyondTheHundredthShareTheFirstStep) {
    driver.Type(copies, "102");
    ASSERT_EQ(driver.Rows(list).size(), 102u);
    TypeStep(101, '4');
    const Lines rows = driver.Rows(list);
    EXPECT_EQ(rows[0], Row(1, "4"));
    EXPECT_EQ(rows[1], Row(2, "3"));
    EXPECT_EQ(rows[99], Row(100, "3"));
    EXPECT_EQ(rows[100], Row(101, "4"));
    driver.Click(IDOK);
    const Lines lines = host.Take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "CicloTraslaSelezione 0 0 4 0 101"), 1);
    driver.Type(copies, "250000"); // a long fill shows that it is alive
    EXPECT_EQ(host.Take(), (Lines{"InizioAttesa \"Attendere...\" 2", "StepBar", "StepBar", "FineAttesa"}));
    // Catches a list that fills the memory with a row for each of the copies of a slip of the keyboard.
    driver.SetText(copies, "2147483647");
    EXPECT_EQ(dialog.GetNPass(), 2147483647);
    EXPECT_EQ(driver.Rows(list).size(), 1'000'000u);
}

TEST_F(CopiaTrasla, NullVectorAndTextAreRefused) {
    driver.Click(radioVector);
    user.ExpectMessage("Vettore non valido.", IDOK, MB_OK); // before the steps, which are all 0
    driver.Click(IDOK);
    driver.Type(1199, "abc");
    user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_RETURN);
    // Leaving the edit reads it again; a picked point is not taken while it is wrong.
    user.ExpectMessage("Immettere un numero.");
    host.View().Pick(1, 2, 3);
    EXPECT_EQ(driver.Text(1194), "0");
    EXPECT_EQ(host.Take(), Lines{});
    // The view goes: no message about a text that nobody can correct any more.
    host.CloseView(host.View());
    dialog.DestroyWindow();
}

TEST_F(CopiaTrasla, AfterCancelNothingIsRead) {
    // The edit loses the focus while the window goes: its text must not be judged any more.
    driver.Click(radioVector);
    driver.Type(1197, "abc");
    driver.Press(VK_ESCAPE);
    dialog.DestroyWindow();
    dialog.SetVettoreFrom(CFPoint(5, 5, 5));
    EXPECT_EQ(dialog.m_dX1, 0);
    EXPECT_EQ(dialog.GetNPass(), 0);
}

TEST_F(CopiaTrasla, StepsOutsideTheArrayAreTheFirst) {
    EXPECT_EQ(dialog.GetMaxPass(), 100);
    for (const int outside : {-1, 100, 1000000})
        EXPECT_EQ(&dialog.GetIndexPass(outside), &dialog.m_dPasso[0]);
    EXPECT_EQ(&dialog.GetIndexPass(99), &dialog.m_dPasso[99]);
    const CFPoint unit = dialog.GetVettoreDir(CFPoint(0, 3, 4));
    EXPECT_DOUBLE_EQ(unit.y, 0.6);
    EXPECT_DOUBLE_EQ(unit.z, 0.8);
    EXPECT_EQ(dialog.GetVettoreDir(CFPoint()), CFPoint());
    // A join kind outside the group's three does nothing at all.
    dialog.m_nUnione = -1;
    dialog.CambiaDocumento();
    EXPECT_EQ(host.Take(), Lines{});
}

} // namespace
