#include "platform/window/MessageMap.h"

#include "platform/window/Window.h"

namespace platform {

const MessageEntry* FindEntry(const MessageMap& map, UINT message, int code, UINT id) {
    const bool fromControl = message == WM_COMMAND || message == WM_NOTIFY;
    for (const MessageMap* at = &map; at; at = at->base)
        for (std::size_t i = 0; i < at->count; ++i) {
            const MessageEntry& entry = at->entries[i];
            if (entry.message != message)
                continue;
            if (!fromControl || (entry.code == code && id >= entry.idFirst && id <= entry.idLast))
                return &entry;
        }
    return nullptr;
}

CWnd* WindowOf(HWND handle) {
    return CWnd::FromHandle(handle);
}

CScrollBar* ScrollBarOf(HWND handle) {
    return dynamic_cast<CScrollBar*>(CWnd::FromHandle(handle));
}

} // namespace platform
