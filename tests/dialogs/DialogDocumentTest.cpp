// The base of the tool dialogs, on a probe dialog that stands on an existing template and notes what reaches it.
#include "dialogs/generation/DialogGenNodi2P.h"
#include "tests/dialogs/ToolTest.h"

namespace {

class Probe : public CDialogDocument {
  public:
    Probe() : CDialogDocument(CDialogGenNodi2P::IDD, nullptr) {}

    Lines calls;
    bool wasCancelledAtStart = true;

    void CambiaDocumento() override { calls.push_back("CambiaDocumento"); }
    BOOL OnInitDialog() override {
        const BOOL result = CDialogDocument::OnInitDialog();
        wasCancelledAtStart = IsCancel();
        SetTitle("Prova");
        return result;
    }

    using CDialogDocument::GetDoc;
    using CDialogDocument::GetView;
    using CDialogDocument::SetAutoFocus;
    using CDialogDocument::SetWndAutoFocus;
};

class DialogDocument : public ToolTest<Probe> {};

TEST_F(DialogDocument, CreateOnAnOpenDialogOnlyBindsIt) {
    // A second window, or a success reported for none, would make the host delete the dialog twice.
    const HWND window = m_dialog.m_hWnd;
    RecordingView& second = m_host.AddView();
    EXPECT_EQ(m_host.Open(m_dialog, second), 0);
    EXPECT_EQ(m_dialog.m_hWnd, window);
    EXPECT_EQ(m_dialog.GetView(), &second);
}

TEST_F(DialogDocument, FollowsItsViewOnly) {
    EXPECT_EQ(Probe().GetView(), nullptr);
    EXPECT_EQ(Probe().GetDoc(), nullptr);
    EXPECT_EQ(m_dialog.GetDoc(), &m_host.doc);
    RecordingView& other = m_host.AddView();
    // Taking another view's news for its own would leave the dialog without a document, or move it to another one.
    m_dialog.VistaEliminata(&other);
    EXPECT_EQ(m_dialog.GetView(), &m_host.View());
    m_dialog.AggiornaVista(&other);
    EXPECT_EQ(m_dialog.GetView(), &m_host.View());
    m_dialog.VistaEliminata(&m_host.View());
    EXPECT_EQ(m_dialog.GetView(), nullptr);
    EXPECT_EQ(m_dialog.GetDoc(), nullptr);
    m_dialog.AggiornaVista(nullptr);
    EXPECT_EQ(m_dialog.GetView(), nullptr);
    m_dialog.AggiornaVista(&other);
    EXPECT_EQ(m_dialog.GetView(), &other);
}

TEST_F(DialogDocument, DeadWindowOfTheViewCountsAsNoView) {
    // A host that forgets VistaEliminata but keeps the view object must not make the dialog talk to a dead window.
    m_host.View().DestroyWindow();
    EXPECT_EQ(m_dialog.GetView(), nullptr);
    EXPECT_EQ(m_dialog.GetDoc(), nullptr);
    m_dialog.OnOK();
    EXPECT_EQ(m_host.Take(), Lines{});
    EXPECT_EQ(m_dialog.calls, Lines{"CambiaDocumento"}) << "there is nobody to tell";
    m_dialog.OnCancel();
    EXPECT_TRUE(m_dialog.IsCancel());
}

TEST_F(DialogDocument, OkAppliesThenAsksToBeEnded) {
    m_host.View().endsDialogs = false;
    m_driver.Click(IDOK);
    EXPECT_EQ(m_dialog.calls, Lines{"CambiaDocumento"});
    EXPECT_EQ(m_host.Take(), Lines{"WM_FINEDIALOGO 1"});
    EXPECT_TRUE(m_driver.IsOpen()) << "the host ends the dialog, not the dialog itself";
    m_dialog.OnApply();
    EXPECT_EQ(m_dialog.calls, (Lines{"CambiaDocumento", "CambiaDocumento"}));
    EXPECT_EQ(m_host.Take(), Lines{}) << "applying does not close";
}

TEST_F(DialogDocument, CancelIsRememberedUntilTheNextOpening) {
    m_driver.Press(VK_ESCAPE);
    EXPECT_EQ(m_host.Take(), Lines{"WM_FINEDIALOGO 2"});
    EXPECT_EQ(m_dialog.calls, Lines{}) << "cancel must not apply";
    EXPECT_FALSE(m_dialog.IsWindow());
    EXPECT_TRUE(m_dialog.IsCancel()) << "focus-loss handlers that run while the window closes look at it";
    m_driver = Reopen();
    EXPECT_FALSE(m_dialog.IsCancel());
    EXPECT_FALSE(m_dialog.wasCancelledAtStart);
    m_driver.CloseBox();
    EXPECT_EQ(m_host.Take(), Lines{"WM_FINEDIALOGO 2"}) << "the close box is Cancel";
}

// Ends and deletes its dialog inside the message, as a host may.
class DeletingView : public RecordingView {
  public:
    using RecordingView::RecordingView;

    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        if (message != WM_FINEDIALOGO)
            return RecordingView::OnWndMsg(message, wParam, lParam, pResult);
        auto* dialog = reinterpret_cast<CDialogDocument*>(lParam);
        dialog->DestroyWindow();
        delete dialog;
        ++deleted;
        *pResult = 0;
        return TRUE;
    }

    int deleted = 0;
};

TEST_F(DialogDocument, MayBeDeletedInsideItsOwnRequest) {
    // Whatever is touched after the message is freed memory: the address sanitizer's run sees it.
    DeletingView view(m_host.journal, m_host.doc);
    view.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_host.frame, 0);
    auto* byKey = new Probe;
    byKey->Create(&view);
    DialogDriver(*byKey).Press(VK_RETURN);
    EXPECT_EQ(view.deleted, 1);
    auto* byMouse = new Probe;
    byMouse->Create(&view);
    DialogDriver(*byMouse).Click(IDCANCEL);
    EXPECT_EQ(view.deleted, 2);
    view.DestroyWindow();
}

TEST_F(DialogDocument, CaptionNamesTheDocument) {
    EXPECT_EQ(m_driver.Caption(), "Ponte : Prova");
    m_host.doc.SetPathName("/lavori.2024/ Città nuova.v2.asg"_t);
    m_dialog.SetTitle("Angolo Beta "); // blanks of name and title stay
    EXPECT_EQ(m_driver.Caption(), " Città nuova.v2 : Angolo Beta ");
    m_host.doc.SetPathName("");
    m_dialog.SetTitle("Prova");
    EXPECT_EQ(m_driver.Caption(), "Prova") << "a document that was never saved has no name to show";
    m_host.doc.SetPathName("/lavori/Ponte.asg");
    m_dialog.VistaEliminata(&m_host.View());
    m_dialog.SetTitle("Sola");
    EXPECT_EQ(m_driver.Caption(), "Sola") << "no document: the title alone";
}

TEST_F(DialogDocument, FrameUnderTheMousePullsTheFocus) {
    m_driver.SetFocus(IDCANCEL);
    CWnd* const edit = m_dialog.GetDlgItem(CDialogGenNodi2P::IDC_X2);
    m_dialog.SetWndAutoFocus(edit);
    m_dialog.SendMessage(WM_NCMOUSEMOVE, HTCAPTION);
    EXPECT_EQ(CWnd::GetFocus(), m_dialog.GetDlgItem(IDCANCEL)) << "off: unchanged";
    m_dialog.SetAutoFocus(1);
    m_dialog.SendMessage(WM_NCMOUSEMOVE, HTCAPTION);
    EXPECT_EQ(CWnd::GetFocus(), edit);
    // Without a control of its own the dialog itself takes it: the keys must not stay with the view.
    m_dialog.SetWndAutoFocus(nullptr);
    m_host.View().SetFocus();
    CWinApp::PumpMessages(); // the other window becomes active through the loop
    EXPECT_EQ(m_driver.Focus(), 0);
    m_dialog.SendMessage(WM_NCMOUSEMOVE, HTCAPTION);
    CWinApp::PumpMessages();
    CWnd* const focus = CWnd::GetFocus();
    EXPECT_TRUE(focus == &m_dialog || m_dialog.IsChild(focus));
}

TEST(QuovarHost, StaticsWithoutAHostAreHarmless) {
    { RecordingHost gone; } // the statics must not point at it any more
    ASSERT_EQ(CQuovarHost::Get(), nullptr);
    WaitBar("Attendere...", 3);
    CMainFrame::_StepBar();
    EXPECT_EQ(CMainFrame::_GetMainFrame(), nullptr);
    EXPECT_EQ(CQuovarGlobal::_GetActiveDoc(), nullptr);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniBase(97), MODIFICA_CHECK);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniAggiuntive(97), 0);
    EXPECT_EQ(CQuovarInterface::CreaCasoCarico(nullptr), nullptr);
}

} // namespace
