// Data exchange: what is accepted as a number, what is written, which messages come, what stays as typed.
#include "platform/DataExchange.h"
#include "platform/Edit.h"
#include "tests/platform/TestDialogs.h"
#include "tests/support/DialogDriver.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

class ExchangeDialog : public CDialog {
    TestTemplate m_source{ControlRows()
                              .edit(100)
                              .edit(101)
                              .edit(102)
                              .radio("X", 301, true)
                              .radio("Y", 302)
                              .add("STATIC", "nel gruppo", -1, 0)
                              .radio("Z", 303)
                              .button("Segno", 400, BS_AUTOCHECKBOX | WS_GROUP)};

  public:
    ExchangeDialog() : CDialog(1) { EXPECT_TRUE(Create(1)); }

    int integer = 7;
    double number = 0.1;
    CString text = "testo";
    int radio = 1;
    int check = 0;
    int changes = 0;
    CEdit edit;

  protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Control(pDX, 102, edit);
        DDX_Text(pDX, 100, integer);
        DDV_MinMaxInt(pDX, integer, -5, 1000);
        DDX_Text(pDX, 101, number);
        DDX_Text(pDX, 102, text);
        DDX_Radio(pDX, 301, radio);
        DDX_Check(pDX, 400, check);
    }
    void OnChange() { ++changes; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ExchangeDialog, CDialog)
    ON_EN_CHANGE(100, OnChange)
    ON_EN_CHANGE(101, OnChange)
END_MESSAGE_MAP()

class Exchange : public testing::Test {
  protected:
    // The message box that reading the dialog brings, empty for none.
    std::string message() {
        const Boxes boxes;
        const BOOL read = dialog.UpdateData(TRUE);
        EXPECT_EQ(read, boxes.texts.empty());
        return boxes.texts.empty() ? "" : boxes.texts.front();
    }

    ExchangeDialog dialog;
};

} // namespace

TEST_F(Exchange, NumbersAreReadWhole) {
    const std::pair<const char*, int> good[] = {{"12", 12}, {"  12  ", 12}, {"-5", -5}, {"+8", 8}};
    for (const auto& [typed, value] : good) {
        dialog.SetDlgItemText(100, typed);
        EXPECT_EQ(message(), "") << typed;
        EXPECT_EQ(dialog.integer, value) << typed;
    }
    for (const char* typed :
         {"", "   ", "12a", "1 2", "0x10", "1.0", "--1", "+-1", "4294967297", "99999999999999999999"}) {
        dialog.SetDlgItemText(100, typed);
        EXPECT_EQ(message(), "Immettere un numero intero.") << typed;
        EXPECT_EQ(dialog.integer, 8) << typed;
        EXPECT_STREQ(dialog.GetDlgItem(100)->GetWindowText(), typed); // what was typed is kept
    }
}

TEST_F(Exchange, DoublesKnowOnlyTheFullStop) {
    const std::pair<const char*, double> good[] = {{"1.5", 1.5}, {" -2 ", -2},  {".5", .5},
                                                   {"3.", 3},    {"1e3", 1000}, {"+0.25", .25}};
    for (const auto& [typed, value] : good) {
        dialog.SetDlgItemText(101, typed);
        EXPECT_EQ(message(), "") << typed;
        EXPECT_EQ(dialog.number, value) << typed;
    }
    for (const char* typed : {"", "1,5", "1.5m", "1.2.3", "nan", "inf", "1e999", "e5", "0x1p3"}) {
        dialog.SetDlgItemText(101, typed);
        EXPECT_EQ(message(), "Immettere un numero.") << typed;
    }
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C"); // the toolkit must not leave the machine's
}

TEST_F(Exchange, DoublesAreWrittenWithFifteenDigits) {
    const std::pair<double, const char*> cases[] = {{0.1, "0.1"},    {0.1 + 0.2, "0.3"}, {1.0 / 3, "0.333333333333333"},
                                                    {1e20, "1e+20"}, {-0.5, "-0.5"},     {3, "3"}};
    for (const auto& [value, shown] : cases) {
        dialog.number = value;
        dialog.UpdateData(FALSE);
        EXPECT_STREQ(dialog.GetDlgItem(101)->GetWindowText(), shown);
    }
}

TEST_F(Exchange, ARangeIsCheckedOnReadingOnlyAndTheFieldIsSelected) {
    dialog.integer = 5000;
    dialog.UpdateData(FALSE); // writing a value out of range says nothing
    dialog.GetDlgItem(101)->SetFocus();
    EXPECT_EQ(message(), "Immettere un numero compreso tra -5 e 1000.");
    DialogDriver user(dialog);
    EXPECT_EQ(user.Focus(), 100);
    user.TypeKeys("9"); // over the selected text
    EXPECT_EQ(user.Text(100), "9");
}

TEST_F(Exchange, TheFirstFieldThatFailsEndsIt) {
    dialog.SetDlgItemText(100, "3");
    dialog.SetDlgItemText(101, "x");
    dialog.SetDlgItemText(102, "nuovo");
    EXPECT_EQ(message(), "Immettere un numero.");
    EXPECT_EQ(dialog.integer, 3);
    EXPECT_EQ(dialog.text, CString("testo"));
}

TEST_F(Exchange, WritingFieldsNeverReachesTheirChangeHandlers) {
    EXPECT_EQ(dialog.changes, 0);
    dialog.number = 44;
    dialog.integer = 3;
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.changes, 0);
    dialog.SetDlgItemText(100, "8"); // the program's own writing does
    EXPECT_EQ(dialog.changes, 1);
    DialogDriver user(dialog);
    user.Type(101, "12"); // emptied and two digits
    EXPECT_GE(dialog.changes, 3);
}

TEST_F(Exchange, ARadioFieldBindsTheWholeGroup) {
    EXPECT_TRUE(dialog.IsDlgButtonChecked(302));
    dialog.radio = 2; // behind a label in the middle of the group
    dialog.check = 1;
    dialog.UpdateData(FALSE);
    EXPECT_TRUE(dialog.IsDlgButtonChecked(303));
    EXPECT_FALSE(dialog.IsDlgButtonChecked(302));
    EXPECT_TRUE(dialog.IsDlgButtonChecked(400));
    dialog.radio = -1;
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.GetCheckedRadioButton(301, 303), 0);
    EXPECT_EQ(message(), "");
    EXPECT_EQ(dialog.radio, -1);
    DialogDriver(dialog).Click(301);
    EXPECT_EQ(message(), "");
    EXPECT_EQ(dialog.radio, 0);
}
