#include "platform/controls/Static.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
