#include "platform/Edit.h"

#include "platform/private/EditPeer.h"

#include <limits>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

namespace {

platform::EditControl* edit(HWND handle) {
    return dynamic_cast<platform::EditControl*>(handle);
}

} // namespace

BOOL CEdit::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("EDIT", "", style, rect, parent, id);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    platform::EditControl* control = edit(m_hWnd);
    if (!control)
        return;
    if (start < 0)
        start = end = control->caret();
    control->select(start, end < 0 ? std::numeric_limits<int>::max() / 2 : end, !noScroll);
}

void CEdit::SetSel(DWORD selection, BOOL noScroll) {
    SetSel(static_cast<std::int16_t>(LOWORD(selection)), static_cast<std::int16_t>(HIWORD(selection)), noScroll);
}

void CEdit::GetSel(int& start, int& end) const {
    const platform::EditControl* control = edit(m_hWnd);
    std::tie(start, end) = control ? control->selection() : std::pair(0, 0);
}

DWORD CEdit::GetSel() const {
    int start = 0;
    int end = 0;
    GetSel(start, end);
    return static_cast<DWORD>(MAKEWPARAM(static_cast<UINT>(start), static_cast<UINT>(end)));
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL) {
    if (platform::EditControl* control = edit(m_hWnd))
        control->insert(text);
}

void CEdit::SetLimitText(UINT characters) {
    if (platform::EditControl* control = edit(m_hWnd))
        control->setLimit(static_cast<int>(characters));
}

BOOL CEdit::SetReadOnly(BOOL readOnly) {
    platform::EditControl* control = edit(m_hWnd);
    if (control)
        control->setReadOnly(readOnly);
    return control != nullptr;
}

BOOL CEdit::GetModify() const {
    const platform::EditControl* control = edit(m_hWnd);
    return control && control->modified();
}

void CEdit::SetModify(BOOL modified) {
    if (platform::EditControl* control = edit(m_hWnd))
        control->setModified(modified);
}

int CEdit::GetLineCount() const {
    const platform::EditControl* control = edit(m_hWnd);
    return control ? control->lineCount() : 0;
}

void CEdit::LineScroll(int lines, int) {
    if (platform::EditControl* control = edit(m_hWnd))
        control->scrollLines(lines);
}

void CEdit::SetPasswordChar(char character) {
    if (platform::EditControl* control = edit(m_hWnd))
        control->setPassword(character != 0);
}

void CEdit::Copy() {
    if (platform::EditControl* control = edit(m_hWnd))
        control->copySelection();
}

void CEdit::Cut() {
    if (platform::EditControl* control = edit(m_hWnd))
        control->cutSelection();
}

void CEdit::Paste() {
    if (platform::EditControl* control = edit(m_hWnd))
        control->pasteClipboard();
}

BOOL CEdit::Undo() {
    platform::EditControl* control = edit(m_hWnd);
    if (control)
        control->undoChange();
    return control != nullptr;
}
