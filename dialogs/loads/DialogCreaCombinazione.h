// Builds a load combination from load cases with factors: a new one, or the document's current one. The document gets
// it when the user confirms.
#pragma once

#include "model/entity/Combinazione.h"
#include "platform/controls/Button.h"
#include "platform/controls/Edit.h"
#include "platform/controls/ListBox.h"
#include "platform/window/Dialog.h"

class CQuovarDoc;

class CDialogCreaCombinazione : public CDialog {
  public:
    enum Tipo { Crea = 0, Modifica = 1 };
    enum : UINT { IDD = 9001 };
    enum : int {
        IDC_LIST_CDCB = 1001, // the combined cases
        IDC_VA = 1002,
        IDC_VATUTTO = 1003,
        IDC_VIENITUTTO = 1005,
        IDC_VIENI = 1018,
        IDC_NOME = 1025,
        IDC_FATTORE = 1371,
        IDC_FATTORE_COMBINAZIONE = 1372,
        IDC_LIST_CDCA = 1422, // the available ones
        IDC_ALGEBRICA = 1447,
        IDC_VALORI_EFFICACI = 1448,
    };

    explicit CDialogCreaCombinazione(Tipo tipo, CWnd* pParent = nullptr);

    // IDOK when the document has the combination; IDCANCEL at once when there is nothing to modify.
    int DoModal() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;

  protected:
    void OnButtonVa();
    void OnButtonVatutto();
    void OnButtonVieni();
    void OnButtonVienitutto();
    void OnSelchangeListCdca();
    void OnSelchangeListCdcb();
    void OnChangeEditNome();
    void OnChangeEditFattore();
    void OnChangeEditFattoreCombinazione();

    CEdit m_editFattoreCombinazione;
    CEdit m_editFattore;
    CEdit m_editNome;
    CButton m_buttonCrea;
    CButton m_buttonVieniTutto;
    CButton m_buttonVieni;
    CButton m_buttonVaTutto;
    CButton m_buttonVa;
    CListBox m_listCDCCombinazione; // the item data of both lists are the numbers of the cases
    CListBox m_listCDCDisponibili;
    double m_dFattore = 1.0;
    CString m_strNome;

  private:
    CCombinazione& GetCombinazione() { return m_combinazione; }
    Tipo GetTipo() const { return m_nTipo; }
    bool IsCrea() const { return m_nTipo == Crea; }
    bool IsModifica() const { return m_nTipo == Modifica; }

    void Aggiorna();
    void AggiornaCDCDisponibili();
    void AggiornaCDCCombinazione();
    void AggiornaBottoni();
    void AggiornaFattoreCombinazione();

    int CurrentPosition(); // in the working copy, of the current combined case; -1 for none
    bool HasZeroFactor();
    bool AddToDocument(CQuovarDoc& doc);

    CCombinazione m_combinazione; // the working copy
    Tipo m_nTipo;
    bool m_bFattoreMostrato = false; // the factor's edit is being written, not typed into

    DECLARE_MESSAGE_MAP()
};
