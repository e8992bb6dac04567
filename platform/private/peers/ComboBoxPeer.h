// Combo boxes on the toolkit's.
#pragma once

#include "platform/private/peers/Hosted.h"
#include "platform/private/peers/RowStore.h"

#include <QAbstractListModel>
#include <QComboBox>

namespace platform {

class ComboBoxModel final : public QAbstractListModel {
  public:
    struct Row {
        CString text;
        DWORD_PTR data = 0;
    };

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows.Count(); }
    QVariant data(const QModelIndex& index, int role) const override;
    void Insert(int index, const CString& text);
    void Remove(int index);
    void Clear();

    RowStore<Row> rows;
};

class ComboBoxPeer final : public Hosted<QComboBox> {
  public:
    ComboBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer);

    CString Text() const override { return FromQString(currentText()); }
    void SetText(const CString& text) override; // only where the text can be typed
    UINT DialogCode() const override;
    std::unique_ptr<CWnd> MakeObject() const override;
    void FocusChanged(bool gained) override;
    LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    int Add(const CString& text);
    int Insert(int index, const CString& text); // -1 appends; -1 for a bad place
    bool Remove(int index);
    void Reset();
    int Count() const { return m_model.rows.Count(); }
    bool Has(int index) const { return m_model.rows.Has(index); }
    const CString& TextOf(int index) const { return m_model.rows.At(index).text; } // the row must be there
    DWORD_PTR& DataOf(int index) { return m_model.rows.At(index).data; }
    int find(int startAfter, const CString& text, bool whole) const;

    int Selected() const; // -1 when the text is no row's
    void Select(int index);

    void showPopup() override;
    void hidePopup() override;
    bool Dropped() const { return m_dropped; }

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    ComboBoxModel m_model;
    int m_told = -1; // the selection that the parent knows or that the program made
    bool m_dropped = false;
    bool m_focusTold = false;
};

} // namespace platform
