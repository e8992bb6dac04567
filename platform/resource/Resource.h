// Dialog templates, menus and pictures as constant data, and the chain in which they are found by number: the host's
// own resources first, then the modules' in the order in which they were loaded.
//
// Tables are compiled from resource scripts and live as long as the program or module that holds them; the chain only
// points at them. Everything here runs on the user-interface thread.
#pragma once

#include "platform/core/Types.h"

#include <span>

namespace platform {

struct ControlTemplate {
    enum class Kind { Button, Edit, Static, ListBox, ComboBox, Custom };

    Kind kind;
    const char* className; // window class; says what a Custom control is, for example "msctls_updown32"
    const char* text;      // Windows-1252, with '&' before the mnemonic; never null
    int id;                // -1 for a control that no code addresses
    int x, y, cx, cy;      // dialog units, relative to the dialog's client area
    DWORD style, exStyle;
    int image; // number of the bitmap or icon that a picture static shows, 0 for none
};

struct DialogTemplate {
    int id;
    int x, y, cx, cy;    // dialog units; the size is the client area's
    const char* caption; // Windows-1252, never null
    DWORD style, exStyle;
    const char* fontFace; // never null, "" for the default dialog font
    int fontPoints;       // whole points, 0 for the default
    int menu;             // number of the menu bar, 0 for none
    std::span<const ControlTemplate> controls;
};

struct MenuItemTemplate {
    int id;           // command number; 0 for separators and pop-ups
    const char* text; // Windows-1252, a tab before the short cut; never null
    bool separator;
    bool popup;     // the next `childCount` entries at the next depth are its items
    int childCount; // direct items of a pop-up
    bool grayed;
    bool checked;
};

// The items stand in one list, depth first: a pop-up is followed by its items, and those by their own.
struct MenuTemplate {
    int id;
    int itemCount; // items at the top
    std::span<const MenuItemTemplate> items;
};

struct BitmapResource {
    int id;
    std::span<const unsigned char> svg; // the whole picture file, UTF-8
};

struct ResourceModule {
    const char* name; // file name of the module without "lib" and extension
    std::span<const DialogTemplate> dialogs;
    std::span<const MenuTemplate> menus;
    std::span<const BitmapResource> bitmaps;
    std::span<const BitmapResource> icons;
};

enum class ResourceType { Menu, Dialog, Bitmap, GroupIcon };

// Puts the host's own resources at the head of the chain in place of what was there; null takes them out. The tables
// are not copied.
void SetHostResources(const ResourceModule* resources);

// Appends a module's resources to the chain, found from then on under `handle`. Tables that are already in the chain
// under this handle stay once.
void AppendResources(HINSTANCE handle, const ResourceModule* resources);

// Takes everything that was appended under `handle` out of the chain; harmless when there is nothing.
void RemoveResources(HINSTANCE handle);

// First resource of that number along the chain; null when no module has it. Average constant time for each module.
const DialogTemplate* FindDialogTemplate(int id);
const MenuTemplate* FindMenu(int id);
const BitmapResource* FindBitmap(int id);
const BitmapResource* FindIcon(int id);

// The same inside the one module that `handle` stands for; null for an unknown handle too.
const DialogTemplate* FindDialogTemplate(HINSTANCE handle, int id);
const MenuTemplate* FindMenu(HINSTANCE handle, int id);
const BitmapResource* FindBitmap(HINSTANCE handle, int id);
const BitmapResource* FindIcon(HINSTANCE handle, int id);

// Base handle of the host's own resources, never null.
HINSTANCE HostInstance();

// The handle under which a table with this name stands in the chain; null for none. A path before the name, a "lib"
// prefix and an extension are disregarded, and so is case.
HINSTANCE FindModuleHandle(const char* fileName);

} // namespace platform

inline constexpr platform::ResourceType RT_MENU = platform::ResourceType::Menu;
inline constexpr platform::ResourceType RT_DIALOG = platform::ResourceType::Dialog;
inline constexpr platform::ResourceType RT_BITMAP = platform::ResourceType::Bitmap;
inline constexpr platform::ResourceType RT_GROUP_ICON = platform::ResourceType::GroupIcon;

// Handle of the first module along the chain that holds the resource; the host's own when none does, so that the
// load that follows fails there.
HINSTANCE AfxFindResourceHandle(int id, platform::ResourceType type);

// Handle of a loaded module by file name, the host's for null; null when no such module is loaded.
HINSTANCE GetModuleHandle(const char* fileName);
