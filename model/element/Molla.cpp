#include "model/element/Molla.h"

IMPLEMENT_DYNAMIC(CMolla, CObject)
