// Base of the tool dialogs that take their points one at a time, each under a prompt of its own.
#pragma once

#include "dialogs/frame/tool/PickingDialog.h"

#include <span>

// After each pick the view is asked for one more point, so that every point arrives as the first of a pair; after the
// last one it starts over.
class PointCycleDialog : public ConfirmedDialog {
  public:
    // Without a view a pick is passed over. The controls are read before the point is stored and written after: a field
    // that does not parse is reported and keeps its last value.
    using CDialogDocument::SetVettoreFrom;
    void SetVettoreFrom(CFPoint point) override;

  protected:
    using Prompts = std::span<const LPCTSTR>;

    // One prompt for each pick; the texts outlive the dialog. `counter` is the derived dialog's field that says which
    // pick is next, `first` its value before the first one.
    PointCycleDialog(UINT nIDD, CWnd* pParent, Prompts prompts, int& counter, int first = 0);

    // Asks for the first point. Without a view the counter becomes 0.
    void StartCycle();

    // Stores a picked point; picks count from 0.
    virtual void StorePick(int pick, const CFPoint& point) = 0;
    // After the last pick, with its point shown and the counter back at the first: asks for the first point again. An
    // override may end the dialog.
    virtual void CycleDone();
    // A pick came while the counter holds no pick of the cycle; the point is dropped.
    virtual void StrayPick() { m_counter = 0; }

  private:
    const Prompts m_prompts;
    int& m_counter;
    const int m_first;
};

// The same where the last pick ends the picking and confirms, as OK does.
class PointsOnceDialog : public PointCycleDialog {
  protected:
    using PointCycleDialog::PointCycleDialog;

    // Ends with the view's closing of the dialog: nothing is touched after it.
    void CycleDone() override;
};
