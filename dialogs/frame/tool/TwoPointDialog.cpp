#include "dialogs/frame/tool/TwoPointDialog.h"

#include "dialogs/frame/common/Controls.h"

CFPoint TwoPointDialog::GetVettoreFrom() {
    return CFPoint(m_dX1, m_dY1, m_dZ1);
}

CFPoint TwoPointDialog::GetVettoreTo() {
    return CFPoint(m_dX2, m_dY2, m_dZ2);
}

CFPoint TwoPointDialog::GetVettoreDiff() {
    return GetVettoreTo() - GetVettoreFrom();
}

void TwoPointDialog::SetVettoreFrom(CFPoint point) {
    UpdateData(TRUE);
    StoreFrom(point);
    UpdateData(FALSE);
}

void TwoPointDialog::SetVettoreTo(CFPoint point) {
    UpdateData(TRUE);
    StoreTo(point);
    UpdateData(FALSE);
}

void TwoPointDialog::StoreFrom(const CFPoint& point) {
    StorePoint(point, m_dX1, m_dY1, m_dZ1);
}

void TwoPointDialog::StoreTo(const CFPoint& point) {
    StorePoint(point, m_dX2, m_dY2, m_dZ2);
}

void TwoPointDialog::ResetPoints() {
    StoreFrom(CFPoint());
    StoreTo(CFPoint());
}
