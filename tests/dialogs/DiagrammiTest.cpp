#include "dialogs/results/DialogDiagrammi.h"
#include "model/element/Trave.h"
#include "model/view/ElementoSettings.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/window/Menu.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogDiagrammi;
constexpr int areaId = Dialog::IDC_DIAGRAMMA;
constexpr COLORREF white = RGB(255, 255, 255);

struct Item {
    UINT command;
    int kind;
    const char* text;
};
const Item items[] = {{Dialog::ID_DIAGRAMMI_N, 42, "N"},       {Dialog::ID_DIAGRAMMI_V2, 43, "V2"},
                      {Dialog::ID_DIAGRAMMI_V3, 44, "V3"},     {Dialog::ID_DIAGRAMMI_T, 45, "T"},
                      {Dialog::ID_DIAGRAMMI_M2, 32, "M2"},     {Dialog::ID_DIAGRAMMI_M3, 46, "M3"},
                      {Dialog::ID_DIAGRAMMI_NA, 47, "N/A"},    {Dialog::ID_DIAGRAMMI_M2W2, 48, "M2/W2"},
                      {Dialog::ID_DIAGRAMMI_M3W3, 49, "M3/W3"}};

// A beam that writes down what it is asked to draw, and marks the area.
class RecordingTrave : public CTrave {
  public:
    RecordingTrave(Journal& journal, int id) : m_journal(journal) { SetID(id); }

    void DisegnaDiagrammaTrave(CWnd* pWnd, int bN, int bV2, int bV3, int bT, int bM2, int bM3, int bNA, int bM2W2,
                               int bM3W3, int bLettura, CPoint punto) override {
        m_journal.Add("Disegna", GetID(), pWnd->GetDlgCtrlID(), bN, bV2, bV3, bT, bM2, bM3, bNA, bM2W2, bM3W3, bLettura,
                      punto.x, punto.y);
        CClientDC(pWnd).FillSolidRect(10, 10, 4, 4, RGB(255, 0, 0));
    }

  private:
    Journal& m_journal;
};

// What the dialog shows its derived classes.
class OpenDiagrammi : public CDialogDiagrammi {
  public:
    using CDialogDiagrammi::_bStaticCursor;
    using CDialogDiagrammi::GetTrave;
    using CDialogDiagrammi::IsRisultati;
    using CDialogDiagrammi::OnSetCursor;
};

class Diagrammi : public ToolTest<OpenDiagrammi> {
  protected:
    Diagrammi() {
        for (int id : {7, 9}) {
            m_host.doc.travi.push_back(std::make_unique<RecordingTrave>(m_host.journal, id));
            m_beams.push_back(m_host.doc.travi.back().get());
        }
        m_host.doc.analisi.m_bRisultatiValidi = 1;
    }
    ~Diagrammi() override { platform::popupMenuHook = nullptr; }

    // Opens with the first beam selected.
    void Open() {
        m_host.doc.selected.AddTail(m_beams[0]);
        m_driver = Reopen();
        Painted();
    }
    // What was drawn until everything is painted.
    Lines Painted() {
        CWinApp::PumpMessages();
        return m_host.Take();
    }
    Lines Updated() {
        m_dialog.Update(nullptr, 0, nullptr);
        return Painted();
    }
    std::string Flags() {
        std::string flags;
        for (const int flag : {m_dialog.GetN(), m_dialog.GetV2(), m_dialog.GetV3(), m_dialog.GetT(), m_dialog.GetM2(),
                               m_dialog.GetM3(), m_dialog.GetNA(), m_dialog.GetM2W2(), m_dialog.GetM3W3()})
            flags += std::to_string(flag);
        return flags;
    }
    static std::string Call(int beam, const std::string& flags, const std::string& rest = "0 0 0") {
        std::string line = "Disegna " + std::to_string(beam) + " " + std::to_string(areaId);
        for (const char flag : flags)
            line += std::string(" ") + flag;
        return line + " " + rest;
    }
    // What the right button's menu shows as checked; then the user picks the command.
    Lines Menu(UINT choose = 0) {
        Lines checked;
        platform::popupMenuHook = [&](CMenu& menu, CWnd* window) {
            EXPECT_EQ(window, &m_dialog);
            EXPECT_EQ(menu.GetMenuItemCount(), 13);
            for (UINT i = 0; i < menu.GetMenuItemCount(); ++i) {
                CString text;
                menu.GetMenuString(i, text, MF_BYPOSITION);
                if (menu.GetMenuState(i, MF_BYPOSITION) & MF_CHECKED)
                    checked.push_back(text.ToUtf8());
            }
            return choose;
        };
        m_driver.RightClick(areaId);
        return checked;
    }
    void Command(UINT command) { m_dialog.SendMessage(WM_COMMAND, command); }
    void MoveTo(int x, int y) { m_dialog.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
    COLORREF Pixel(int x, int y) { return CClientDC(m_dialog.GetDlgItem(areaId)).GetPixel(x, y); }

    std::vector<CTrave*> m_beams;
};

TEST_F(Diagrammi, CaptionSaysWhatIsShown) {
    EXPECT_EQ(Pixel(100, 60), white);
    // The selection is spoken of before the results.
    m_host.doc.analisi.m_bRisultatiValidi = 0;
    Updated();
    EXPECT_EQ(m_driver.Caption(), "Ponte : Diagramma - (Nessuna trave selezionata)");
    m_host.doc.selected.AddTail(m_beams[1]);
    m_host.doc.selected.AddTail(m_beams[0]);
    EXPECT_EQ(Updated(), Lines{});
    EXPECT_EQ(m_driver.Caption(), "Ponte : Diagramma - (I risultati non sono validi)");
    m_host.doc.analisi.m_bRisultatiValidi = 1;
    EXPECT_EQ(Updated(), Lines{Call(9, "000000000")}) << "the first of several, and without any diagram too";
    EXPECT_EQ(m_driver.Caption(), "Ponte : Diagramma - Trave 9");
    EXPECT_EQ(Pixel(100, 60), white);
    EXPECT_EQ(Pixel(11, 11), RGB(255, 0, 0)) << "what the beam drew is kept";
}

TEST_F(Diagrammi, EveryChangeOfTheDocumentRefreshes) {
    Open();
    for (const long hint : {0L, 5L, 42L, 62L, 97L, 0x700009L}) {
        m_host.doc.UpdateAllViews(nullptr, hint);
        const Lines lines = Painted();
        ASSERT_EQ(lines.size(), 2u) << hint;
        EXPECT_EQ(lines[1], Call(7, "000000000")) << hint;
    }
    m_host.doc.selected.RemoveAll();
    m_host.doc.UpdateAllViews(nullptr, 62);
    Painted();
    EXPECT_EQ(m_dialog.GetTrave(), nullptr);
    EXPECT_EQ(Pixel(11, 11), white) << "cleared before anything is drawn";
    EXPECT_EQ(Painted(), Lines{}) << "painting must not ask for painting again";
}

TEST_F(Diagrammi, AreaFollowsTheWindow) {
    Open();
    const CWnd& area = *m_dialog.GetDlgItem(areaId);
    for (const CSize size : {CSize(500, 300), CSize(260, 180)}) {
        m_dialog.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOMOVE);
        EXPECT_EQ(Painted(), Lines{Call(7, "000000000")});
        CRect client, rect;
        m_dialog.GetClientRect(client);
        area.GetWindowRect(rect);
        m_dialog.ScreenToClient(rect);
        EXPECT_EQ(rect, CRect(CPoint(2, 3), CSize(client.Width() - 3, client.Height() - 3)));
    }
}

// A crossed kind, flag or argument: each of the nine is on alone once.
TEST_F(Diagrammi, MenuTogglesEachDiagram) {
    Open();
    for (const Item& item : items) {
        std::string flags(9, '0');
        flags[static_cast<std::size_t>(&item - items)] = '1';
        EXPECT_EQ(Menu(item.command), Lines{});
        EXPECT_EQ(Painted(), Lines{Call(7, flags)});
        EXPECT_EQ(Flags(), flags);
        EXPECT_EQ(Menu(item.command), Lines{item.text});
        EXPECT_EQ(Painted(), Lines{Call(7, "000000000")});
    }
    Menu(0);
    EXPECT_EQ(Painted(), Lines{}) << "a menu left without a choice";
    m_dialog.GetT() = 5; // anything but 0 is on
    Command(Dialog::ID_DIAGRAMMI_T);
    EXPECT_EQ(Flags(), "000000000");
    EXPECT_FALSE(m_host.View().GetTraveSettings().IsRisultato(45)) << "the view's settings are not written";
}

TEST_F(Diagrammi, FlagsComeFromTheViewAndFromTheHost) {
    for (const Item& item : items) {
        std::string flags(9, '0');
        flags[static_cast<std::size_t>(&item - items)] = '1';
        m_host.View().GetTraveSettings().SetRisultato(item.kind, 1);
        OpenDiagrammi other;
        m_host.Open(other);
        EXPECT_EQ(std::to_string(other.GetN()) + std::to_string(other.GetM2()),
                  std::to_string(item.kind == 42) + std::to_string(item.kind == 32));
        other.DestroyWindow();
        m_host.View().GetTraveSettings().SetRisultato(item.kind, 0);
        m_dialog.AggiornaRisultato(item.kind, 1);
        EXPECT_EQ(Flags(), flags) << item.text;
        m_dialog.AggiornaRisultato(item.kind, 0);
        EXPECT_EQ(Flags(), "000000000") << item.text;
    }
    Open();
    m_dialog.AggiornaRisultato(47, 1);
    EXPECT_EQ(Painted(), Lines{Call(7, "000000100")});
    m_dialog.AggiornaRisultato(50, 1);
    EXPECT_EQ(Painted(), Lines{Call(7, "000000100")}) << "no flag, but drawn anew";
}

TEST_F(Diagrammi, AnotherViewBringsItsFlags) {
    Open();
    RecordingView& second = m_host.AddView();
    second.GetTraveSettings().SetRisultato(CElementoSettings::M3, 1);
    second.GetTraveSettings().SetRisultato(CElementoSettings::V2, 1);
    Command(Dialog::ID_DIAGRAMMI_N);
    Painted();
    m_dialog.Create(&m_host.View()); // the view that it has
    EXPECT_EQ(Flags(), "100000000");
    EXPECT_EQ(Painted(), Lines{});
    m_host.CloseView(m_host.View());
    EXPECT_EQ(Flags(), "100000000");
    m_dialog.AggiornaVista(&second);
    EXPECT_EQ(Flags(), "010001000");
    EXPECT_EQ(Painted().back(), Call(7, "010001000"));
    second.tool = &m_dialog;
}

TEST_F(Diagrammi, ReadingFollowsThePointer) {
    Open();
    Command(Dialog::ID_DIAGRAMMI_M2);
    Painted();
    MoveTo(50, 40);
    EXPECT_EQ(m_host.Take(), Lines{});
    EXPECT_EQ(Menu(Dialog::ID_DIAGRAMMI_VISUALIZZAVALORI), Lines{"M2"});
    EXPECT_TRUE(m_dialog.IsRisultati());
    EXPECT_EQ(Painted(), Lines{}) << "switching it on does not paint";
    MoveTo(50, 40);
    EXPECT_EQ(m_host.Take(), Lines{Call(7, "000010000", "1 50 40")}) << "the dialog's own coordinates";
    MoveTo(0, 1); // beside the area
    EXPECT_EQ(m_host.Take(), Lines{Call(7, "000010000", "1 0 1")});
    m_host.doc.analisi.m_bRisultatiValidi = 0;
    MoveTo(51, 40);
    EXPECT_EQ(m_host.Take().size(), 1u) << "validity is not asked for";
    EXPECT_EQ(Menu(Dialog::ID_DIAGRAMMI_VISUALIZZAVALORI), (Lines{"M2", "Visualizza Valori rif. loc."}));
    MoveTo(52, 40);
    EXPECT_EQ(m_host.Take(), Lines{});
    Command(Dialog::ID_DIAGRAMMI_VISUALIZZAVALORI);
    m_host.doc.selected.RemoveAll();
    Updated();
    MoveTo(52, 40);
    EXPECT_EQ(m_host.Take(), Lines{}) << "no beam is held";
}

TEST_F(Diagrammi, CrossOverTheAreaOnly) {
    Open();
    OpenDiagrammi::_bStaticCursor = 0;
    MoveTo(0, 1);
    EXPECT_EQ(OpenDiagrammi::_bStaticCursor, 0);
    MoveTo(50, 40);
    EXPECT_EQ(OpenDiagrammi::_bStaticCursor, 1);
    EXPECT_TRUE(m_dialog.OnSetCursor(&m_dialog, HTCLIENT, WM_MOUSEMOVE)) << "the cross stays once";
    EXPECT_EQ(OpenDiagrammi::_bStaticCursor, 0);
    EXPECT_FALSE(m_dialog.OnSetCursor(&m_dialog, HTCLIENT, WM_MOUSEMOVE));
}

TEST_F(Diagrammi, CaptureAsksTheView) {
    Open();
    CRect rect;
    m_dialog.GetDlgItem(areaId)->GetWindowRect(rect);
    Menu(Dialog::ID_DIAGRAMMI_CATTURAIMMAGINE);
    Journal expected;
    expected.Add("SetRectImmagine", rect.left, rect.top, rect.right, rect.bottom);
    expected.Add("CatturaImmagine");
    EXPECT_EQ(m_host.Take(), expected.Lines());
    m_host.AddView();
    m_host.CloseView(m_host.View());
    Command(Dialog::ID_DIAGRAMMI_CATTURAIMMAGINE);
    EXPECT_EQ(m_host.Take(), Lines{});
}

} // namespace
