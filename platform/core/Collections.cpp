#include "platform/core/Collections.h"

IMPLEMENT_DYNCREATE(CObArray, CObject)
IMPLEMENT_DYNCREATE(CStringArray, CObject)
IMPLEMENT_DYNCREATE(CUIntArray, CObject)
IMPLEMENT_DYNCREATE(CObList, CObject)
