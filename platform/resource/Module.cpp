#include "platform/resource/Module.h"

#include "platform/resource/Resource.h"

#include <algorithm>
#include <dlfcn.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace platform {
namespace {

// Links that the framework owns, in the order in which they were made. Those of modules that nobody ended go with the
// process.
struct LinkList {
    // The resource chain is made first: it must still stand when the last links leave it.
    LinkList() { RemoveResources(nullptr); }
    ~LinkList() {
        while (!links.empty())
            delete links.back(); // takes itself out
    }
    LinkList(const LinkList&) = delete;
    LinkList& operator=(const LinkList&) = delete;

    std::vector<CDynLinkLibrary*> links;
};

std::vector<CDynLinkLibrary*>& Links() {
    static LinkList list;
    return list.links;
}

// Deletes the links of a module. Each takes itself out of the list, so the search starts anew after every one.
void ReleaseLinks(HINSTANCE module) {
    const auto next = [module] {
        return std::ranges::find(Links(), module, [](const CDynLinkLibrary* link) { return link->m_hModule; });
    };
    for (auto found = next(); found != Links().end(); found = next())
        delete *found;
}

// Calls the entry; a refused start leaves nothing of the module behind.
bool Start(AFX_MODULE_ENTRY entry, HINSTANCE module) {
    if (entry(module, DLL_PROCESS_ATTACH) != 0)
        return true;
    ReleaseLinks(module);
    return false;
}

struct Library {
    int uses;
    AFX_MODULE_ENTRY entry;
};

class Loader {
  public:
    HINSTANCE Load(const char* path) {
        m_error.clear();
        if (!*path) // to the system's loader an empty name is the program itself
            return Fail("no module named");
        void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
        if (!library)
            return Fail(dlerror());
        if (const auto known = m_libraries.find(library); known != m_libraries.end()) {
            ++known->second.uses;
            dlclose(library); // the first load holds it
            return library;
        }
        const auto entry = reinterpret_cast<AFX_MODULE_ENTRY>(dlsym(library, AFX_MODULE_ENTRY_NAME));
        if (!entry || !Start(entry, library)) {
            dlclose(library);
            return Fail(std::string(path) + (entry ? ": the module refused to start" : ": not a module"));
        }
        m_libraries[library] = {1, entry};
        return library;
    }

    BOOL Free(HINSTANCE module) {
        const auto known = m_libraries.find(const_cast<void*>(module));
        if (known == m_libraries.end())
            return FALSE;
        if (--known->second.uses > 0)
            return TRUE;
        known->second.entry(module, DLL_PROCESS_DETACH);
        // A module that forgot its own part must not leave links into unmapped memory.
        ReleaseLinks(module);
        dlclose(known->first);
        m_libraries.erase(known);
        return TRUE;
    }

    HINSTANCE Attach(AFX_MODULE_ENTRY entry) {
        const HINSTANCE module = reinterpret_cast<HINSTANCE>(entry);
        if (std::ranges::find(m_linked, entry) != m_linked.end())
            return module;
        if (!entry || !Start(entry, module))
            return nullptr;
        m_linked.push_back(entry);
        return module;
    }

    BOOL Detach(AFX_MODULE_ENTRY entry) {
        const auto known = std::ranges::find(m_linked, entry);
        if (known == m_linked.end())
            return FALSE;
        m_linked.erase(known);
        entry(reinterpret_cast<HINSTANCE>(entry), DLL_PROCESS_DETACH);
        ReleaseLinks(reinterpret_cast<HINSTANCE>(entry));
        return TRUE;
    }

    const char* Error() const { return m_error.c_str(); }

  private:
    HINSTANCE Fail(std::string error) {
        m_error = std::move(error);
        return nullptr;
    }

    std::map<void*, Library> m_libraries;
    std::vector<AFX_MODULE_ENTRY> m_linked;
    std::string m_error;
};

Loader& TheLoader() {
    static Loader loader;
    return loader;
}

} // namespace
} // namespace platform

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE hModule,
                            const platform::ResourceModule* pResources) {
    if (state.bInitialized || !hModule || !pResources)
        return FALSE;
    state = {TRUE, hModule, pResources};
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state) {
    if (!state.bInitialized)
        return;
    platform::ReleaseLinks(state.hModule);
    state = {};
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state) : m_hModule(state.hModule) {
    if (!m_hModule)
        return;
    platform::Links().push_back(this);
    platform::AppendResources(m_hModule, state.pResources);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    if (!m_hModule)
        return;
    std::erase(platform::Links(), this);
    const auto sameModule = [this](const CDynLinkLibrary* link) { return link->m_hModule == m_hModule; };
    if (std::ranges::none_of(platform::Links(), sameModule))
        platform::RemoveResources(m_hModule);
}

HINSTANCE AfxLoadLibrary(LPCTSTR pszModulePath) {
    return platform::TheLoader().Load(pszModulePath ? pszModulePath : "");
}

BOOL AfxFreeLibrary(HINSTANCE hModule) {
    return platform::TheLoader().Free(hModule);
}

HINSTANCE AfxAttachLinkedModule(AFX_MODULE_ENTRY entry) {
    return platform::TheLoader().Attach(entry);
}

BOOL AfxDetachLinkedModule(AFX_MODULE_ENTRY entry) {
    return platform::TheLoader().Detach(entry);
}

LPCTSTR AfxGetLoadError() {
    return platform::TheLoader().Error();
}
