// What the commands on the selection do alike.
#pragma once

#include "dialogs/frame/common/CommandUndo.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarSelection.h"

// The join kind of a group of radio buttons in the order beams, truss members, nothing; no button joins nothing.
int JoinKind(int radio);

// False, after telling the user, for no copies at all. Negative counts pass: they make no copy.
bool AcceptCopies(int copies);
