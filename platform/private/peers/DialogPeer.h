// The window of a dialog: its controls from the template, its keys.
#pragma once

#include "platform/private/peers/Hosted.h"
#include "platform/resource/Resource.h"

namespace platform {

class DialogPeer final : public Hosted<QWidget> {
  public:
    // `owner` may be null; the dialog then stands alone.
    DialogPeer(const DialogTemplate& source, WindowPeer* owner, bool modal);

    void AddControls(const DialogTemplate& source);
    void Open(); // shows it over its owner and makes it active
    void FocusFirst();

    // True when the key was the dialog's: Tab, arrows in a group, Enter, Escape, a mnemonic.
    bool HandleKey(const MSG& message);
    void Cancel(); // IDCANCEL, unless its button is disabled

    WindowPeer* NextTabStop(WindowPeer* from, bool backward); // null when there is no tab stop
    void FocusNext(WindowPeer* from, bool backward);
    WindowPeer* DefaultButton() const; // null when no button is the default
    void SetDefaultButton(UINT buttonId);

  private:
    WindowPeer* ChildHolding(WindowPeer* peer) const;
    bool MoveInGroup(WindowPeer& from, bool backward);
    bool PressEnter(WindowPeer* focused);
    bool PressMnemonic(WindowPeer* focused, char character);
    void Activate(WindowPeer& labelled);
    void Command(UINT commandId, WindowPeer* button);
};

// The character behind a text's '&', upper case; 0 when it has none.
char MnemonicOf(const CString& text);

} // namespace platform
