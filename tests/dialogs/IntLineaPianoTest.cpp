// The intersection of lines with a plane: one shot of three picks, and the ways in which it fails.
#include "dialogs/generation/DialogIntLineaPiano.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using IntLineaPiano = ToolTest<CDialogIntLineaPiano>;

// Catches a polygon of other nodes, a command that runs twice or not at all, a box that does not come, and a dialog
// that stays after a failure or is touched after its end.
TEST_F(IntLineaPiano, TheThirdPickRunsTheCommandOnce) {
    for (int x = 0; x < 3; ++x)
        m_host.doc.NewNodo(x, x * x, 0);
    const auto pick = [this](double last) {
        Reopen();
        for (const double x : {0.0, 1.0, last})
            m_host.View().Pick(x, x * x, 0);
        EXPECT_FALSE(m_dialog.IsWindow());
        EXPECT_EQ(m_dialog.m_nTool, 0);
        Lines lines = m_host.Take();
        std::erase_if(lines,
                      [](const std::string& line) { return line.find("DefinisciVettore") != std::string::npos; });
        return lines;
    };
    const Lines searched = {"GetNodo (0,0,0) null 1e-05", "GetNodo (1,1,0) null 1e-05"};
    const auto with = [&](std::initializer_list<std::string> more) {
        Lines lines = searched;
        lines.insert(lines.end(), more);
        return lines;
    };
    EXPECT_EQ(pick(2), with({"GetNodo (2,4,0) null 1e-05", "IntersezioneLineePiano (0,0,0) (1,1,0) (2,4,0)",
                             "WM_FINEDIALOGO 1"}));
    m_user.ExpectMessage("L'operazione non è riuscita.", IDOK, MB_OK); // no node there
    EXPECT_EQ(pick(3), with({"GetNodo (3,9,0) null 1e-05", "WM_FINEDIALOGO 1"}));
    m_user.ExpectMessage("L'operazione non è riuscita.", IDOK, MB_OK); // a vertex twice
    EXPECT_EQ(pick(1), with({"GetNodo (1,1,0) null 1e-05", "WM_FINEDIALOGO 1"}));
}

} // namespace
