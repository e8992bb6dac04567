#include "dialogs/generation/DialogMesh4Punti.h"

namespace {
constexpr LPCTSTR prompts[] = {"Definisci il primo nodo.", "Definisci il secondo nodo.", "Definisci il terzo nodo.",
                               "Definisci il quarto nodo."};
} // namespace

IMPLEMENT_DYNAMIC(CDialogMesh4Punti, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogMesh4Punti, MeshDialog)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

CDialogMesh4Punti::CDialogMesh4Punti(CWnd* pParent) : MeshDialog(IDD, pParent, "Mesh 4 punti", prompts) {
}
