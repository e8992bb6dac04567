#include "dialogs/selection/DialogCopiaTrasla.h"
#include "model/Nodo.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

namespace {

constexpr int list = 1004, spacing = 1093, editor = 1096, spin = 1171, copies = 1203;
constexpr int radioX = 1090, radioY = 1091, radioZ = 1092, radioVector = 1102;

class CopiaTrasla : public DialogTest {
  protected:
    CopiaTrasla() {
        host.Open(dialog);
        host.Take();
    }
    ~CopiaTrasla() override { dialog.DestroyWindow(); }

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
    // One row with the focus and no row's selection taken by anything else.
    void Select(DialogDriver& driver, int row) { driver.ClickRow(list, row); }
    bool VectorEnabled(const DialogDriver& driver) {
        int enabled = driver.Enabled(1125);
        for (int id = 1113; id <= 1118; ++id)
            enabled += driver.Enabled(id);
        for (int id = 1194; id <= 1199; ++id)
            enabled += driver.Enabled(id);
        EXPECT_TRUE(enabled == 0 || enabled == 13) << "box, labels and edits go together: " << enabled << " of 13";
        return enabled == 13;
    }

    CDialogCopiaTrasla dialog;
};

TEST_F(CopiaTrasla, OpensWithItsDefaultsEachTime) {
    dialog.DestroyWindow();
    dialog.m_nCopie = 7;
    dialog.m_dSpaziatura = dialog.m_dX2 = dialog.m_dValoreLista = 8;
    dialog.m_nUnione = 0;
    dialog.m_nDirezione = 3;
    dialog.GetIndexPass(0) = 5;
    host.Take();
    ASSERT_NE(host.Open(dialog), 0);
    const DialogDriver driver(dialog);
    EXPECT_EQ(driver.Caption(), "Ponte : Copia Trasla");
    EXPECT_EQ(host.Take(), Lines{"StartDefinisciVettore \"\" \"\""});
    EXPECT_EQ(driver.Text(copies) + " " + driver.Text(spacing) + " " + driver.Text(1197), "1 3 0");
    EXPECT_TRUE(driver.Checked(radioZ));
    EXPECT_TRUE(driver.Checked(1202));
    EXPECT_FALSE(VectorEnabled(driver));
    EXPECT_FALSE(driver.Visible(editor));
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "3")});
}

TEST_F(CopiaTrasla, DefaultsMakeOneCopyAlongZ) {
    // The wait bar counts copies times objects: one of the two alone would end early.
    host.doc.selected.AddTail(host.doc.NewNodo(0, 0, 0));
    host.doc.selected.AddTail(host.doc.NewNodo(1, 0, 0));
    DialogDriver(dialog).Press(VK_RETURN);
    Lines expected = Command({"0 0 3 0"}, 2, 2);
    expected.push_back("StopDefinisciVettore");
    EXPECT_EQ(host.Take(), expected);
}

TEST_F(CopiaTrasla, StepsTypedByKeyboardAlone) {
    host.View().endsDialogs = false;
    host.doc.selected.AddTail(host.doc.NewNodo(0, 0, 0));
    DialogDriver driver(dialog);
    driver.Press('C', AltKey);
    driver.TypeKeys("3");
    driver.Click(radioX);
    driver.Click(1201);
    Select(driver, 0);
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
    DialogDriver driver(dialog);
    Select(driver, 0);
    driver.Press('1');
    EXPECT_EQ(driver.Focus(), editor);
    EXPECT_TRUE(driver.SelectedRows(list).empty());
    driver.Press('2');
    driver.Press(VK_OEM_PERIOD);
    driver.Press('5');
    EXPECT_EQ(driver.Text(editor), "12.5") << "the first digit must not be selected or lost";
    for (const UINT swallowed : {UINT(VK_NUMPAD0) + 5, UINT(VK_OEM_MINUS), UINT('A'), UINT(VK_DELETE), UINT(VK_TAB),
                                 UINT(VK_HOME), UINT(VK_UP), UINT(VK_ESCAPE), UINT(VK_DECIMAL)})
        driver.Press(swallowed);
    EXPECT_EQ(driver.Text(editor), "12.5");
    EXPECT_EQ(driver.Focus(), editor);
    EXPECT_EQ(host.Take(), Lines{}) << "Escape cancelled the dialog";
    driver.Press(VK_LEFT);
    driver.Press(VK_BACK);
    driver.Press(VK_RIGHT);
    driver.Press('7');
    EXPECT_EQ(driver.Text(editor), "1257");
    driver.Press(VK_RETURN);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "1257")});
    EXPECT_EQ(driver.SelectedRows(list), std::vector<int>{0});
}

TEST_F(CopiaTrasla, SpaceAndDoubleClickEditTheCurrentValue) {
    DialogDriver driver(dialog);
    driver.Type(copies, "2");
    driver.Type(spacing, "4.5");
    Select(driver, 1);
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
    DialogDriver driver(dialog);
    driver.Type(copies, "3");
    Select(driver, 2);
    driver.Press(VK_SPACE);
    CRect row;
    auto& box = dynamic_cast<CListBox&>(*dialog.GetDlgItem(list));
    box.GetItemRect(2, &row);
    box.ClientToScreen(row);
    CRect place;
    dialog.GetDlgItem(editor)->GetWindowRect(place);
    EXPECT_EQ(place.left, row.left + 44) << "the row's number must stay visible";
    EXPECT_EQ(place.top, row.top);
    EXPECT_EQ(place.right, row.right);
    EXPECT_EQ(place.bottom, row.bottom);
    driver.Press(VK_RETURN);
    // A row that was scrolled away comes back under its editor.
    driver.Type(copies, "90");
    Select(driver, 0);
    box.SetTopIndex(60);
    driver.Press(VK_SPACE);
    CRect inside;
    box.GetWindowRect(inside);
    dialog.GetDlgItem(editor)->GetWindowRect(place);
    EXPECT_GE(place.top, inside.top);
    EXPECT_LE(place.bottom, inside.bottom);
    EXPECT_EQ(box.GetTopIndex(), 0);
}

TEST_F(CopiaTrasla, ZeroStepIsTakenBackOrRefused) {
    DialogDriver driver(dialog);
    Select(driver, 0);
    driver.Press(VK_SPACE);
    driver.Press('0');
    driver.Press(VK_RETURN);
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
    DialogDriver driver(dialog);
    driver.Type(copies, "2");
    driver.SetFocus(list);
    ASSERT_TRUE(driver.SelectedRows(list).empty());
    driver.Press('9');
    driver.Press(VK_RETURN);
    EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "9"), Row(2, "3")}));
    EXPECT_TRUE(driver.SelectedRows(list).empty());
}

TEST_F(CopiaTrasla, SpacingOverwritesEveryStep) {
    DialogDriver driver(dialog);
    driver.Type(copies, "2");
    Select(driver, 0);
    driver.Press('7');
    driver.Press(VK_RETURN);
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
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
    driver.Type(copies, "2");
    host.View().Pick(1, 1, 1);
    EXPECT_TRUE(driver.Checked(radioVector));
    EXPECT_TRUE(VectorEnabled(driver));
    EXPECT_EQ(driver.Text(spacing), "3") << "the first point says nothing about the distance";
    host.View().Pick(4, 5, 1);
    EXPECT_EQ(driver.Text(1194) + driver.Text(1195) + driver.Text(1197) + driver.Text(1198), "1145");
    EXPECT_EQ(driver.Text(spacing), "5");
    EXPECT_EQ(driver.Rows(list), (Lines{Row(1, "5"), Row(2, "5")}));
    user.ExpectMessage("La spaziatura non può essere cambiata con il vettore attivo.", IDOK, MB_OK);
    driver.Type(spacing, "7");
    EXPECT_EQ(driver.Text(spacing), "5");
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Command({"3 4 0 0", "3 4 0 0"}, 0, 0));
}

TEST_F(CopiaTrasla, SilentPointsTouchNoControl) {
    const DialogDriver driver(dialog);
    dialog.SetVettoreFrom(CFPoint(1, 2, 3), 0);
    dialog.SetVettoreTo(CFPoint(1, 2, 9), 0);
    EXPECT_EQ(dialog.GetVettoreDiff().z, 6);
    EXPECT_EQ(dialog.m_nDirezione, 3);
    EXPECT_TRUE(VectorEnabled(driver));
    EXPECT_TRUE(driver.Checked(radioZ));
    EXPECT_EQ(driver.Text(1194) + driver.Text(spacing), "03");
    EXPECT_EQ(dialog.GetIndexPass(0), 3);
    // The same slots with a non-zero argument are the picked points.
    dialog.SetVettoreTo(CFPoint(0, 8, 0), 1);
    EXPECT_EQ(driver.Text(1198) + driver.Text(spacing), "88") << "the first point was read back from its edits";
}

TEST_F(CopiaTrasla, TypedCoordinateUpdatesTheSteps) {
    DialogDriver driver(dialog);
    driver.Click(radioVector);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "0")}) << "the vector's length, null so far";
    const char* const texts[] = {"1", "2", "3", "2", "4", "5"};
    for (int i = 0; i < 6; ++i) // all six differ from their neighbours: a handler bound to another field shows
        driver.Type(1194 + i, texts[i]);
    driver.Press(VK_TAB);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "3")});
    Select(driver, 0);
    driver.Press('8');
    driver.Press(VK_RETURN);
    driver.Click(1195);
    driver.Press(VK_TAB);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "8")}) << "leaving an edit unchanged resets nothing";
}

TEST_F(CopiaTrasla, LeavingTheVectorResetsTheSteps) {
    DialogDriver driver(dialog);
    const auto typeStep = [&](UINT digit) {
        Select(driver, 0);
        driver.Press(digit);
        driver.Press(VK_RETURN);
    };
    typeStep('8');
    driver.Click(radioX);
    driver.Click(radioY);
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "8")}) << "from axis to axis nothing is reset";
    host.View().Pick(0, 0, 0);
    host.View().Pick(0, 6, 8);
    typeStep('9');
    driver.Click(radioZ);
    EXPECT_FALSE(VectorEnabled(driver));
    EXPECT_EQ(driver.Rows(list), Lines{Row(1, "10")});
    driver.Press(VK_DOWN); // arrows inside the group click the button that they check
    EXPECT_TRUE(driver.Checked(radioVector));
    EXPECT_TRUE(VectorEnabled(driver));
}

TEST_F(CopiaTrasla, NumbersOfCopies) {
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
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
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
    driver.Type(copies, "102");
    ASSERT_EQ(driver.Rows(list).size(), 102u);
    Select(driver, 101);
    driver.Press('4');
    driver.Press(VK_RETURN);
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
    DialogDriver driver(dialog);
    driver.Click(radioVector);
    user.ExpectMessage("Vettore non valido.", IDOK, MB_OK); // before the steps, which are all 0
    driver.Click(IDOK);
    driver.Type(1199, "abc");
    user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_RETURN);
    EXPECT_EQ(driver.Text(1199), "abc");
    EXPECT_EQ(driver.Focus(), 1199);
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
    DialogDriver driver(dialog);
    driver.Click(radioVector);
    driver.Type(1197, "abc");
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), (Lines{"WM_FINEDIALOGO 2", "StopDefinisciVettore"}));
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
