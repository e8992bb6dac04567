// A host that writes down each command that it receives, so that a test compares what the dialogs did line by line:
//
//     RecordingHost host;
//     CDialogGenNodiLineare dialog;
//     host.Open(dialog);                       the host's way: on the view, beside it
//     host.Take();                             what opening itself asked for
//     ...
//     EXPECT_EQ(host.Take(), Lines({"GenNodiLineare (2,3,0) (2,4,0) 1 1", "WM_FINEDIALOGO 1",
//     "StopDefinisciVettore"}));
#pragma once

#include "dialogs/frame/host/MainFrame.h"
#include "dialogs/frame/host/QuovarHost.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "model/view/Adv3d.h"
#include "model/view/ElementoSettings.h"
#include "tests/support/Journal.h"
#include "tests/support/RecordingDoc.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

// A view with a window of its own. It hands picked points to its tool dialog while vector definition is on.
class RecordingView : public CQuovarView {
  public:
    RecordingView(Journal& journal, CQuovarDoc& doc) : m_journal(journal), m_doc(doc) {}

    CDialogDocument* tool = nullptr;
    // Whether the view ends the tool dialog when asked to, as a host must.
    bool endsDialogs = true;

    // A click on a node: "from" and "to" alternate; each start of the mode begins with a "from" again. Fails the test
    // when the mode is off or there is no dialog.
    void Pick(double x, double y, double z);

    CQuovarDoc* GetDocument() override { return &m_doc; }
    void StartDefinisciVettore(CString prompt, CString prompt2) override;
    void StopDefinisciVettore() override;
    int IsDefinisciVettore() override { return m_picking; }
    int IsSelectNodi() override { return 1; }
    int IsSelectTravi() override { return 1; }
    int IsSelectAste() override { return 1; }
    int IsSelectSetti() override { return 1; }
    int IsSelectSolai() override { return 1; }
    int IsSelectElementi() override { return 1; }
    CElementoSettings& GetNodoSettings() override { return m_nodes; }
    CElementoSettings& GetTraveSettings() override { return m_beams; }
    CElementoSettings& GetSettoSettings() override { return m_walls; }
    int IsDrawRisultatoSetti() override { return 0; }
    int IsDrawProgettoSetti() override { return 0; }
    int IsDrawPressioneTerreno() override { return 0; }
    int GetProgettoSetti() override { return 0; }
    Adv3d* GetVista() override { return &m_projection; }
    void SetRectImmagine(int left, int top, int right, int bottom) override {
        m_journal.Add("SetRectImmagine", left, top, right, bottom);
    }
    void CatturaImmagine() override { m_journal.Add("CatturaImmagine"); }

  private:
    LRESULT OnFineDialogo(WPARAM wParam, LPARAM lParam);

    Journal& m_journal;
    CQuovarDoc& m_doc;
    int m_picking = 0;
    bool m_second = false; // the next pick of the pair is the "to" point
    CElementoSettings m_nodes, m_beams, m_walls;
    Adv3d m_projection;

    DECLARE_MESSAGE_MAP()
};

class RecordingFrame : public CMainFrame {
  public:
    CRect table{0, 0, 400, 150};
    CRect& GetRectClientTabella() override { return table; }
};

class RecordingHost : public CQuovarHost {
  public:
    // Installs itself, with a main window, an empty document saved as "/lavori/Ponte.asg" and one view.
    RecordingHost();
    ~RecordingHost() override;

    Journal journal;
    RecordingFrame frame;
    RecordingDoc doc;
    bool hasDoc = true; // whether there is an active document
    bool hasFrame = true;
    bool createsCases = true; // whether CreaCasoCarico succeeds

    RecordingView& View() { return *m_views.front(); }
    RecordingView& AddView();
    // As the user's closing of a view: its tool dialog is told while the window still exists, then the window goes.
    void CloseView(RecordingView& view);

    // Creates the dialog on the view and makes it the view's tool dialog; the result of Create.
    int Open(CDialogDocument& dialog);
    int Open(CDialogDocument& dialog, RecordingView& view);

    Lines Take() { return journal.Take(); }

    CQuovarDoc* GetActiveDoc() override { return hasDoc ? &doc : nullptr; }
    CMainFrame* GetMainFrame() override { return hasFrame ? &frame : nullptr; }
    void InizioAttesa(CString messaggio, unsigned int nPassi) override {
        journal.Add("InizioAttesa", messaggio, nPassi);
    }
    void StepBar() override { journal.Add("StepBar"); }
    void FineAttesa() override { journal.Add("FineAttesa"); }
    ModificaDocumento GetInformazioniBase(long lHint) override;
    long GetInformazioniAggiuntive(long lHint) override;
    void SetInformazioniAggiuntive(unsigned long& lHint, unsigned short valore) override;
    CString GetPathFilesVorm(CString path) override { return path; }
    CString GetFileInputVorm(int) override { return CString(); }
    CCasoCarico* CreaCasoCarico(CQuovarDoc* pDoc) override;

  private:
    std::vector<std::unique_ptr<RecordingView>> m_views;
};
