#include "dialogs/selection/DialogCopiaRuota.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogCopiaRuota;
using CopiaRuota = ToolTest<Dialog>;

TEST_F(CopiaRuota, NoButtonAtAllJoinsNothing) {
    EXPECT_EQ(Dialog().m_nUnione, -1);
    m_dialog.CheckDlgButton(Dialog::IDC_UNIONE_NIENTE, 0);
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(),
              Ended({"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "RuotaSelezione 0 0 0 0 0 0 0 1 0", "EndUndo 4"}));
}

TEST_F(CopiaRuota, NoCopiesAreRefused) {
    m_driver.Type(Dialog::IDC_COPIE, "0");
    m_user.ExpectMessage("Numero copie non valido.", IDOK, MB_OK);
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Lines{});
}

} // namespace
