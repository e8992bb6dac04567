// The keys of a dialog: what the focused control leaves to it.
#include "platform/private/DialogPeer.h"

#include <algorithm>
#include <cctype>

namespace platform {

char mnemonicOf(const CString& text) {
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

bool canFocus(const WindowPeer& peer) {
    return !(peer.dialogCode() & IsStatic) && peer.widget->isEnabled() &&
           peer.widget->isVisibleTo(peer.widget->parentWidget());
}

// The character that a key would type, for mnemonics: the high half of lParam carries it.
char characterOf(const MSG& message) {
    const auto character = static_cast<unsigned char>(message.lParam >> 32 & 0xff);
    if (character > ' ')
        return static_cast<char>(std::toupper(character));
    const bool letterOrDigit =
        (message.wParam >= '0' && message.wParam <= '9') || (message.wParam >= 'A' && message.wParam <= 'Z');
    return letterOrDigit ? static_cast<char>(message.wParam) : '\0';
}

} // namespace

bool DialogPeer::handleKey(const MSG& message) {
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN)
        return false;
    WindowPeer* focused = childHolding(message.hwnd);
    const UINT code = focused ? focused->dialogCode() : 0;
    if (message.message == WM_SYSKEYDOWN)
        return pressMnemonic(focused, characterOf(message));
    if (code & WantsAllKeys)
        return false;
    const bool control = GetKeyState(VK_CONTROL) < 0;
    switch (message.wParam) {
    case VK_TAB:
        if (control || (code & WantsTab))
            return false;
        focusNext(focused, GetKeyState(VK_SHIFT) < 0);
        return true;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
        return focused && !(code & WantsArrows) &&
               moveInGroup(*focused, message.wParam == VK_LEFT || message.wParam == VK_UP);
    case VK_RETURN:
        return !(code & WantsReturn) && pressEnter(focused);
    case VK_ESCAPE:
        cancel();
        return true;
    default:
        return !control && !(code & WantsCharacters) && pressMnemonic(focused, characterOf(message));
    }
}

bool DialogPeer::moveInGroup(WindowPeer& from, bool backward) {
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
        if (!canFocus(*next))
            continue;
        const QPointer<QWidget> alive = next->widget;
        next->focusByKeyboard();
        if (alive && !next->destroyed && (next->dialogCode() & IsRadioButton))
            next->click();
        return true;
    }
    return true;
}

void DialogPeer::command(UINT commandId, WindowPeer* button) {
    if (button && !button->widget->isEnabled())
        return;
    send(WM_COMMAND, MAKEWPARAM(commandId, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

bool DialogPeer::pressEnter(WindowPeer* focused) {
    // A push button that has the focus is the default while it has it.
    WindowPeer* button = focused && (focused->dialogCode() & IsPushButton) ? focused : defaultButton();
    if (button)
        command(button->id, button);
    else
        command(IDOK, child(IDOK));
    return true;
}

void DialogPeer::cancel() {
    command(IDCANCEL, child(IDCANCEL));
}

bool DialogPeer::pressMnemonic(WindowPeer* focused, char character) {
    if (!character)
        return false;
    const auto count = children.size();
    const auto at = std::find(children.begin(), children.end(), focused);
    const std::size_t start = at == children.end() ? count - 1 : static_cast<std::size_t>(at - children.begin());
    for (std::size_t step = 1; step <= count; ++step) {
        WindowPeer* candidate = children[(start + step) % count];
        const bool labelled = candidate->dialogCode() & (IsStatic | IsButton);
        if (!labelled || !candidate->widget->isEnabled() || !candidate->widget->isVisibleTo(this) ||
            mnemonicOf(candidate->text()) != character)
            continue;
        activate(*candidate);
        return true;
    }
    return false;
}

// A label's mnemonic is the next tab stop's; a button's clicks it.
void DialogPeer::activate(WindowPeer& labelled) {
    if (labelled.dialogCode() & IsStatic) {
        focusNext(&labelled, false); // a group of radio buttons at the one that is checked
        return;
    }
    const QPointer<QWidget> alive = labelled.widget;
    labelled.focusByKeyboard();
    if (alive && !labelled.destroyed)
        labelled.click();
}

} // namespace platform
