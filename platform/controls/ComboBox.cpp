#include "platform/controls/ComboBox.h"

#include "platform/private/peers/ComboBoxPeer.h"
#include "platform/private/peers/Controls.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

using platform::ComboBoxPeer;

namespace {

ComboBoxPeer* Combo(HWND handle) {
    return platform::ControlOf<ComboBoxPeer>(handle);
}

ComboBoxPeer* ComboWith(HWND handle, int row) {
    ComboBoxPeer* box = Combo(handle);
    return box && box->Has(row) ? box : nullptr;
}

} // namespace

int CComboBox::AddString(LPCTSTR text) {
    ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->Add(text) : CB_ERR;
}

void CComboBox::ResetContent() {
    if (ComboBoxPeer* box = Combo(m_hWnd))
        box->Reset();
}

int CComboBox::GetCount() const {
    const ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->Count() : CB_ERR;
}

void CComboBox::GetLBText(int row, CString& text) const {
    if (const ComboBoxPeer* box = ComboWith(m_hWnd, row))
        text = box->TextOf(row);
}

int CComboBox::GetCurSel() const {
    const ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->Selected() : CB_ERR;
}

int CComboBox::SetCurSel(int row) {
    ComboBoxPeer* box = Combo(m_hWnd);
    if (!box)
        return CB_ERR;
    box->Select(row);
    return box->Has(row) ? row : CB_ERR;
}

int CComboBox::FindString(int startAfter, LPCTSTR prefix) const {
    const ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->Find(startAfter, prefix) : CB_ERR;
}

int CComboBox::SelectString(int startAfter, LPCTSTR prefix) {
    const int row = FindString(startAfter, prefix);
    return row == CB_ERR ? CB_ERR : SetCurSel(row);
}
