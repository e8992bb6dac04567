#include "dialogs/selection/SelectionCommand.h"

#include "platform/controls/SpinButton.h"
#include "platform/window/Application.h"

CommandUndo::CommandUndo(CQuovarDoc& doc, unsigned int kind, const Record& r) : m_undo(*doc.m_pUndo), m_kind(kind) {
    m_undo.BeginUndo(kind, r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], r[8], r[9]);
}

CommandUndo::~CommandUndo() {
    m_undo.EndUndo(m_kind);
}

int JoinKind(int radio) {
    switch (radio) {
    case 0:
        return UNIONE_TRAVI;
    case 1:
        return UNIONE_ASTE;
    default:
        return UNIONE_NIENTE;
    }
}

bool AcceptCopies(int copies) {
    if (copies == 0)
        AfxMessageBox("Numero copie non valido.");
    return copies != 0;
}

void InitCopiesSpin(CSpinButtonCtrl& spin, CWnd* edit, int maximum, int copies) {
    spin.SetBuddy(edit);
    spin.SetRange(0, maximum);
    spin.SetPos(copies);
}
