// A mesh of the quadrilateral between four points.
#pragma once

#include "dialogs/generation/MeshDialog.h"

class CDialogMesh4Punti : public MeshDialog {
    DECLARE_DYNAMIC(CDialogMesh4Punti)

  public:
    enum : UINT { IDD = 9026 };

    explicit CDialogMesh4Punti(CWnd* pParent = nullptr);

    DECLARE_MESSAGE_MAP()
};
