// Asks for the units of force and length. What becomes of the choice is the caller's affair.
#pragma once

#include "model/values/Units.h"
#include "platform/window/Dialog.h"

class CDialogUnita : public CDialog {
  public:
    enum : UINT { IDD = 9053 };
    enum : int {
        IDC_FORZA_KG = 1012, // the forces, in the order of Forza
        IDC_FORZA_TON = 1013,
        IDC_FORZA_NEWTON = 1014,
        IDC_FORZA_KNEWTON = 1015,
        IDC_FORZA_POUND = 1016,
        IDC_FORZA_KPOUND = 1017,
        IDC_LUNGHEZZA_MM = 1018, // the lengths, in the order of Lunghezza
        IDC_LUNGHEZZA_CM = 1019,
        IDC_LUNGHEZZA_M = 1020,
        IDC_LUNGHEZZA_INCH = 1021,
        IDC_TEMPO = 1362,
    };

    explicit CDialogUnita(CWnd* pParent = nullptr);

    // Which button of its group is on.
    int m_nForza = 0;
    int m_nLunghezza = 1;
    int m_nTempo = 0;

    // The choice; -1 when the number is of no button.
    Lunghezza GetLunghezza() const;
    Forza GetForza() const;

    void DoDataExchange(CDataExchange* pDX) override;
};
