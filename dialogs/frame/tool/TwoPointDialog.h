// Base of the dialogs that take a vector or an axis as two points, typed or picked in the view.
// Coordinates are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/PickingDialog.h"

class TwoPointDialog : public ConfirmedDialog {
  public:
    using ConfirmedDialog::ConfirmedDialog;

    double m_dX1 = 0, m_dY1 = 0, m_dZ1 = 0;
    double m_dX2 = 0, m_dY2 = 0, m_dZ2 = 0;

    CFPoint GetVettoreFrom();
    CFPoint GetVettoreTo();
    CFPoint GetVettoreDiff(); // second point minus first

    // A picked point takes the place of the typed one; what the other fields hold is read first and kept. A field that
    // does not parse is reported and keeps its last value.
    using CDialogDocument::SetVettoreFrom;
    using CDialogDocument::SetVettoreTo;
    void SetVettoreFrom(CFPoint point) override;
    void SetVettoreTo(CFPoint point) override;

  protected:
    void StoreFrom(const CFPoint& point);
    void StoreTo(const CFPoint& point);
    void ResetPoints();
};
