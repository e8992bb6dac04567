// The keys of a dialog: what the focused control leaves to it.
#include "platform/private/peers/DialogPeer.h"

#include <algorithm>
#include <cctype>

namespace platform {

char MnemonicOf(const CString& text) {
    const char* bytes = text;
    for (int i = 0; i + 1 < text.GetLength(); ++i) {
        if (bytes[i] != '&')
            continue;
        if (bytes[i + 1] != '&')
            return static_cast<char>(std::toupper(static_cast<unsigned char>(bytes[i + 1])));
        ++i;
    }
    return 0;
}

namespace {

bool CanFocus(const WindowPeer& peer) {
    return !(peer.DialogCode() & IsStatic) && peer.widget->isEnabled() &&
           peer.widget->isVisibleTo(peer.widget->parentWidget());
}

// The character that a key would type, for mnemonics: the high half of lParam carries it.
char CharacterOf(const MSG& message) {
    const auto character = static_cast<unsigned char>(message.lParam >> 32 & 0xff);
    if (character > ' ')
        return static_cast<char>(std::toupper(character));
    const bool letterOrDigit =
        (message.wParam >= '0' && message.wParam <= '9') || (message.wParam >= 'A' && message.wParam <= 'Z');
    return letterOrDigit ? static_cast<char>(message.wParam) : '\0';
}

} // namespace

bool DialogPeer::HandleKey(const MSG& message) {
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN)
        return false;
    WindowPeer* focused = ChildHolding(message.hwnd);
    const UINT code = focused ? focused->DialogCode() : 0;
    if (message.message == WM_SYSKEYDOWN)
        return PressMnemonic(focused, CharacterOf(message));
    if (code & WantsAllKeys)
        return false;
    const bool control = GetKeyState(VK_CONTROL) < 0;
    switch (message.wParam) {
    case VK_TAB:
        if (control || (code & WantsTab))
            return false;
        FocusNext(focused, GetKeyState(VK_SHIFT) < 0);
        return true;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
        return focused && !(code & WantsArrows) &&
               MoveInGroup(*focused, message.wParam == VK_LEFT || message.wParam == VK_UP);
    case VK_RETURN:
        return !(code & WantsReturn) && PressEnter(focused);
    case VK_ESCAPE:
        Cancel();
        return true;
    default:
        return !control && !(code & WantsCharacters) && PressMnemonic(focused, CharacterOf(message));
    }
}

bool DialogPeer::MoveInGroup(WindowPeer& from, bool backward) {
    const auto at = std::find(children.begin(), children.end(), &from);
    auto first = at;
    while (first != children.begin() && !((*first)->style & WS_GROUP))
        --first;
    auto last = at + 1;
    while (last != children.end() && !((*last)->style & WS_GROUP))
        ++last;
    const auto count = last - first;
    for (auto step = 1; step < count; ++step) {
        const auto offset = ((at - first) + (backward ? -step : step) % count + count) % count;
        WindowPeer* next = *(first + offset);
        if (!CanFocus(*next))
            continue;
        const QPointer<QWidget> alive = next->widget;
        next->FocusByKeyboard();
        if (alive && !next->destroyed && (next->DialogCode() & IsRadioButton))
            next->Click();
        return true;
    }
    return true;
}

void DialogPeer::Command(UINT commandId, WindowPeer* button) {
    if (button && !button->widget->isEnabled())
        return;
    Send(WM_COMMAND, MAKEWPARAM(commandId, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

bool DialogPeer::PressEnter(WindowPeer* focused) {
    // A push button that has the focus is the default while it has it.
    WindowPeer* button = focused && (focused->DialogCode() & IsPushButton) ? focused : DefaultButton();
    if (button)
        Command(button->id, button);
    else
        Command(IDOK, Child(IDOK));
    return true;
}

void DialogPeer::Cancel() {
    Command(IDCANCEL, Child(IDCANCEL));
}

bool DialogPeer::PressMnemonic(WindowPeer* focused, char character) {
    if (!character)
        return false;
    const auto count = children.size();
    const auto at = std::find(children.begin(), children.end(), focused);
    const std::size_t start = at == children.end() ? count - 1 : static_cast<std::size_t>(at - children.begin());
    for (std::size_t step = 1; step <= count; ++step) {
        WindowPeer* candidate = children[(start + step) % count];
        const bool labelled = candidate->DialogCode() & (IsStatic | IsButton);
        if (!labelled || !candidate->widget->isEnabled() || !candidate->widget->isVisibleTo(this) ||
            MnemonicOf(candidate->Text()) != character)
            continue;
        Activate(*candidate);
        return true;
    }
    return false;
}

// A label's mnemonic is the next tab stop's; a button's clicks it.
void DialogPeer::Activate(WindowPeer& labelled) {
    if (labelled.DialogCode() & IsStatic) {
        FocusNext(&labelled, false); // a group of radio buttons at the one that is checked
        return;
    }
    const QPointer<QWidget> alive = labelled.widget;
    labelled.FocusByKeyboard();
    if (alive && !labelled.destroyed)
        labelled.Click();
}

} // namespace platform
