// The keys that the application takes from a tool dialog, after the dialog and its control have had no use for them:
// function keys, Ctrl+S, Ctrl+Z, Ctrl+Y and Ctrl+1 to Ctrl+4, without other modifiers. None else: a letter, Delete,
// Space, Enter, Escape, an arrow, Ctrl+A or the keys of the clipboard mean what has the focus.
#pragma once

#include <QKeySequence>

struct MSG;

namespace host {

QKeySequence SharedKey(const MSG& message); // empty for one that stays the dialog's

} // namespace host
