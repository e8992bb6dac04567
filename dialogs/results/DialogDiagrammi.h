// The internal-force diagrams of the first selected beam, in a window that the user may size. The right button's menu
// chooses the diagrams, switches the values under the pointer and captures the picture.
#pragma once

#include "dialogs/frame/tool/DialogDocument.h"
#include "platform/controls/Static.h"

class CTrave;

class CDialogDiagrammi : public CDialogDocument {
  public:
    enum : UINT { IDD = 9009, IDR_MENU_DIAGRAMMI = 351 };
    enum : int {
        IDC_DIAGRAMMA = 1302,
        ID_DIAGRAMMI_N = 33110,
        ID_DIAGRAMMI_V2 = 33111,
        ID_DIAGRAMMI_V3 = 33112,
        ID_DIAGRAMMI_T = 33113,
        ID_DIAGRAMMI_M2 = 33114,
        ID_DIAGRAMMI_M3 = 33115,
        ID_DIAGRAMMI_NA = 40006,
        ID_DIAGRAMMI_M2W2 = 40007,
        ID_DIAGRAMMI_M3W3 = 40008,
        ID_DIAGRAMMI_VISUALIZZAVALORI = 33117,
        ID_DIAGRAMMI_CATTURAIMMAGINE = 33119,
    };

    explicit CDialogDiagrammi(CWnd* pParent = nullptr);

    // Which diagrams are wanted, 0 or 1; whoever sets one invalidates the window.
    int& GetN() { return m_bN; }
    int& GetV2() { return m_bV2; }
    int& GetV3() { return m_bV3; }
    int& GetT() { return m_bT; }
    int& GetM2() { return m_bM2; }
    int& GetM3() { return m_bM3; }
    int& GetNA() { return m_bNA; }
    int& GetM2W2() { return m_bM2W2; }
    int& GetM3W3() { return m_bM3W3; }
    // Sets the flag of a result kind and draws anew; a kind that beams do not have sets none.
    void AggiornaRisultato(int tipo, int mostra);

    // Follows the selection at every change of the document, whatever it is.
    void Update(CView* pSender, long lHint, CObject* pHint) override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    // Another view brings its own choice of diagrams; the one that the dialog has changes nothing.
    void SetView(CQuovarView* pView) override;

    void AggiornaDiagramma();
    void RiposizionaDiagramma();
    CTrave* GetTrave() { return m_pTrave; }
    void SetTrave(CTrave* pTrave) { m_pTrave = pTrave; }
    int IsRisultati() { return m_bRisultati; }

    void OnSize(UINT nType, int cx, int cy);
    void OnPaint();
    void OnContextMenu(CWnd* pWnd, CPoint point);
    void OnMouseMove(UINT nFlags, CPoint point);
    BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    void OnDiagrammiN();
    void OnDiagrammiV2();
    void OnDiagrammiV3();
    void OnDiagrammiT();
    void OnDiagrammiM2();
    void OnDiagrammiM3();
    void OnDiagrammiNa();
    void OnDiagrammiM2w2();
    void OnDiagrammiM3w3();
    void OnDiagrammiVisualizzavalori();
    void OnDiagrammiCatturaimmagine();

    // The last move of the pointer set the cross, which the next question for a cursor must not undo.
    static int _bStaticCursor;

    CTrave* m_pTrave = nullptr; // the document's; null when no beam is selected
    int m_bN = 0;
    int m_bV2 = 0;
    int m_bV3 = 0;
    int m_bT = 0;
    int m_bM2 = 0;
    int m_bM3 = 0;
    int m_bNA = 0;
    int m_bM2W2 = 0;
    int m_bM3W3 = 0;
    int m_bRisultati = 0; // values are shown under the pointer
    CStatic m_wndDiagramma;

  private:
    struct Switch;
    static const Switch switches[9];

    CTrave* HeldTrave(); // the beam held, while it is the first selected one still
    void DrawBeam(int bLettura, CPoint punto);
    void Toggle(int& flag);

    DECLARE_MESSAGE_MAP()
};
