// The bases that take points one at a time, on probe dialogs that stand on an existing template.
#include "dialogs/frame/tool/PointCycleDialog.h"
#include "dialogs/generation/DialogGenNodi2P.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr LPCTSTR prompts[] = {"Primo", "Secondo", "Terzo"};

template <class Base, int first>
class Probe : public Base {
  public:
    Probe() : Base(CDialogGenNodi2P::IDD, nullptr, prompts, tool, first) {}

    int tool = first;
    Lines stored;

    BOOL OnInitDialog() override {
        Base::OnInitDialog();
        Base::StartCycle();
        return TRUE;
    }
    void StorePick(int pick, const CFPoint& point) override {
        stored.push_back(std::to_string(pick) + " " + Journal::Text(point));
    }
    void CambiaDocumento() override { stored.push_back("CambiaDocumento"); }
    using Base::StartCycle;
};

class PointCycle : public ToolTest<Probe<PointCycleDialog, 1>> {
  protected:
    Lines Asked(const std::string& prompt) const {
        return {"StopDefinisciVettore", "StartDefinisciVettore \"" + prompt + "\" \"\""};
    }
};

// Catches a point that is lost or stored twice where the cycle closes, a prompt that is one late, and a cycle that goes
// on where it was left when it should start over.
TEST_F(PointCycle, GoesRoundAndStartsOver) {
    for (const char* next : {"Secondo", "Terzo", "Primo", "Secondo"}) {
        m_host.View().Pick(1, 2, 3);
        EXPECT_EQ(m_host.Take(), Asked(next));
    }
    EXPECT_EQ(m_dialog.stored, (Lines{"0 (1,2,3)", "1 (1,2,3)", "2 (1,2,3)", "0 (1,2,3)"}));
    EXPECT_EQ(m_dialog.tool, 2);
    m_dialog.StartCycle();
    EXPECT_EQ(m_host.Take(), Lines{"StartDefinisciVettore \"Primo\" \"\""});
    EXPECT_EQ(m_dialog.tool, 1);
}

// Catches a pick that is stored, or asked for, while there is nobody to ask or nothing to pick.
TEST_F(PointCycle, StrayPicksAreDropped) {
    m_dialog.tool = 4;
    m_host.View().Pick(1, 2, 3);
    EXPECT_EQ(m_dialog.tool, 0);
    m_host.AddView();
    m_host.CloseView(m_host.View());
    m_dialog.StartCycle();
    EXPECT_EQ(m_dialog.tool, 0);
    m_dialog.tool = 1;
    m_dialog.SetVettoreFrom(CFPoint(1, 2, 3));
    EXPECT_EQ(m_dialog.tool, 1);
    EXPECT_EQ(m_dialog.stored, Lines{});
    EXPECT_EQ(m_host.Take(), Lines{});
}

using PointsOnce = ToolTest<Probe<PointsOnceDialog, 0>>;

// Catches a dialog that asks for one point more than it needs, or is touched after the view has ended it.
TEST_F(PointsOnce, TheLastPickConfirms) {
    for (int pick = 0; pick < 3; ++pick) {
        m_host.Take();
        m_host.View().Pick(pick, 0, 0);
    }
    EXPECT_EQ(m_host.Take(), (Lines{"StopDefinisciVettore", "WM_FINEDIALOGO 1"}));
    EXPECT_EQ(m_dialog.stored, (Lines{"0 (0,0,0)", "1 (1,0,0)", "2 (2,0,0)", "CambiaDocumento"}));
    EXPECT_EQ(m_dialog.tool, 0);
}

} // namespace
