// Asks for the name of a load case, whose number it shows. It takes any name: see AskNewName.
#pragma once

#include "platform/window/Dialog.h"

class DocumentCases;

class CDialogCreaCasoCarico : public CDialog {
  public:
    enum : UINT { IDD = 9007 };
    enum : int { IDC_NOME = 1027, IDC_NUMERO = 1142 };

    explicit CDialogCreaCasoCarico(CWnd* pParent = nullptr);

    CString m_strTitolo; // the caption; the template's when empty
    CString m_strNome;   // what the edit begins with; the name after OK
    CString m_strNumero;

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
};

// Runs the dialog until its name is valid and no load case or combination of the document bears it, telling the user
// why it comes again. False when the user cancels.
bool AskNewName(CDialogCreaCasoCarico& dialog, DocumentCases& cases);
