// A mesh of the parallelogram that a side between two points covers along a vector, which two more points give.
#pragma once

#include "dialogs/generation/MeshDialog.h"

class CDialogMesh2PuntiDir : public MeshDialog {
    DECLARE_DYNAMIC(CDialogMesh2PuntiDir)

  public:
    enum : UINT { IDD = 9146 };

    explicit CDialogMesh2PuntiDir(CWnd* pParent = nullptr);

  protected:
    // The second and the first point moved by the vector.
    CFPoint GetPunto3() override { return GetPunto2() + Vector(); }
    CFPoint GetPunto4() override { return GetPunto1() + Vector(); }

  private:
    CFPoint Vector() { return PointAt(3) - PointAt(2); }

    DECLARE_MESSAGE_MAP()
};
