#include "model/element/Specifiche.h"

IMPLEMENT_DYNAMIC(CSpecifiche, CObject)
IMPLEMENT_DYNCREATE(CSpecificheSvincoliTrave, CSpecifiche)
