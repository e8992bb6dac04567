// The window of a dialog: its controls from the template, its keys.
#pragma once

#include "platform/private/peers/ChildFrame.h"
#include "platform/private/peers/Hosted.h"
#include "platform/resource/Resource.h"

#include <optional>

namespace platform {

class DialogPeer final : public Hosted<QWidget> {
  public:
    // `owner` may be null; the dialog then stands alone.
    DialogPeer(const DialogTemplate& source, WindowPeer* owner, bool modal);
    ~DialogPeer() override;

    QWidget* Surface() override { return m_client ? m_client : this; }
    void SetText(const CString& text) override;
    void SetSize(QSize size) override;
    void Pressed() override;
    void ControlFocused(WindowPeer& control, bool gained) override;

    void AddControls(const DialogTemplate& source);
    void Open(); // shows it over its owner and makes it active
    void FocusFirst();
    void TakeFocus(); // to the first tab stop or, without one, to the dialog itself

    // True when the key was the dialog's: Tab, arrows in a group, Enter, Escape, a mnemonic.
    bool HandleKey(const MSG& message);
    void Cancel(); // IDCANCEL, unless its button is disabled

    WindowPeer* NextTabStop(WindowPeer* from, bool backward); // null when there is no tab stop
    void FocusNext(WindowPeer* from, bool backward);
    WindowPeer* DefaultButton() const; // null when no button is the default

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void MakeFrame();
    void PlaceClient();
    WindowPeer* ChildHolding(WindowPeer* peer) const;
    bool MoveInGroup(WindowPeer& from, bool backward);
    bool PressEnter(WindowPeer* focused);
    bool PressMnemonic(WindowPeer* focused, char character);
    void Activate(WindowPeer& labelled);
    void Command(UINT commandId, WindowPeer* button);

    std::optional<ChildFrame> m_frame; // of a dialog inside another window
    QWidget* m_client = nullptr;       // inside the frame; null where there is none
};

// The character behind a text's '&', upper case; 0 when it has none.
char MnemonicOf(const CString& text);

} // namespace platform
