#include "dialogs/generation/DialogMesh3Punti.h"

namespace {
constexpr LPCTSTR prompts[] = {"Definisci il primo nodo.", "Definisci il secondo nodo.", "Definisci il terzo nodo."};
} // namespace

IMPLEMENT_DYNAMIC(CDialogMesh3Punti, CDialogDocument)

CDialogMesh3Punti::CDialogMesh3Punti(CWnd* pParent) : MeshDialog(IDD, pParent, "Mesh 3 Punti", prompts) {
}
