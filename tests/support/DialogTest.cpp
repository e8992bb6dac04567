#include "tests/support/DialogTest.h"

#include "dialogs/frame/Module.h"
#include "platform/resource/Module.h"

void AttachDialogModule() {
    // Harmless when the module is started already; a test of its own may have ended it.
    ASSERT_TRUE(AfxAttachLinkedModule(&QuovarModuleEntry)) << "the dialog module does not start";
}
