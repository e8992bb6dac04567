// Places division points along one beam or truss member, shows them on a drawing of it, and on OK cuts the line there
// into consecutive elements, as one undo step. Lengths are in the document's unit.
#pragma once

#include "platform/controls/Button.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/Static.h"
#include "platform/core/Collections.h"
#include "platform/window/Dialog.h"

#include <set>

class CDC;
class CLinea;
class CNodo;
class CQuovarDoc;

class CDialogDividiLinea : public CDialog {
  public:
    enum : UINT { IDD = 9010 };
    enum : int {
        IDC_INSERISCI_NODO = 1017,
        IDC_DISEGNO = 1357,
        IDC_LUNGHEZZA = 1377,
        IDC_LIST_NODI = 1378,
        IDC_MEZZO = 1379,
        IDC_ELIMINA = 1380,
        IDC_N_NODI = 1381,
        IDC_DISTANZA = 1382,
        IDC_PROPORZIONE = 1383,
        IDC_INSERISCI_NODI = 1384,
        IDC_UNITA = 1385,
    };

    struct CDivisione : CObject {
        explicit CDivisione(double distanza) : m_dDistanza(distanza) {}
        double m_dDistanza; // from the first node of the line
    };

    explicit CDialogDividiLinea(CWnd* pParent = nullptr);
    ~CDialogDividiLinea() override;

    // Both to be set before DoModal; neither is owned.
    void SetLinea(CLinea* pLinea) { m_pLinea = pLinea; }
    CLinea* GetLinea() { return m_pLinea; }
    void SetDoc(CQuovarDoc* pDoc) { m_pDoc = pDoc; }
    CQuovarDoc* GetDoc() { return m_pDoc; }

    // Nothing for a distance that the line does not have or that lies within 0.00001 of a point.
    void AddDivisione(double distanza);
    int GetSizeDivisioni() { return m_arrayDivisioni.GetSize(); }
    CDivisione* GetDivisione(int i); // null for an index outside
    CObArray& GetArrayDiv() { return m_arrayDivisioni; }
    void OrdinaDivisioni();

    void AggiornaLista();
    void AggiornaBottoni();
    void AggiornaLinea();
    int IsSelectDivisione(int i); // in the list

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;

  protected:
    void OnPaint();
    void OnButtonInsNodi();
    void OnButtonInsNodo();
    void OnButtonIndMezzo();
    void OnButtonRimuovi();
    void OnSelchangeListNodi();
    void OnDblclkListNodi() { OnButtonRimuovi(); }
    void OnChangeEditNNodi() { AggiornaBottoni(); }
    void OnChangeEditNodoDistanza();
    void OnChangeEditNodoProporzione();

    CButton m_buttonInserisciNodi;
    CButton m_buttonInserisciNodo;
    CStatic m_staticDisegno;
    CListBox m_listNodi;
    CButton m_buttonElimina;
    CString m_strLunghezza;
    CString m_strUnita;
    CLinea* m_pLinea = nullptr;
    CQuovarDoc* m_pDoc = nullptr;
    CObArray m_arrayDivisioni; // owned CDivisione, in increasing order of distance

  private:
    double Length() const; // 0 without a line
    bool IsDivided(double distance);
    void ShowDivisions();
    void WriteCoupled(int from, int to, double factor);
    void Draw(CDC& dc, const CRect& area);
    void DrawDivisions(CDC& dc, const CRect& area);
    void Divide();
    bool AddPart(CNodo& from, CNodo& to);

    std::multiset<double> m_distances; // of the points, for as long as it has as many

    DECLARE_MESSAGE_MAP()
};
