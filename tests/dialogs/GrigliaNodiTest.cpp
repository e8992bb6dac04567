// The grid of construction lines: when the owner hears of it, and that its controls are bound to their fields.
#include "dialogs/generation/DialogGrigliaNodi.h"
#include "tests/dialogs/Contract.h"
#include "tests/support/DialogTest.h"

namespace {

using G = CDialogGrigliaNodi;

// Reads the controls when it is told of a change, as an owner does.
class Owner : public CWnd {
  public:
    Lines lines;
    G* dialog = nullptr;
    bool reads = true;

    LRESULT OnAggiorna(WPARAM, LPARAM) {
        lines.push_back(!reads || dialog->UpdateData(TRUE) ? "aggiorna" : "non valido");
        return 0;
    }
    LRESULT OnFine(WPARAM, LPARAM) {
        lines.push_back("fine");
        return 0;
    }
    Lines Take() { return std::exchange(lines, {}); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Owner, CWnd)
    ON_MESSAGE(WM_GRIGLIANODI_AGGIORNA, OnAggiorna)
    ON_MESSAGE(WM_GRIGLIANODI_FINE, OnFine)
END_MESSAGE_MAP()

class GrigliaNodi : public DialogTest {
  protected:
    GrigliaNodi() {
        m_owner.Create(nullptr, "", WS_POPUP | WS_VISIBLE, CRect(0, 0, 10, 10), nullptr, 0);
        m_owner.dialog = &m_dialog;
    }
    ~GrigliaNodi() override {
        m_dialog.DestroyWindow();
        m_owner.DestroyWindow();
    }
    DialogDriver Open() {
        EXPECT_NE(m_dialog.Create(&m_owner), 0);
        m_dialog.ShowWindow(SW_SHOW);
        m_owner.Take();
        return DialogDriver(m_dialog);
    }

    Owner m_owner;
    G m_dialog;
};

// Catches an owner that is told too often or not at all, and fields of other controls.
TEST_F(GrigliaNodi, TellsItsOwner) {
    m_dialog.m_nPosY = 6000; // more than the arrows reach
    DialogDriver driver = Open();
    EXPECT_EQ(driver.Caption(), "Griglia Nodi");
    EXPECT_EQ(ContractFields(G::IDD).Shown(driver), "[X-Y] 0 0 0 0 0 10 1 0 0 6000 1 0");
    EXPECT_FALSE(driver.Enabled(IDOK));
    driver.Type(G::IDC_PASSO_X, "0.5");
    EXPECT_TRUE(driver.Enabled(IDOK));
    EXPECT_EQ(m_owner.Take(), Lines{});
    driver.Press(VK_TAB);
    EXPECT_FALSE(driver.Enabled(IDOK));
    EXPECT_EQ(m_owner.Take(), Lines{"aggiorna"});
    EXPECT_EQ(m_dialog.m_dPassoX, 0.5);
    driver.Click(G::IDC_PIANO_YZ);
    driver.ClickSpinUp(G::IDC_SPIN_NEG_X);
    driver.ClickSpinDown(G::IDC_SPIN_POS_X);
    const Lines told = m_owner.Take();
    EXPECT_GE(told.size(), 3u);
    EXPECT_EQ(m_dialog.m_nPiano, 2);
    EXPECT_EQ(m_dialog.m_nNegX, 1);
    EXPECT_EQ(m_dialog.m_nPosX, 9);
    m_owner.reads = false;
    int value = 10;
    for (int edit = G::IDC_INCLINAZIONE; edit <= G::IDC_ANGOLO_Y; ++edit)
        driver.SetText(edit, std::to_string(value++));
    m_owner.Take();
    driver.Press(VK_RETURN);
    EXPECT_EQ(m_owner.Take(), Lines{"aggiorna"});
    ASSERT_TRUE(driver.IsOpen());
    EXPECT_EQ(m_dialog.m_dInclinazione, 0) << "the owner reads, not the dialog";
    m_dialog.UpdateData(TRUE);
    const double fields[] = {m_dialog.m_dInclinazione, m_dialog.m_dOrigineX,     m_dialog.m_dOrigineY,
                             m_dialog.m_dOrigineZ,     double(m_dialog.m_nNegX), double(m_dialog.m_nNegY),
                             double(m_dialog.m_nPosX), double(m_dialog.m_nPosY), m_dialog.m_dPassoX,
                             m_dialog.m_dAngoloX,      m_dialog.m_dPassoY,       m_dialog.m_dAngoloY};
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(fields[i], 10 + i);
    ExpectHandledNumbersExist(m_dialog, G::IDD);
}

// Catches an update after the end, and an end that is told twice.
TEST_F(GrigliaNodi, CancelTellsOnlyTheEnd) {
    DialogDriver driver = Open();
    driver.Type(G::IDC_PASSO_X, "x");
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(m_owner.Take(), Lines{"fine"});
    EXPECT_FALSE(m_dialog.GetSafeHwnd());
    // Opened again, it speaks again; a text that is no number is told once, although the message takes the focus.
    driver = Open();
    driver.Type(G::IDC_ANGOLO_X, "x");
    m_user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_TAB);
    EXPECT_EQ(m_owner.Take(), Lines{"non valido"});
    EXPECT_EQ(driver.Text(G::IDC_ANGOLO_X), "x");
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(m_owner.Take(), Lines{"fine"});
}

} // namespace
