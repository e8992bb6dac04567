#include "dialogs/selection/DialogCopiaRuota.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int copies = 1192, spin = 1171;

using CopiaRuota = ToolTest<CDialogCopiaRuota>;

TEST_F(CopiaRuota, NoButtonAtAllJoinsNothing) {
    EXPECT_EQ(CDialogCopiaRuota().m_nUnione, -1);
    m_dialog.CheckDlgButton(1191, 0);
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(),
              Ended({"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "RuotaSelezione 0 0 0 0 0 0 0 1 0", "EndUndo 4"}));
}

TEST_F(CopiaRuota, NoCopiesAreRefused) {
    m_driver.ClickSpinDown(spin);
    m_driver.ClickSpinDown(spin); // stops at 0
    EXPECT_EQ(m_driver.Text(copies), "0");
    m_user.ExpectMessage("Numero copie non valido.", IDOK, MB_OK);
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Lines{});
}

} // namespace
