// The underlined letters of the menus.
#pragma once

class QMenu;

namespace host {

// Gives each command without a mnemonic, in the menu and those below it, a letter that no other command of its menu
// has, as far as there are letters.
void GiveMnemonics(QMenu& menu);

} // namespace host
