// A mesh of the triangle between three points: a quadrilateral whose fourth corner is the first one again.
#pragma once

#include "dialogs/generation/MeshDialog.h"

class CDialogMesh3Punti : public MeshDialog {
    DECLARE_DYNAMIC(CDialogMesh3Punti)

  public:
    enum : UINT { IDD = 9025 };

    explicit CDialogMesh3Punti(CWnd* pParent = nullptr);

  protected:
    CFPoint GetPunto4() override { return GetPunto1(); }
};
