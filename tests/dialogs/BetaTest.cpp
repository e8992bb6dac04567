#include "dialogs/selection/DialogBeta.h"
#include "model/element/Trave.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogBeta;

class Beta : public ToolTest<Dialog> {
  protected:
    void Select(std::initializer_list<double> betas) {
        m_host.doc.selected.RemoveAll();
        for (const double beta : betas) {
            CTrave* beam = m_host.doc.NewTrave(0, 0);
            beam->SetBeta(beta);
            m_host.doc.selected.AddTail(beam);
        }
        m_host.doc.UpdateAllViews(nullptr, MODIFICA_SELEZIONE_TRAVI);
        m_host.Take();
    }
    // The field, and whether the buttons for the selection and for the view can be pressed.
    std::string Shown() const {
        return m_driver.Text(Dialog::IDC_BETA) + (m_driver.Enabled(Dialog::IDC_SELEZIONE) ? " S" : " -") +
               (m_driver.Enabled(Dialog::IDC_VISTA) ? "V" : "-");
    }
};

// Catches the first beam's angle shown for all, and buttons that are not those of what the field holds by now.
TEST_F(Beta, ShowsWhatAllSelectedBeamsHave) {
    EXPECT_EQ(Shown(), " --");
    Select({12.5});
    EXPECT_EQ(Shown(), "12.5 --") << "the buttons follow what was typed, and what the field held before";
    m_host.doc.UpdateAllViews(nullptr, MODIFICA_SELEZIONE_TRAVI);
    EXPECT_EQ(Shown(), "12.5 SV");
    Select({30, 30, 30 + 1e-13});
    EXPECT_EQ(Shown(), " --") << "the comparison is exact";
    m_driver.Type(Dialog::IDC_BETA, "45");
    EXPECT_EQ(Shown(), "45 SV");
    Select({});
    EXPECT_EQ(Shown(), " --");
    m_driver.Type(Dialog::IDC_BETA, "45");
    EXPECT_EQ(Shown(), "45 -V");
    Select({-90, -90});
    EXPECT_EQ(Shown(), "-90 SV");
    m_driver.Type(Dialog::IDC_BETA, "");
    EXPECT_EQ(Shown(), " --");
}

TEST_F(Beta, AssignsToTheSelectionOrToTheView) {
    Select({0});
    m_driver.Type(Dialog::IDC_BETA, "-22.5");
    m_driver.Click(Dialog::IDC_SELEZIONE);
    m_driver.Click(Dialog::IDC_VISTA);
    EXPECT_EQ(m_host.Take(), (Lines{"AssegnaBetaSelezione -22.5 1 0", "AssegnaBetaVista -22.5 1 0"}));
    m_driver.Type(Dialog::IDC_BETA, "ventidue");
    for (const int button : {Dialog::IDC_SELEZIONE, Dialog::IDC_VISTA}) {
        m_user.ExpectMessage("Immettere un numero.");
        m_driver.Click(button);
    }
    EXPECT_EQ(m_host.Take(), Lines{});
    EXPECT_EQ(m_driver.Text(Dialog::IDC_BETA), "ventidue");
}

} // namespace
