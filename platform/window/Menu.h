// Menus, loaded from the resources and tracked as pop-ups.
#pragma once

#include "platform/core/String.h"
#include "platform/window/Window.h"

#include <functional>
#include <memory>

// A loaded menu on its way into a CMenu, which takes it over; who loads it attaches it.
using HMENU = platform::MenuData*;

enum : UINT {
    MF_BYCOMMAND = 0,
    MF_BYPOSITION = 0x400,
    MF_SEPARATOR = 0x800,
    MF_ENABLED = 0,
    MF_GRAYED = 1,
    MF_DISABLED = 2,
    MF_UNCHECKED = 0,
    MF_CHECKED = 8,
    MF_POPUP = 0x10,
    MF_STRING = 0,
};
enum : UINT {
    TPM_LEFTBUTTON = 0,
    TPM_RIGHTBUTTON = 2,
    TPM_LEFTALIGN = 0,
};

class CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)
  public:
    CMenu();
    ~CMenu() override;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    HMENU GetSafeHmenu() const { return m_menu.get(); } // null while there is no menu
    BOOL Attach(HMENU menu);                            // takes it over

    BOOL LoadMenu(UINT id);                // along the resource chain; 0 when no module has it
    CMenu* GetSubMenu(int position) const; // owned by this menu; null for an item that opens none

    // Items by position with MF_BYPOSITION, else by command, in the pop-ups as well. Missing items give -1.
    UINT CheckMenuItem(UINT item, UINT flags);  // the old check
    UINT EnableMenuItem(UINT item, UINT flags); // the old state
    UINT GetMenuState(UINT item, UINT flags) const;
    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int position) const; // 0 for separators, -1 for pop-ups
    int GetMenuString(UINT item, CString& text, UINT flags) const;

    // Shows the menu at a screen point and waits for the user. The window gets the WM_COMMAND once the menu is gone; 0
    // when the user chose nothing.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* window, const CRect* rect = nullptr);

  private:
    std::unique_ptr<platform::MenuData> m_menu;
};

// Null when the module has no such menu; the caller owns the result.
HMENU LoadMenu(HINSTANCE module, UINT id);

namespace platform {

// Stands for the user of a tracked menu while it is set, for programs that run without one. Returns the command chosen,
// 0 for none; a disabled item cannot be chosen.
extern std::function<UINT(CMenu& menu, CWnd* window)> popupMenuHook;

} // namespace platform
