#include "platform/window/Menu.h"

#include "platform/private/peers/MenuData.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/resource/Resource.h"

#include <QMenu>

#include <utility>
#include <vector>

IMPLEMENT_DYNAMIC(CMenu, CObject)

namespace platform {

std::function<UINT(CMenu& menu, CWnd* window)> popupMenuHook;

} // namespace platform

namespace {

using platform::MenuData;
using platform::MenuItemTemplate;

constexpr UINT missing = static_cast<UINT>(-1);

// Reads `count` items at one depth from the list, where each pop-up is followed by its own.
std::unique_ptr<MenuData> ReadItems(std::span<const MenuItemTemplate> list, std::size_t& at, int count) {
    auto menu = std::make_unique<MenuData>();
    for (; count > 0 && at < list.size(); --count) {
        const MenuItemTemplate& source = list[at++];
        MenuData::Item item;
        item.id = static_cast<UINT>(source.id);
        item.text = source.text;
        item.flags = (source.separator ? MF_SEPARATOR : 0u) | (source.grayed ? MF_GRAYED : 0u) |
                     (source.checked ? MF_CHECKED : 0u) | (source.popup ? MF_POPUP : 0u);
        if (source.popup) {
            item.popup = std::make_unique<CMenu>();
            item.popup->Attach(ReadItems(list, at, source.childCount).release());
        }
        menu->items.push_back(std::move(item));
    }
    return menu;
}

HMENU Load(const platform::MenuTemplate* source) {
    if (!source)
        return nullptr;
    std::size_t at = 0;
    return ReadItems(source->items, at, source->itemCount).release();
}

MenuData::Item* FindCommand(MenuData& menu, UINT id) {
    for (MenuData::Item& item : menu.items) {
        if (!item.popup && !(item.flags & MF_SEPARATOR) && item.id == id)
            return &item;
        if (item.popup && item.popup->GetSafeHmenu())
            if (MenuData::Item* found = FindCommand(*item.popup->GetSafeHmenu(), id))
                return found;
    }
    return nullptr;
}

MenuData::Item* FindItem(MenuData* menu, UINT item, UINT flags) {
    if (!menu)
        return nullptr;
    if (!(flags & MF_BYPOSITION))
        return FindCommand(*menu, item);
    return item < menu->items.size() ? &menu->items[item] : nullptr;
}

bool IsDisabled(const MenuData::Item& item) {
    return item.flags & (MF_GRAYED | MF_DISABLED);
}

void Fill(QMenu& shown, const MenuData& menu) {
    for (const MenuData::Item& item : menu.items) {
        if (item.flags & MF_SEPARATOR) {
            shown.addSeparator();
            continue;
        }
        const QString text = platform::ToQString(item.text);
        if (item.popup && item.popup->GetSafeHmenu()) {
            QMenu* nested = shown.addMenu(text);
            nested->setEnabled(!IsDisabled(item));
            Fill(*nested, *item.popup->GetSafeHmenu());
            continue;
        }
        QAction* action = shown.addAction(text);
        action->setEnabled(!IsDisabled(item));
        action->setCheckable(item.flags & MF_CHECKED);
        action->setChecked(item.flags & MF_CHECKED);
        action->setData(item.id);
    }
}

UINT ShowPopup(const MenuData& menu, int x, int y, QWidget* parent) {
    QMenu shown(parent);
    Fill(shown, menu);
    const QAction* chosen = shown.exec(QPoint(x, y));
    return chosen ? chosen->data().toUInt() : 0;
}

} // namespace

CMenu::CMenu() = default;
CMenu::~CMenu() = default;

BOOL CMenu::Attach(HMENU menu) {
    if (!menu || m_menu)
        return FALSE;
    m_menu.reset(menu);
    return TRUE;
}

BOOL CMenu::LoadMenu(UINT id) {
    return Attach(Load(m_menu ? nullptr : platform::FindMenu(static_cast<int>(id))));
}

CMenu* CMenu::GetSubMenu(int position) const {
    const MenuData::Item* item = FindItem(m_menu.get(), static_cast<UINT>(position), MF_BYPOSITION);
    return item ? item->popup.get() : nullptr;
}

UINT CMenu::CheckMenuItem(UINT item, UINT flags) {
    MenuData::Item* found = FindItem(m_menu.get(), item, flags);
    if (!found)
        return missing;
    const UINT former = found->flags & MF_CHECKED;
    found->flags = (found->flags & ~UINT{MF_CHECKED}) | (flags & MF_CHECKED);
    return former;
}

UINT CMenu::EnableMenuItem(UINT item, UINT flags) {
    MenuData::Item* found = FindItem(m_menu.get(), item, flags);
    if (!found)
        return missing;
    constexpr UINT mask = MF_GRAYED | MF_DISABLED;
    const UINT former = found->flags & mask;
    found->flags = (found->flags & ~mask) | (flags & mask);
    return former;
}

UINT CMenu::GetMenuState(UINT item, UINT flags) const {
    const MenuData::Item* found = FindItem(m_menu.get(), item, flags);
    return found ? found->flags : missing;
}

UINT CMenu::GetMenuItemCount() const {
    return m_menu ? static_cast<UINT>(m_menu->items.size()) : missing;
}

UINT CMenu::GetMenuItemID(int position) const {
    const MenuData::Item* found = FindItem(m_menu.get(), static_cast<UINT>(position), MF_BYPOSITION);
    return !found || found->popup ? missing : found->id;
}

int CMenu::GetMenuString(UINT item, CString& text, UINT flags) const {
    const MenuData::Item* found = FindItem(m_menu.get(), item, flags);
    text = found ? found->text : CString();
    return text.GetLength();
}

BOOL CMenu::TrackPopupMenu(UINT, int x, int y, CWnd* window, const CRect*) {
    if (!m_menu)
        return FALSE;
    // The window, and its object with it, may go while the menu is up.
    const QPointer<QWidget> widget = window && window->m_hWnd ? window->m_hWnd->widget : nullptr;
    UINT chosen = platform::popupMenuHook ? platform::popupMenuHook(*this, window) : ShowPopup(*m_menu, x, y, widget);
    const MenuData::Item* item = chosen && m_menu ? FindCommand(*m_menu, chosen) : nullptr;
    if (!item || IsDisabled(*item))
        chosen = 0;
    platform::WindowPeer* target = platform::PeerOf(widget);
    if (chosen && target && !target->destroyed)
        target->Send(WM_COMMAND, MAKEWPARAM(chosen, 0));
    return chosen != 0;
}

HMENU LoadMenu(HINSTANCE module, UINT id) {
    return Load(platform::FindMenu(module, static_cast<int>(id)));
}
