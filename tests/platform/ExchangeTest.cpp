// Data exchange: what is accepted as a number, what is written, which messages come, what stays as typed.
#include "platform/controls/Edit.h"
#include "platform/window/DataExchange.h"
#include "tests/platform/TestDialogs.h"
#include "tests/support/DialogDriver.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cstdint>

namespace {

class ExchangeDialog : public CDialog {
    TestTemplate m_source{ControlRows()
                              .Edit(100)
                              .Edit(101)
                              .Edit(102)
                              .Radio("X", 301, true)
                              .Radio("Y", 302)
                              .Add("STATIC", "nel gruppo", -1, 0)
                              .Radio("Z", 303)
                              .Button("Segno", 400, BS_AUTOCHECKBOX | WS_GROUP)};

  public:
    ExchangeDialog() : CDialog(1) { EXPECT_TRUE(Create(1)); }

    int integer = 7;
    double number = 0.1;
    double other = 0;
    bool ofAnotherField = false; // what the edit shows
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
        DDX_Text(pDX, 101, ofAnotherField ? other : number);
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
    std::string Message() {
        const Boxes boxes;
        const BOOL read = m_dialog.UpdateData(TRUE);
        EXPECT_EQ(read, boxes.texts.empty());
        return boxes.texts.empty() ? "" : boxes.texts.front();
    }

    ExchangeDialog m_dialog;
};

} // namespace

TEST_F(Exchange, NumbersAreReadWhole) {
    const std::pair<const char*, int> good[] = {{"12", 12}, {"  12  ", 12}, {"-5", -5}, {"+8", 8}};
    for (const auto& [typed, value] : good) {
        m_dialog.SetDlgItemText(100, typed);
        EXPECT_EQ(Message(), "") << typed;
        EXPECT_EQ(m_dialog.integer, value) << typed;
    }
    for (const char* typed :
         {"", "   ", "12a", "1 2", "0x10", "1.0", "--1", "+-1", "4294967297", "99999999999999999999"}) {
        m_dialog.SetDlgItemText(100, typed);
        EXPECT_EQ(Message(), "Immettere un numero intero.") << typed;
        EXPECT_EQ(m_dialog.integer, 8) << typed;
        EXPECT_STREQ(m_dialog.GetDlgItem(100)->GetWindowText(), typed); // what was typed is kept
    }
}

TEST_F(Exchange, DoublesKnowOnlyTheFullStop) {
    const std::pair<const char*, double> good[] = {{"1.5", 1.5}, {" -2 ", -2},  {".5", .5},
                                                   {"3.", 3},    {"1e3", 1000}, {"+0.25", .25}};
    for (const auto& [typed, value] : good) {
        m_dialog.SetDlgItemText(101, typed);
        EXPECT_EQ(Message(), "") << typed;
        EXPECT_EQ(m_dialog.number, value) << typed;
    }
    for (const char* typed : {"", "1,5", "1.5m", "1.2.3", "nan", "inf", "1e999", "e5", "0x1p3"}) {
        m_dialog.SetDlgItemText(101, typed);
        EXPECT_EQ(Message(), "Immettere un numero.") << typed;
    }
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C"); // the toolkit must not leave the machine's
}

TEST_F(Exchange, DoublesAreWrittenWithFifteenDigits) {
    const std::pair<double, const char*> cases[] = {{0.1, "0.1"},    {0.1 + 0.2, "0.3"}, {1.0 / 3, "0.333333333333333"},
                                                    {1e20, "1e+20"}, {-0.5, "-0.5"},     {3, "3"}};
    for (const auto& [value, shown] : cases) {
        m_dialog.number = value;
        m_dialog.UpdateData(FALSE);
        EXPECT_STREQ(m_dialog.GetDlgItem(101)->GetWindowText(), shown);
    }
}

// Catches numbers that lose their last bits to the fifteen digits, though the user has not touched them, and a number
// that comes back where its text has become another one's.
TEST_F(Exchange, AnUntouchedTextGivesTheVeryNumberBack) {
    for (const double value : {0.1 + 0.2, 1.0 / 3, -0.0, 1e300 / 7}) {
        m_dialog.number = value;
        m_dialog.UpdateData(FALSE);
        m_dialog.number = 7;
        EXPECT_EQ(Message(), "");
        EXPECT_EQ(std::bit_cast<std::uint64_t>(m_dialog.number), std::bit_cast<std::uint64_t>(value)) << value;
    }
    m_dialog.number = 0.1 + 0.2;
    m_dialog.UpdateData(FALSE);
    DialogDriver user(m_dialog);
    user.Type(101, "5");
    user.Type(101, "0.3"); // nobody has read the 5
    Message();
    EXPECT_EQ(m_dialog.number, 0.1 + 0.2);
    m_dialog.ofAnotherField = true;
    Message();
    EXPECT_EQ(m_dialog.other, 0.3);
    m_dialog.ofAnotherField = false;
    user.Type(101, "5");
    Message();
    user.Type(101, "0.3");
    Message();
    EXPECT_EQ(m_dialog.number, 0.3) << "the text that was written is past";
}

TEST_F(Exchange, ARangeIsCheckedOnReadingOnlyAndTheFieldIsSelected) {
    m_dialog.integer = 5000;
    m_dialog.UpdateData(FALSE); // writing a value out of range says nothing
    m_dialog.GetDlgItem(101)->SetFocus();
    EXPECT_EQ(Message(), "Immettere un numero compreso tra -5 e 1000.");
    DialogDriver user(m_dialog);
    EXPECT_EQ(user.Focus(), 100);
    user.TypeKeys("9"); // over the selected text
    EXPECT_EQ(user.Text(100), "9");
}

TEST_F(Exchange, TheFirstFieldThatFailsEndsIt) {
    m_dialog.SetDlgItemText(100, "3");
    m_dialog.SetDlgItemText(101, "x");
    m_dialog.SetDlgItemText(102, "nuovo");
    EXPECT_EQ(Message(), "Immettere un numero.");
    EXPECT_EQ(m_dialog.integer, 3);
    EXPECT_EQ(m_dialog.text, CString("testo"));
}

TEST_F(Exchange, WritingFieldsNeverReachesTheirChangeHandlers) {
    EXPECT_EQ(m_dialog.changes, 0);
    m_dialog.number = 44;
    m_dialog.integer = 3;
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(m_dialog.changes, 0);
    m_dialog.SetDlgItemText(100, "8"); // the program's own writing does
    EXPECT_EQ(m_dialog.changes, 1);
    DialogDriver user(m_dialog);
    user.Type(101, "12"); // emptied and two digits
    EXPECT_GE(m_dialog.changes, 3);
}

TEST_F(Exchange, ARadioFieldBindsTheWholeGroup) {
    EXPECT_TRUE(m_dialog.IsDlgButtonChecked(302));
    m_dialog.radio = 2; // behind a label in the middle of the group
    m_dialog.check = 1;
    m_dialog.UpdateData(FALSE);
    EXPECT_TRUE(m_dialog.IsDlgButtonChecked(303));
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(302));
    EXPECT_TRUE(m_dialog.IsDlgButtonChecked(400));
    m_dialog.radio = -1;
    m_dialog.UpdateData(FALSE);
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(303));
    EXPECT_EQ(Message(), "");
    EXPECT_EQ(m_dialog.radio, -1);
    DialogDriver(m_dialog).Click(301);
    EXPECT_EQ(Message(), "");
    EXPECT_EQ(m_dialog.radio, 0);
}
