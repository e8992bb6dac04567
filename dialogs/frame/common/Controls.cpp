#include "dialogs/frame/common/Controls.h"

#include "platform/controls/SpinButton.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

void EnableControls(CWnd& dialog, std::initializer_list<int> ids, BOOL enable) {
    for (const int id : ids)
        EnableControls(dialog, id, id, enable);
}

void EnableControls(CWnd& dialog, int first, int last, BOOL enable) {
    for (int id = first; id <= last; ++id)
        if (CWnd* control = dialog.GetDlgItem(id))
            control->EnableWindow(enable);
}

void InitSpin(CSpinButtonCtrl& spin, CWnd* buddy, int minimum, int maximum, int position) {
    if (buddy)
        spin.SetBuddy(buddy);
    spin.SetRange(minimum, maximum);
    spin.SetPos(position);
}

void DDX_Point(CDataExchange* pDX, int idX, double& x, double& y, double& z) {
    DDX_Point(pDX, idX, idX + 1, idX + 2, x, y, z);
}

void DDX_Point(CDataExchange* pDX, int idX, int idY, int idZ, double& x, double& y, double& z) {
    DDX_Text(pDX, idX, x);
    DDX_Text(pDX, idY, y);
    DDX_Text(pDX, idZ, z);
}

double NumberIn(const CWnd& dialog, int edit) {
    const CWnd* control = dialog.GetDlgItem(edit);
    const CString text = control ? control->GetWindowText() : CString();
    const char* const begin = text;
    char* end = nullptr;
    const double number = std::strtod(begin, &end);
    return *(end + std::strspn(end, " \t")) == '\0' && std::isfinite(number) ? number : 0;
}

int WholeNumberIn(const CWnd& dialog, int edit) {
    const double number = NumberIn(dialog, edit);
    return number == std::floor(number) ? static_cast<int>(std::clamp(number, -2147483648.0, 2147483647.0)) : 0;
}

void StorePoint(const CFPoint& point, double& x, double& y, double& z) {
    x = point.x;
    y = point.y;
    z = point.z;
}
