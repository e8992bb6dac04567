#include "platform/controls/Edit.h"

#include "platform/private/peers/EditPeer.h"

#include <limits>
#include <utility>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

namespace {

platform::EditControl* Edit(HWND handle) {
    return dynamic_cast<platform::EditControl*>(handle);
}

} // namespace

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    platform::EditControl* control = Edit(m_hWnd);
    if (!control)
        return;
    if (start < 0)
        start = end = control->Caret();
    control->Select(start, end < 0 ? std::numeric_limits<int>::max() / 2 : end, !noScroll);
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL) {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->Insert(text);
}
