// Start-up of the dialog library.
#pragma once

#include "platform/core/Types.h"

// Entry of the module, called by the framework's loader, or through AfxAttachLinkedModule by a program that is linked
// with the library. On attach it puts the dialogs, menus and pictures into the resource chain; 0 only when that fails.
extern "C" int QuovarModuleEntry(HINSTANCE module, UINT reason);
