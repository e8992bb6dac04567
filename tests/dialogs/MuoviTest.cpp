#include "dialogs/selection/DialogMuovi.h"
#include "tests/dialogs/ToolTest.h"

namespace {

class Muovi : public ToolTest<CDialogMuovi> {
  protected:
    // The whole command of one displacement, which closes the dialog.
    static Lines Moved(const std::string& by) {
        return Ended({"BeginUndo 1 " + by + " 0 0 0 0 0 0 0", "TraslaSelezione " + by + " 0 0", "EndUndo 1"});
    }
};

TEST_F(Muovi, SecondPickMovesAtOnce) {
    m_host.View().Pick(1, 2, 3);
    EXPECT_EQ(m_driver.Text(1121), "3");
    EXPECT_EQ(m_host.Take(), Lines{});
    m_host.View().Pick(11, 22, 33);
    EXPECT_EQ(m_host.Take(), Moved("10 20 30"));
    EXPECT_FALSE(m_dialog.IsWindow());
}

TEST_F(Muovi, TypedPoints) {
    TypeFrom(1119, {"1", "2.5", "-3", "4", "8", "6e2"});
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Moved("3 5.5 603")) << "second minus first";
}

TEST_F(Muovi, NullVectorIsTheHosts) {
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Moved("0 0 0"));
}

TEST_F(Muovi, PickWhileAFieldIsWrong) {
    // The failure is reported and ignored: the picked point is stored, the wrong text gives way to its last value.
    m_driver.Type(1122, "x");
    m_user.ExpectMessage("Immettere un numero.");
    m_host.View().Pick(1, 2, 3);
    EXPECT_EQ(Texts({1119, 1122}), "1 0");
}

} // namespace
