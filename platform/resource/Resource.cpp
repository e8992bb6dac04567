#include "platform/resource/Resource.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <unordered_map>
#include <vector>

namespace platform {
namespace {

template <class Resource>
class Index {
  public:
    explicit Index(std::span<const Resource> resources) {
        m_entries.reserve(resources.size());
        // The first of two equal numbers counts, as it would in a search from the start.
        for (const Resource& resource : resources)
            m_entries.emplace(resource.id, &resource);
    }

    const Resource* Find(int id) const {
        const auto found = m_entries.find(id);
        return found == m_entries.end() ? nullptr : found->second;
    }

  private:
    std::unordered_map<int, const Resource*> m_entries;
};

// One module's resources with an index for each kind.
struct Link {
    Link(HINSTANCE instance, const ResourceModule& resources)
        : handle(instance),
          module(&resources),
          dialogs(resources.dialogs),
          menus(resources.menus),
          bitmaps(resources.bitmaps),
          icons(resources.icons) {}

    bool Has(int id, ResourceType type) const {
        switch (type) {
        case ResourceType::Menu:
            return menus.Find(id) != nullptr;
        case ResourceType::Dialog:
            return dialogs.Find(id) != nullptr;
        case ResourceType::Bitmap:
            return bitmaps.Find(id) != nullptr;
        case ResourceType::GroupIcon:
            return icons.Find(id) != nullptr;
        }
        return false;
    }

    HINSTANCE handle;
    const ResourceModule* module;
    Index<DialogTemplate> dialogs;
    Index<MenuTemplate> menus;
    Index<BitmapResource> bitmaps;
    Index<BitmapResource> icons;
};

const char hostAnchor = 0;

// The host's link, when there is one, stands first.
std::vector<Link>& Chain() {
    static std::vector<Link> chain;
    return chain;
}

template <class Resource>
const Resource* FindAlong(Index<Resource> Link::*index, int id) {
    for (const Link& link : Chain())
        if (const Resource* found = (link.*index).Find(id))
            return found;
    return nullptr;
}

template <class Resource>
const Resource* FindIn(HINSTANCE handle, Index<Resource> Link::*index, int id) {
    for (const Link& link : Chain())
        if (link.handle == handle)
            if (const Resource* found = (link.*index).Find(id))
                return found;
    return nullptr;
}

std::string BareName(std::string name) {
    if (const auto slash = name.find_last_of("/\\"); slash != std::string::npos)
        name.erase(0, slash + 1);
    if (const auto dot = name.find('.'); dot != std::string::npos)
        name.erase(dot);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (name.starts_with("lib"))
        name.erase(0, 3);
    return name;
}

} // namespace

HINSTANCE HostInstance() {
    return &hostAnchor;
}

void SetHostResources(const ResourceModule* resources) {
    RemoveResources(HostInstance());
    if (resources)
        Chain().emplace(Chain().begin(), HostInstance(), *resources);
}

void AppendResources(HINSTANCE handle, const ResourceModule* resources) {
    if (!resources)
        return;
    const auto same = [&](const Link& link) { return link.handle == handle && link.module == resources; };
    if (std::ranges::none_of(Chain(), same))
        Chain().emplace_back(handle, *resources);
}

void RemoveResources(HINSTANCE handle) {
    std::erase_if(Chain(), [handle](const Link& link) { return link.handle == handle; });
}

const DialogTemplate* FindDialogTemplate(int id) {
    return FindAlong(&Link::dialogs, id);
}

const MenuTemplate* FindMenu(int id) {
    return FindAlong(&Link::menus, id);
}

const BitmapResource* FindBitmap(int id) {
    return FindAlong(&Link::bitmaps, id);
}

const BitmapResource* FindIcon(int id) {
    return FindAlong(&Link::icons, id);
}

const DialogTemplate* FindDialogTemplate(HINSTANCE handle, int id) {
    return FindIn(handle, &Link::dialogs, id);
}

const MenuTemplate* FindMenu(HINSTANCE handle, int id) {
    return FindIn(handle, &Link::menus, id);
}

const BitmapResource* FindBitmap(HINSTANCE handle, int id) {
    return FindIn(handle, &Link::bitmaps, id);
}

const BitmapResource* FindIcon(HINSTANCE handle, int id) {
    return FindIn(handle, &Link::icons, id);
}

HINSTANCE FindModuleHandle(const char* fileName) {
    const std::string wanted = BareName(fileName ? fileName : "");
    for (const Link& link : Chain())
        if (link.module->name && BareName(link.module->name) == wanted)
            return link.handle;
    return nullptr;
}

} // namespace platform

HINSTANCE AfxFindResourceHandle(int id, platform::ResourceType type) {
    for (const platform::Link& link : platform::Chain())
        if (link.Has(id, type))
            return link.handle;
    return platform::HostInstance();
}

HINSTANCE GetModuleHandle(const char* fileName) {
    return fileName ? platform::FindModuleHandle(fileName) : platform::HostInstance();
}
