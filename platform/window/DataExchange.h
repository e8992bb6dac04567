// Data exchange between the controls of a dialog and its fields. UpdateData runs a dialog's DoDataExchange, a table of
// the calls below, over the controls in order; the first field that fails shows its message, gets the focus and ends
// it.
#pragma once

#include "platform/window/Window.h"

class CDataExchange {
  public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate) : m_pDlgWnd(dialog), m_bSaveAndValidate(saveAndValidate) {}

    CWnd* m_pDlgWnd;
    BOOL m_bSaveAndValidate; // non-zero reads the controls into the fields

    CWnd* PrepareCtrl(int id);     // the control; throws when the dialog has none with that number
    CWnd* PrepareEditCtrl(int id); // the same, and Fail will select its text
    [[noreturn]] void Fail();      // focuses the last prepared control and ends the exchange

  private:
    CWnd* m_last = nullptr;
    bool m_lastIsEdit = false;
};

// Thrown to end an exchange whose message has been shown.
class CExchangeFailure final {};

// Texts. Numbers are read whole: optional blanks, sign, digits, optional blanks. A double is written with "%.15g"; a
// text that is still the one written from the same field gives back the very number, with all its bits.
void DDX_Text(CDataExchange* pDX, int id, CString& value);
void DDX_Text(CDataExchange* pDX, int id, int& value);
void DDX_Text(CDataExchange* pDX, int id, double& value);

// Attaches the member the first time the exchange reaches it.
void DDX_Control(CDataExchange* pDX, int id, CWnd& control);

void DDX_Check(CDataExchange* pDX, int id, int& value); // 0, 1, 2 undetermined
// The group from the button `id`, which has the group flag, to the next control with it; -1 is none.
void DDX_Radio(CDataExchange* pDX, int id, int& value);
void DDX_CBString(CDataExchange* pDX, int id, CString& value);

// Limits, checked on reading only.
void DDV_MinMaxInt(CDataExchange* pDX, int value, int minimum, int maximum);
void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minimum, double maximum);
