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

BOOL CEdit::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("EDIT", "", style, rect, parent, id);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    platform::EditControl* control = Edit(m_hWnd);
    if (!control)
        return;
    if (start < 0)
        start = end = control->Caret();
    control->Select(start, end < 0 ? std::numeric_limits<int>::max() / 2 : end, !noScroll);
}

void CEdit::SetSel(DWORD selection, BOOL noScroll) {
    SetSel(static_cast<std::int16_t>(LOWORD(selection)), static_cast<std::int16_t>(HIWORD(selection)), noScroll);
}

void CEdit::GetSel(int& start, int& end) const {
    const platform::EditControl* control = Edit(m_hWnd);
    std::tie(start, end) = control ? control->Selection() : std::pair(0, 0);
}

DWORD CEdit::GetSel() const {
    int start = 0;
    int end = 0;
    GetSel(start, end);
    return static_cast<DWORD>(MAKEWPARAM(static_cast<UINT>(start), static_cast<UINT>(end)));
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL) {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->Insert(text);
}

void CEdit::SetLimitText(UINT characters) {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->SetLimit(static_cast<int>(characters));
}

BOOL CEdit::SetReadOnly(BOOL readOnly) {
    platform::EditControl* control = Edit(m_hWnd);
    if (control)
        control->SetReadOnly(readOnly);
    return control != nullptr;
}

BOOL CEdit::GetModify() const {
    const platform::EditControl* control = Edit(m_hWnd);
    return control && control->Modified();
}

void CEdit::SetModify(BOOL modified) {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->SetModified(modified);
}

int CEdit::GetLineCount() const {
    const platform::EditControl* control = Edit(m_hWnd);
    return control ? control->LineCount() : 0;
}

void CEdit::LineScroll(int lines, int) {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->ScrollLines(lines);
}

void CEdit::SetPasswordChar(char character) {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->SetPassword(character != 0);
}

void CEdit::Copy() {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->CopySelection();
}

void CEdit::Cut() {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->CutSelection();
}

void CEdit::Paste() {
    if (platform::EditControl* control = Edit(m_hWnd))
        control->PasteClipboard();
}

BOOL CEdit::Undo() {
    platform::EditControl* control = Edit(m_hWnd);
    if (control)
        control->UndoChange();
    return control != nullptr;
}
