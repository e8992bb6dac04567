#include "dialogs/generation/DialogMesh2PuntiDir.h"

namespace {
constexpr LPCTSTR prompts[] = {"Definisci il primo nodo.", "Definisci il secondo nodo.",
                               "Definisci il primo nodo del Vettore.", "Definisci il secondo nodo del Vettore."};
} // namespace

IMPLEMENT_DYNAMIC(CDialogMesh2PuntiDir, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogMesh2PuntiDir, MeshDialog)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

CDialogMesh2PuntiDir::CDialogMesh2PuntiDir(CWnd* pParent) : MeshDialog(IDD, pParent, "Mesh 2 punti Dir", prompts) {
}
