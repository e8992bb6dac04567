#include "dialogs/frame/Module.h"

#include "platform/resource/Module.h"
#include "platform/resource/Resource.h"

namespace resources {
extern const platform::ResourceModule Quovar_Dialogs; // compiled from dialogs/resources
}

namespace {
AFX_EXTENSION_MODULE g_module;
}

extern "C" int QuovarModuleEntry(HINSTANCE module, UINT reason) {
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(g_module, module, &resources::Quovar_Dialogs))
            return 0;
        new CDynLinkLibrary(g_module); // the framework's from here on
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_module);
    }
    return 1;
}
