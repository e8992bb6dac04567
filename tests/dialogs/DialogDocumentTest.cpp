// The base of the tool dialogs, on a probe dialog that stands on an existing template and notes what reaches it.
#include "dialogs/generation/DialogGenNodi2P.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

namespace {

class Probe : public CDialogDocument {
  public:
    Probe() : CDialogDocument(CDialogGenNodi2P::IDD, nullptr) {}

    Lines calls;
    bool wasCancelledAtStart = true;

    void CambiaDocumento() override { calls.push_back("CambiaDocumento"); }
    void Update(CView*, long lHint, CObject*) override { calls.push_back("Update " + std::to_string(lHint)); }
    BOOL OnInitDialog() override {
        const BOOL result = CDialogDocument::OnInitDialog();
        wasCancelledAtStart = IsCancel();
        SetTitle("Prova");
        return result;
    }

    using CDialogDocument::GetDoc;
    using CDialogDocument::GetView;
    using CDialogDocument::GetWndAutoFocus;
    using CDialogDocument::IsAutoFocus;
    using CDialogDocument::IsModified;
    using CDialogDocument::SetAutoFocus;
    using CDialogDocument::SetModified;
    using CDialogDocument::SetWndAutoFocus;
};

class DialogDocument : public DialogTest {};

TEST_F(DialogDocument, CreateOnAnOpenDialogOnlyBindsIt) {
    // A second window, or a success reported for none, would make the host delete the dialog twice.
    Probe probe;
    EXPECT_FALSE(probe.IsWindow());
    EXPECT_NE(host.Open(probe), 0);
    const HWND window = probe.m_hWnd;
    RecordingView& second = host.AddView();
    EXPECT_EQ(host.Open(probe, second), 0);
    EXPECT_EQ(probe.m_hWnd, window);
    EXPECT_EQ(probe.GetView(), &second);
    probe.DestroyWindow();
    EXPECT_FALSE(probe.IsWindow());
}

TEST_F(DialogDocument, MissingTemplateFailsToCreate) {
    class Lost : public CDialogDocument {
      public:
        Lost() : CDialogDocument(64999, nullptr) {}
    } lost;
    EXPECT_EQ(host.Open(lost), 0);
    EXPECT_FALSE(lost.IsWindow());
}

TEST_F(DialogDocument, FollowsItsViewOnly) {
    Probe probe;
    EXPECT_EQ(probe.GetView(), nullptr);
    EXPECT_EQ(probe.GetDoc(), nullptr);
    host.Open(probe);
    EXPECT_EQ(probe.GetDoc(), &host.doc);
    RecordingView& other = host.AddView();
    // Taking another view's news for its own would leave the dialog without a document, or move it to another one.
    probe.VistaEliminata(&other);
    EXPECT_EQ(probe.GetView(), &host.View());
    probe.AggiornaVista(&other);
    EXPECT_EQ(probe.GetView(), &host.View());
    probe.VistaEliminata(&host.View());
    EXPECT_EQ(probe.GetView(), nullptr);
    EXPECT_EQ(probe.GetDoc(), nullptr);
    probe.AggiornaVista(nullptr);
    EXPECT_EQ(probe.GetView(), nullptr);
    probe.AggiornaVista(&other);
    EXPECT_EQ(probe.GetView(), &other);
    probe.DestroyWindow();
}

TEST_F(DialogDocument, OutlivesItsViewsWindow) {
    // The window of the view goes while the dialog is open: nothing of it may be used, and the dialog stays.
    Probe probe;
    host.Open(probe);
    RecordingView& second = host.AddView();
    host.CloseView(host.View());
    CWinApp::PumpMessages();
    ASSERT_TRUE(probe.IsWindow());
    EXPECT_EQ(probe.GetView(), nullptr);
    host.Take();
    DialogDriver driver(probe);
    driver.Press(VK_RETURN);
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), Lines{}) << "there is nobody to tell";
    EXPECT_TRUE(driver.IsOpen());
    EXPECT_TRUE(probe.IsCancel());
    second.tool = &probe;
    probe.AggiornaVista(&second);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Lines{"WM_FINEDIALOGO 1"});
    EXPECT_EQ(probe.calls, (Lines{"CambiaDocumento", "CambiaDocumento"}));
}

TEST_F(DialogDocument, DeadWindowOfTheViewCountsAsNoView) {
    // A host that forgets VistaEliminata but keeps the view object must not make the dialog talk to a dead window.
    Probe probe;
    host.Open(probe);
    host.View().DestroyWindow();
    EXPECT_EQ(probe.GetView(), nullptr);
    EXPECT_EQ(probe.GetDoc(), nullptr);
    probe.OnOK();
    EXPECT_EQ(host.Take(), Lines{});
    probe.DestroyWindow();
}

TEST_F(DialogDocument, OkAppliesThenAsksToBeEnded) {
    Probe probe;
    host.Open(probe);
    host.View().endsDialogs = false;
    DialogDriver driver(probe);
    driver.Click(IDOK);
    EXPECT_EQ(probe.calls, Lines{"CambiaDocumento"});
    EXPECT_EQ(host.Take(), Lines{"WM_FINEDIALOGO 1"});
    EXPECT_TRUE(driver.IsOpen()) << "the host ends the dialog, not the dialog itself";
    probe.OnApply();
    EXPECT_EQ(probe.calls, (Lines{"CambiaDocumento", "CambiaDocumento"}));
    EXPECT_EQ(host.Take(), Lines{}) << "applying does not close";
    probe.DestroyWindow();
}

TEST_F(DialogDocument, CancelIsRememberedUntilTheNextOpening) {
    Probe probe;
    host.Open(probe);
    DialogDriver(probe).Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), Lines{"WM_FINEDIALOGO 2"});
    EXPECT_EQ(probe.calls, Lines{}) << "cancel must not apply";
    EXPECT_FALSE(probe.IsWindow());
    EXPECT_TRUE(probe.IsCancel()) << "focus-loss handlers that run while the window closes look at it";
    host.Open(probe);
    EXPECT_FALSE(probe.IsCancel());
    EXPECT_FALSE(probe.wasCancelledAtStart);
    DialogDriver(probe).CloseBox();
    EXPECT_EQ(host.Take(), Lines{"WM_FINEDIALOGO 2"}) << "the close box is Cancel";
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
    DeletingView view(host.journal, host.doc);
    view.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host.frame, 0);
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
    Probe probe;
    host.Open(probe);
    const DialogDriver driver(probe);
    EXPECT_EQ(driver.Caption(), "Ponte : Prova");
    host.doc.SetPathName("C:\\lavori.2024\\ Città nuova.v2.asg"_t);
    probe.SetTitle("Angolo Beta "); // blanks of name and title stay
    EXPECT_EQ(driver.Caption(), " Città nuova.v2 : Angolo Beta ");
    host.doc.SetPathName("");
    probe.SetTitle("Prova");
    EXPECT_EQ(driver.Caption(), "Prova") << "a document that was never saved has no name to show";
    host.doc.SetPathName("/lavori/Ponte.asg");
    probe.VistaEliminata(&host.View());
    probe.SetTitle("Sola");
    EXPECT_EQ(driver.Caption(), "Sola") << "no document: the title alone";
    probe.DestroyWindow();
}

TEST_F(DialogDocument, FrameUnderTheMousePullsTheFocus) {
    Probe probe;
    host.Open(probe);
    DialogDriver driver(probe);
    driver.SetFocus(IDCANCEL);
    CWnd* const edit = probe.GetDlgItem(CDialogGenNodi2P::IDC_X2);
    probe.SetWndAutoFocus(edit);
    probe.SendMessage(WM_NCMOUSEMOVE, HTCAPTION);
    EXPECT_EQ(CWnd::GetFocus(), probe.GetDlgItem(IDCANCEL)) << "off: unchanged";
    probe.SetAutoFocus(1);
    EXPECT_TRUE(probe.IsAutoFocus());
    EXPECT_EQ(probe.GetWndAutoFocus(), edit);
    probe.SendMessage(WM_NCMOUSEMOVE, HTCAPTION);
    EXPECT_EQ(CWnd::GetFocus(), edit);
    // Without a control of its own the dialog itself takes it: the keys must not stay with the view.
    probe.SetWndAutoFocus(nullptr);
    host.View().SetFocus();
    CWinApp::PumpMessages(); // the other window becomes active through the loop
    EXPECT_EQ(driver.Focus(), 0);
    probe.SendMessage(WM_NCMOUSEMOVE, HTCAPTION);
    CWinApp::PumpMessages();
    CWnd* const focus = CWnd::GetFocus();
    EXPECT_TRUE(focus == &probe || probe.IsChild(focus));
    probe.SetModified(1);
    EXPECT_TRUE(probe.IsModified());
    probe.DestroyWindow();
}

TEST_F(DialogDocument, NewsOfTheDocumentReachTheOpenDialog) {
    Probe probe;
    host.Open(probe);
    host.doc.UpdateAllViews(nullptr, MODIFICA_GRUPPI);
    EXPECT_EQ(probe.calls, Lines{"Update 53"});
    static_cast<CDialogDocument&>(probe).CDialogDocument::Update(nullptr, MODIFICA_GRUPPI, nullptr); // ignored
    // The base ignores points as well: a pick must not disturb a dialog that asked for none.
    probe.SetVettoreFrom(CFPoint(1, 2, 3));
    probe.SetVettoreFrom(CFPoint(1, 2, 3), 1);
    probe.SetVettoreTo(CFPoint(1, 2, 3));
    probe.SetVettoreTo(CFPoint(1, 2, 3), 0);
    EXPECT_EQ(probe.calls, Lines{"Update 53"});
    probe.DestroyWindow();
}

TEST_F(DialogDocument, RunTimeClasses) {
    // Hosts find their tool dialogs by class: a missing declaration makes one invisible to them.
    CDialogGenNodi2P dialog;
    EXPECT_STREQ(dialog.GetRuntimeClass()->m_lpszClassName, "CDialogGenNodi2P");
    EXPECT_EQ(dialog.GetRuntimeClass()->m_pBaseClass, RUNTIME_CLASS(CDialogDocument));
    EXPECT_EQ(RUNTIME_CLASS(CDialogDocument)->m_pBaseClass, RUNTIME_CLASS(CDialog));
    const Probe probe;
    EXPECT_EQ(probe.GetRuntimeClass(), RUNTIME_CLASS(CDialogDocument)) << "none of its own: its base's";
}

TEST(QuovarHost, StaticsWithoutAHostAreHarmless) {
    ASSERT_EQ(CQuovarHost::Get(), nullptr);
    CMainFrame::_InizioAttesa("Attendere...", 3);
    CMainFrame::_StepBar();
    CMainFrame::_FineAttesa();
    EXPECT_EQ(CMainFrame::_GetMainFrame(), nullptr);
    EXPECT_EQ(CQuovarGlobal::_GetActiveDoc(), nullptr);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniBase(97), MODIFICA_CHECK);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniAggiuntive(97), 0);
    EXPECT_EQ(CQuovarInterface::CreaCasoCarico(nullptr), nullptr);
}

TEST_F(DialogDocument, StaticsReachTheInstalledHost) {
    {
        const WaitBar bar("Attendere...", 2);
        CMainFrame::_StepBar();
    }
    EXPECT_EQ(host.Take(), (Lines{"InizioAttesa \"Attendere...\" 2", "StepBar", "FineAttesa"}));
    EXPECT_EQ(CQuovarGlobal::_GetActiveDoc(), &host.doc);
    EXPECT_EQ(CMainFrame::_GetMainFrame(), &host.frame);
    unsigned long hint = MODIFICA_PROGETTO_TRAVE;
    CQuovarGlobal::_SetInformazioniAggiuntive(hint, 40000);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniBase(static_cast<long>(hint)), MODIFICA_PROGETTO_TRAVE);
    {
        RecordingHost second; // a host that goes must not leave the statics pointing at it
    }
    EXPECT_EQ(CQuovarHost::Get(), nullptr);
}

} // namespace
