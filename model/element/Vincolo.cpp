#include "model/element/Vincolo.h"

IMPLEMENT_DYNAMIC(CVincolo, CObject)
