// The window of a dialog: its controls from the template, its keys.
#pragma once

#include "platform/Resource.h"
#include "platform/private/Hosted.h"

namespace platform {

class DialogPeer final : public Hosted<QWidget> {
  public:
    // `owner` may be null; the dialog then stands alone.
    DialogPeer(const DialogTemplate& source, WindowPeer* owner, bool modal);

    void addControls(const DialogTemplate& source);
    void open(); // shows it over its owner and makes it active
    void focusFirst();

    // True when the key was the dialog's: Tab, arrows in a group, Enter, Escape, a mnemonic.
    bool handleKey(const MSG& message);
    void cancel(); // IDCANCEL, unless its button is disabled

    WindowPeer* nextTabStop(WindowPeer* from, bool backward); // null when there is no tab stop
    void focusNext(WindowPeer* from, bool backward);
    WindowPeer* defaultButton() const; // null when no button is the default
    void setDefaultButton(UINT buttonId);

  private:
    WindowPeer* childHolding(WindowPeer* peer) const;
    bool moveInGroup(WindowPeer& from, bool backward);
    bool pressEnter(WindowPeer* focused);
    bool pressMnemonic(WindowPeer* focused, char character);
    void activate(WindowPeer& labelled);
    void command(UINT commandId, WindowPeer* button);
};

// The character behind a text's '&', upper case; 0 when it has none.
char mnemonicOf(const CString& text);

} // namespace platform
