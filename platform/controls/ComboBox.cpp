#include "platform/controls/ComboBox.h"

#include "platform/private/peers/ComboBoxPeer.h"
#include "platform/private/peers/Controls.h"

#include <QAbstractItemView>
#include <QLineEdit>

#include <cstring>

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

BOOL CComboBox::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("COMBOBOX", "", style, rect, parent, id);
}

int CComboBox::AddString(LPCTSTR text) {
    ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->Add(text) : CB_ERR;
}

int CComboBox::InsertString(int row, LPCTSTR text) {
    ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->Insert(row, text) : CB_ERR;
}

int CComboBox::DeleteString(UINT row) {
    ComboBoxPeer* box = Combo(m_hWnd);
    return box && box->Remove(static_cast<int>(row)) ? box->Count() : CB_ERR;
}

void CComboBox::ResetContent() {
    if (ComboBoxPeer* box = Combo(m_hWnd))
        box->Reset();
}

int CComboBox::GetCount() const {
    const ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->Count() : CB_ERR;
}

int CComboBox::GetLBText(int row, LPSTR buffer) const {
    const ComboBoxPeer* box = ComboWith(m_hWnd, row);
    if (!box)
        return CB_ERR;
    const CString& text = box->TextOf(row);
    std::memcpy(buffer, static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength()) + 1);
    return text.GetLength();
}

void CComboBox::GetLBText(int row, CString& text) const {
    if (const ComboBoxPeer* box = ComboWith(m_hWnd, row))
        text = box->TextOf(row);
}

int CComboBox::GetLBTextLen(int row) const {
    const ComboBoxPeer* box = ComboWith(m_hWnd, row);
    return box ? box->TextOf(row).GetLength() : CB_ERR;
}

DWORD_PTR CComboBox::GetItemData(int row) const {
    ComboBoxPeer* box = ComboWith(m_hWnd, row);
    return box ? box->DataOf(row) : static_cast<DWORD_PTR>(CB_ERR);
}

int CComboBox::SetItemData(int row, DWORD_PTR data) {
    ComboBoxPeer* box = ComboWith(m_hWnd, row);
    if (!box)
        return CB_ERR;
    box->DataOf(row) = data;
    return CB_OKAY;
}

void* CComboBox::GetItemDataPtr(int row) const {
    return reinterpret_cast<void*>(GetItemData(row));
}

int CComboBox::SetItemDataPtr(int row, void* data) {
    return SetItemData(row, reinterpret_cast<DWORD_PTR>(data));
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
    return box ? box->find(startAfter, prefix, false) : CB_ERR;
}

int CComboBox::FindStringExact(int startAfter, LPCTSTR text) const {
    const ComboBoxPeer* box = Combo(m_hWnd);
    return box ? box->find(startAfter, text, true) : CB_ERR;
}

int CComboBox::SelectString(int startAfter, LPCTSTR prefix) {
    const int row = FindString(startAfter, prefix);
    return row == CB_ERR ? CB_ERR : SetCurSel(row);
}

void CComboBox::ShowDropDown(BOOL show) {
    ComboBoxPeer* box = Combo(m_hWnd);
    if (!box)
        return;
    if (show)
        box->showPopup();
    else
        box->hidePopup();
}

BOOL CComboBox::GetDroppedState() const {
    const ComboBoxPeer* box = Combo(m_hWnd);
    return box && box->Dropped();
}

BOOL CComboBox::LimitText(int characters) {
    ComboBoxPeer* box = Combo(m_hWnd);
    if (box && box->lineEdit())
        box->lineEdit()->setMaxLength(characters > 0 ? characters : 32767);
    return box != nullptr;
}

BOOL CComboBox::SetEditSel(int start, int end) {
    ComboBoxPeer* box = Combo(m_hWnd);
    if (!box || !box->lineEdit())
        return FALSE;
    const int length = static_cast<int>(box->lineEdit()->text().size());
    if (start < 0)
        box->lineEdit()->deselect();
    else
        box->lineEdit()->setSelection(start, (end < 0 ? length : end) - start);
    return TRUE;
}

int CComboBox::SetDroppedWidth(UINT width) {
    ComboBoxPeer* box = Combo(m_hWnd);
    if (!box)
        return CB_ERR;
    box->view()->setMinimumWidth(static_cast<int>(width));
    return static_cast<int>(width);
}
