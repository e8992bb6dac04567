#include "host/files/Version.h"

namespace host {

const char* const applicationVersion = QUOVAR_VERSION;

} // namespace host
