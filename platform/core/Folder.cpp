#include "platform/core/Folder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

// The disk's names are UTF-8; the application's texts are not.
fs::path OnDisk(const CString& path) {
    return path.ToUtf8();
}

// Of a path without "/" at its end: the disk would follow a link that has one.
fs::path WithoutEnd(const CString& path) {
    std::string text = path.ToUtf8();
    while (text.size() > 1 && text.back() == '/')
        text.pop_back();
    return text;
}

// Goes back to the last "*" and lets it take one character more whenever the rest does not fit.
bool Fits(std::string_view name, std::string_view mask) {
    std::size_t at = 0;
    std::size_t star = mask.npos; // place of the last "*" passed
    std::size_t taken = 0;        // end of what it has taken
    std::size_t i = 0;
    while (i < name.size()) {
        if (at < mask.size() && mask[at] == '*') {
            star = at++;
            taken = i;
        } else if (at < mask.size() && (mask[at] == '?' || platform::Lower(mask[at]) == platform::Lower(name[i]))) {
            ++at;
            ++i;
        } else if (star != mask.npos) {
            at = star + 1;
            i = ++taken;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of('*', at) == mask.npos;
}

bool IsDots(const CString& name) {
    return name == "." || name == "..";
}

bool ComesBefore(const FolderEntry& a, const FolderEntry& b) {
    if (IsDots(a.name) != IsDots(b.name))
        return IsDots(a.name);
    const int order = a.name.CompareNoCase(b.name);
    return order != 0 ? order < 0 : a.name < b.name;
}

} // namespace

bool FitsMask(const CString& name, const CString& mask) {
    std::string_view wanted = mask.View();
    if (wanted.ends_with("*.*"))
        wanted.remove_suffix(2);
    return Fits(name.View(), wanted);
}

std::vector<FolderEntry> ListFolder(const CString& folder, const CString& mask) {
    std::vector<FolderEntry> entries;
    std::error_code error;
    fs::directory_iterator at(folder.IsEmpty() ? fs::path(".") : OnDisk(folder), error);
    if (error)
        return entries;
    for (const char* dots : {".", ".."})
        if (FitsMask(dots, mask))
            entries.push_back({dots, true});
    for (; at != fs::directory_iterator() && !error; at.increment(error)) {
        std::error_code ignored; // an entry that is gone by now is no folder
        const CString name = CString::FromUtf8(at->path().filename().string());
        if (FitsMask(name, mask))
            entries.push_back({name, at->is_directory(ignored)});
    }
    std::sort(entries.begin(), entries.end(), ComesBefore);
    return entries;
}

CString GetCurrentFolder() {
    std::error_code error;
    return CString::FromUtf8(fs::current_path(error).string());
}

BOOL ChangeFolder(const CString& folder) {
    std::error_code error;
    fs::current_path(OnDisk(folder), error);
    return !error;
}

BOOL MakeFolder(const CString& folder) {
    std::error_code error;
    return fs::create_directory(OnDisk(folder), error) && !error;
}

BOOL RemoveFolder(const CString& folder) {
    const fs::path path = WithoutEnd(folder);
    std::error_code error;
    return fs::is_directory(fs::symlink_status(path, error)) && fs::remove(path, error) && !error;
}

BOOL RemoveFolderTree(const CString& folder) {
    const fs::path path = WithoutEnd(folder);
    const std::string last = path.filename().string();
    std::error_code error;
    if (last.empty() || last == "." || last == ".." || !fs::is_directory(path, error))
        return FALSE;
    fs::remove_all(path, error);
    return !error;
}

BOOL RemoveFile(const CString& file) {
    const fs::path path = OnDisk(file);
    std::error_code error;
    return !fs::is_directory(fs::symlink_status(path, error)) && fs::remove(path, error) && !error;
}

BOOL RenameFile(const CString& from, const CString& to) {
    const fs::path source = OnDisk(from);
    const fs::path target = OnDisk(to);
    if (renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
        return TRUE;
    if (errno != EINVAL) // the kind of disk does not know how to leave alone what is there
        return FALSE;
    std::error_code error;
    if (fs::exists(fs::symlink_status(target, error)))
        return FALSE;
    fs::rename(source, target, error);
    return !error;
}
