// Combo boxes on the toolkit's.
#pragma once

#include "platform/private/peers/Hosted.h"
#include "platform/private/peers/RowStore.h"

#include <QAbstractListModel>
#include <QComboBox>

namespace platform {

class ComboBoxModel final : public QAbstractListModel {
  public:
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows.Count(); }
    QVariant data(const QModelIndex& index, int role) const override;
    void Insert(int index, const CString& text);
    void Clear();

    RowStore<CString> rows;
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
    void Reset();
    int Count() const { return m_model.rows.Count(); }
    bool Has(int index) const { return m_model.rows.Has(index); }
    const CString& TextOf(int index) const { return m_model.rows.At(index); } // the row must be there
    int Find(int startAfter, const CString& prefix) const; // without regard to case, going round; -1 for none

    int Selected() const; // -1 when the text is no row's
    void Select(int index);

    void showPopup() override;
    void hidePopup() override;
    bool eventFilter(QObject* watched, QEvent* event) override; // of the list while it hangs down

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    void TellClosed();

    ComboBoxModel m_model;
    int m_told = -1; // the selection that the parent knows or that the program made
    bool m_dropped = false;
    bool m_focusTold = false;
};

} // namespace platform
