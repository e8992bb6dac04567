// What a user reads about an object.
#pragma once

#include "platform/core/String.h"

class CElemento;

namespace host {

// Lines of text, in Italian: what the object is, and what is assigned to it.
CString PropertiesOf(CElemento& element);

} // namespace host
