#include "dialogs/selection/DialogMuovi.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogMuovi;
using Muovi = ToolTest<Dialog>;

TEST_F(Muovi, SecondPickMovesAtOnce) {
    m_host.View().Pick(1, 2, 3);
    m_host.View().Pick(11, 22, 33);
    EXPECT_EQ(m_host.Take(),
              Ended({"BeginUndo 1 10 20 30 0 0 0 0 0 0 0", "TraslaSelezione 10 20 30 0 0", "EndUndo 1"}));
    EXPECT_FALSE(m_dialog.IsWindow());
}

TEST_F(Muovi, PickWhileAFieldIsWrong) {
    // The failure is reported and ignored: the picked point is stored, the wrong text gives way to its last value.
    m_driver.Type(Dialog::IDC_X2, "x");
    m_user.ExpectMessage("Immettere un numero.");
    m_host.View().Pick(1, 2, 3);
    EXPECT_EQ(Texts({Dialog::IDC_X1, Dialog::IDC_X2}), "1 0");
}

} // namespace
