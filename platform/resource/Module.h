// Extension modules: shared libraries whose classes the host uses directly and whose resources join the host's chain.
//
// A module exports one function, `extern "C" int QuovarModuleEntry(HINSTANCE, UINT reason)`. It is called once with
// DLL_PROCESS_ATTACH before the host makes any object of the module, and once with DLL_PROCESS_DETACH when the module
// goes; it returns 0 to refuse the start and 1 otherwise. A library's own constructor cannot refuse to be loaded, so
// the loader makes the call.
//
// A host that loads modules by path uses AfxLoadLibrary and AfxFreeLibrary. A host that is linked with the module
// calls AfxAttachLinkedModule(&QuovarModuleEntry) once, at the start of main, ends with an error when that returns
// null, and calls AfxDetachLinkedModule after its last window is gone.
#pragma once

#include "platform/core/Types.h"

namespace platform {
struct ResourceModule;
}

enum : UINT { DLL_PROCESS_DETACH = 0, DLL_PROCESS_ATTACH = 1, DLL_THREAD_ATTACH = 2, DLL_THREAD_DETACH = 3 };

using AFX_MODULE_ENTRY = int (*)(HINSTANCE module, UINT reason);

// Name under which AfxLoadLibrary looks for the function.
inline constexpr const char* AFX_MODULE_ENTRY_NAME = "QuovarModuleEntry";

// State of one module, a static object in it. hModule is null until the module is initialised.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HINSTANCE hModule = nullptr;
    const platform::ResourceModule* pResources = nullptr;
};

// Records the module's handle and resources in its state. 0, and the state untouched, for a null handle, for null
// resources and for a state that is initialised already: a module starts once.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE hModule, const platform::ResourceModule* pResources);

// Releases the module's link objects, which takes its resources out of the chain, and clears the state. Harmless on a
// state that was never initialised.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

// Link between an initialised module and the framework: made with new and left to the framework, which deletes it in
// AfxTermExtensionModule. While it lives the module's resources stand in the chain, after all that came before it.
// Run-time classes need no entry: they are known by address and are unique in the process.
class CDynLinkLibrary {
  public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

    HINSTANCE m_hModule; // null when the state was not initialised; the link is then without effect
};

// Loads a module and starts it. Null when the file cannot be loaded, exports no entry or refuses to start; the library
// is closed again then and the chain is as it was. Loading a loaded module counts and starts nothing.
HINSTANCE AfxLoadLibrary(LPCTSTR pszModulePath);

// Takes back one AfxLoadLibrary; the last one detaches the module and closes it. 0 for an unknown handle.
BOOL AfxFreeLibrary(HINSTANCE hModule);

// Starts a module that the program is linked with. Null when it refuses; its handle otherwise, also when it had been
// started before.
HINSTANCE AfxAttachLinkedModule(AFX_MODULE_ENTRY entry);

// Ends what AfxAttachLinkedModule started. 0 when it was not started.
BOOL AfxDetachLinkedModule(AFX_MODULE_ENTRY entry);

// Why the last AfxLoadLibrary returned null, in the words of the system's loader or of this one; "" after success.
// Valid until the next load.
LPCTSTR AfxGetLoadError();
