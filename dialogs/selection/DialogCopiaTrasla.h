// Translated copies of the selection along an axis or along a vector picked in the view, each at a distance of its own
// from the copy before it, with corresponding nodes joined on request. The distances stand in a list and are edited in
// place. Coordinates and distances are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/TwoPointDialog.h"
#include "platform/controls/Edit.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/SpinButton.h"

class CDialogCopiaTrasla : public TwoPointDialog {
    DECLARE_DYNAMIC(CDialogCopiaTrasla)

  public:
    enum : UINT { IDD = 9006 };
    enum : int {
        IDC_LISTA_PASSI = 1004,
        IDC_DIREZIONE_X = 1090,
        IDC_DIREZIONE_Y = 1091,
        IDC_DIREZIONE_Z = 1092,
        IDC_SPAZIATURA = 1093,
        IDC_EDIT_LISTA = 1096,
        IDC_DIREZIONE_VETTORE = 1102,
        IDC_LABEL_VETTORE_FIRST = 1113,
        IDC_LABEL_VETTORE_LAST = 1118,
        IDC_GROUP_VETTORE = 1125,
        IDC_SPIN_COPIE = 1171,
        IDC_X1 = 1194,
        IDC_Y1 = 1195,
        IDC_Z1 = 1196,
        IDC_X2 = 1197,
        IDC_Y2 = 1198,
        IDC_Z2 = 1199,
        IDC_UNIONE_TRAVI = 1200,
        IDC_UNIONE_BIELLE = 1201,
        IDC_UNIONE_NIENTE = 1202,
        IDC_COPIE = 1203,
    };

    explicit CDialogCopiaTrasla(CWnd* pParent = nullptr);

    int m_nIndiceModifica = 0; // row of the list being edited
    double m_dPasso[100];      // of each copy from the one before; read and written through GetIndexPass
    int m_nCopie = 1;
    int m_nUnione = 2;        // 0 beams, 1 truss members, 2 nothing
    double m_dSpaziatura = 3; // a change sets every step
    double m_dValoreLista = 0;
    int m_nDirezione = 2; // 0 X, 1 Y, 2 Z, 3 the vector from point 1 to point 2

    int GetMaxPass(); // steps that can differ
    // Any index outside refers to the first step: copies beyond the hundredth share it.
    double& GetIndexPass(int index);
    // The number of copies that the controls show; 0 when they cannot be read or the dialog was cancelled.
    int GetNPass();
    // Opens the editor over the selected row, with the row's step (-1) or with the digit 0 to 9 that the user typed.
    void ModificaPasso(int n);
    // Sets the spacing and every step.
    void UpdateSpaziatura(double spaziatura);
    CFPoint GetVettoreDir(CFPoint vettore); // of length 1; a null vector stays null
    double GetSpaziatura(CFPoint vettore);  // its length

    void SetVettoreFrom(CFPoint point, int bAggiorna) override;
    void SetVettoreFrom(CFPoint point) override;
    void SetVettoreTo(CFPoint point, int bAggiorna) override;
    void SetVettoreTo(CFPoint point) override;
    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void OnKillfocusEditList();
    void OnDblclkList();
    void OnRadioVettore();
    void OnRadioX();
    void OnRadioY() { OnRadioX(); }
    void OnRadioZ() { OnRadioX(); }
    void OnKillfocusEditCopiatraslaX1() { VectorEdited(); }
    void OnKillfocusEditCopiatraslaX2() { VectorEdited(); }
    void OnKillfocusEditCopiatraslaY1() { VectorEdited(); }
    void OnKillfocusEditCopiatraslaY2() { VectorEdited(); }
    void OnKillfocusEditCopiatraslaZ1() { VectorEdited(); }
    void OnKillfocusEditCopiatraslaZ2() { VectorEdited(); }
    void OnChangeEditPasso();
    void OnChangeEditCopiatraslaCopie();

    CEdit m_editCopie, m_editSpaziatura, m_editLista;
    CListBox m_listPassi;
    CSpinButtonCtrl m_spinCopie;

  private:
    void InitPass(double passo);
    void ResetListBox();
    void EnableVettore(int bEnable);
    void ResetFields();
    // False when the user cancelled, the window is going, or a field does not parse, which has been reported then.
    // While the vector is the direction, a change of its points sets every step to its length, whichever reading takes
    // it.
    bool ReadControls();
    bool WriteControls();
    // The user left the edit of a coordinate: a change makes the vector the direction.
    void VectorEdited();
    bool VectorChanged();
    void FollowVector();
    bool AcceptSteps();
    void SetAxisVector();
    CRect EditorPlace(int row);
    void HideEditor();

    CFPoint m_shownFrom, m_shownTo; // the vector in the controls, which the fields leave for an axis at OK

    DECLARE_MESSAGE_MAP()
};
