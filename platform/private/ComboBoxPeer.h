// Combo boxes on the toolkit's.
#pragma once

#include "platform/private/Hosted.h"

#include <QComboBox>

namespace platform {

class ComboBoxPeer final : public Hosted<QComboBox> {
  public:
    ComboBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer);

    CString text() const override { return fromQString(currentText()); }
    void setText(const CString& text) override; // only where the text can be typed
    UINT dialogCode() const override;
    std::unique_ptr<CWnd> makeObject() const override;
    void focusChanged(bool gained) override;
    LRESULT defaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    int add(const CString& text);
    int insert(int index, const CString& text); // -1 appends; -1 for a bad place
    bool remove(int index);
    void reset();
    bool has(int index) const { return index >= 0 && index < count(); }
    int find(int startAfter, const CString& text, bool whole) const;

    int selected() const; // -1 when the text is no row's
    void select(int index);

    void showPopup() override;
    void hidePopup() override;
    bool dropped() const { return m_dropped; }

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    int m_told = -1; // the selection that the parent knows or that the program made
    bool m_dropped = false;
    bool m_focusTold = false;
};

} // namespace platform
