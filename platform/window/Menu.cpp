#include "platform/window/Menu.h"

#include "platform/private/peers/MenuData.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/resource/Resource.h"

#include <QMenu>

#include <algorithm>
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

UINT ShowPopup(const MenuData& menu, UINT flags, int x, int y, QWidget* parent) {
    QMenu shown(parent);
    Fill(shown, menu);
    QPoint at(x, y);
    if (flags & TPM_RIGHTALIGN)
        at.rx() -= shown.sizeHint().width();
    else if (flags & TPM_CENTERALIGN)
        at.rx() -= shown.sizeHint().width() / 2;
    const QAction* chosen = shown.exec(at);
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

HMENU CMenu::Detach() {
    return m_menu.release();
}

BOOL CMenu::CreateMenu() {
    if (m_menu)
        return FALSE;
    m_menu = std::make_unique<MenuData>();
    return TRUE;
}

BOOL CMenu::DestroyMenu() {
    const bool had = m_menu != nullptr;
    m_menu.reset();
    return had;
}

BOOL CMenu::LoadMenu(UINT id) {
    return Attach(Load(m_menu ? nullptr : platform::FindMenu(static_cast<int>(id))));
}

BOOL CMenu::LoadMenu(HINSTANCE module, UINT id) {
    return Attach(m_menu ? nullptr : ::LoadMenu(module, id));
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, LPCTSTR text) {
    return m_menu && InsertMenu(GetMenuItemCount(), flags | MF_BYPOSITION, id, text);
}

BOOL CMenu::InsertMenu(UINT position, UINT flags, UINT_PTR id, LPCTSTR text) {
    if (!m_menu || (flags & MF_POPUP))
        return FALSE;
    std::vector<MenuData::Item>& items = m_menu->items;
    const auto place = (flags & MF_BYPOSITION)
                           ? items.begin() + std::min<std::ptrdiff_t>(position, std::ssize(items))
                           : std::find_if(items.begin(), items.end(), [position](const MenuData::Item& item) {
                                 return !item.popup && item.id == position;
                             });
    MenuData::Item added;
    added.id = static_cast<UINT>(id);
    added.text = text;
    added.flags = flags & (MF_SEPARATOR | MF_GRAYED | MF_DISABLED | MF_CHECKED);
    items.insert(place, std::move(added));
    return TRUE;
}

BOOL CMenu::AppendPopup(CMenu& popup, LPCTSTR text) {
    if (!m_menu || !popup.m_menu || &popup == this)
        return FALSE;
    MenuData::Item item;
    item.text = text;
    item.flags = MF_POPUP;
    item.popup = std::make_unique<CMenu>();
    item.popup->m_menu = std::move(popup.m_menu);
    m_menu->items.push_back(std::move(item));
    return TRUE;
}

BOOL CMenu::DeleteMenu(UINT position, UINT flags) {
    const MenuData::Item* gone = FindItem(m_menu.get(), position, flags);
    if (!gone)
        return FALSE;
    const auto erasedFrom = [gone](MenuData& menu) {
        return std::erase_if(menu.items, [gone](const MenuData::Item& item) { return &item == gone; }) > 0;
    };
    if (erasedFrom(*m_menu))
        return TRUE;
    for (const MenuData::Item& item : m_menu->items) // a command inside one of the pop-ups
        if (item.popup && item.popup->DeleteMenu(position, flags))
            return TRUE;
    return FALSE;
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

BOOL CMenu::ModifyMenu(UINT item, UINT flags, UINT_PTR id, LPCTSTR text) {
    MenuData::Item* found = FindItem(m_menu.get(), item, flags);
    if (!found || found->popup)
        return FALSE;
    found->id = static_cast<UINT>(id);
    found->text = text;
    found->flags = flags & (MF_SEPARATOR | MF_GRAYED | MF_DISABLED | MF_CHECKED);
    return TRUE;
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* window, const CRect*) {
    if (!m_menu)
        return FALSE;
    // The window, and its object with it, may go while the menu is up.
    const QPointer<QWidget> widget = window && window->m_hWnd ? window->m_hWnd->widget : nullptr;
    UINT chosen =
        platform::popupMenuHook ? platform::popupMenuHook(*this, window) : ShowPopup(*m_menu, flags, x, y, widget);
    const MenuData::Item* item = chosen && m_menu ? FindCommand(*m_menu, chosen) : nullptr;
    if (!item || IsDisabled(*item))
        chosen = 0;
    if (flags & TPM_RETURNCMD)
        return static_cast<BOOL>(chosen);
    platform::WindowPeer* target = platform::PeerOf(widget);
    if (chosen && target && !target->destroyed && !(flags & TPM_NONOTIFY))
        target->Send(WM_COMMAND, MAKEWPARAM(chosen, 0));
    return chosen != 0;
}

HMENU LoadMenu(HINSTANCE module, UINT id) {
    return Load(platform::FindMenu(module, static_cast<int>(id)));
}

BOOL DestroyMenu(HMENU menu) {
    const std::unique_ptr<MenuData> owned(menu);
    return owned != nullptr;
}
