#include "dialogs/selection/SelectionCommand.h"

#include "platform/window/Application.h"

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
