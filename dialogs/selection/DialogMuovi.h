// Moves the selection by the vector between two points; the second pick moves it at once.
// Coordinates are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/TwoPointDialog.h"

class CDialogMuovi : public TwoPointDialog {
    DECLARE_DYNAMIC(CDialogMuovi)

  public:
    enum : UINT { IDD = 9027 };
    enum : int { IDC_X1 = 1119, IDC_X2 = 1122 };

    explicit CDialogMuovi(CWnd* pParent = nullptr);

    using TwoPointDialog::SetVettoreTo;
    // Ends with the view's closing of the dialog: nothing is touched after it.
    void SetVettoreTo(CFPoint point) override;
    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
};
