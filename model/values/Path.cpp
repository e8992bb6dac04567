#include "model/values/Path.h"

#include <cctype>
#include <filesystem>
#include <string>

namespace {

struct Parts {
    std::string drive, dir, name, ext;
};

Parts Split(const CString& path) {
    std::string_view rest = path.View();
    Parts parts;
    if (rest.size() > 1 && rest[1] == ':' && std::isalpha(static_cast<unsigned char>(rest[0]))) {
        parts.drive = rest.substr(0, 2);
        rest.remove_prefix(2);
    }
    const std::size_t separator = rest.find_last_of("/\\");
    if (separator != std::string_view::npos) {
        parts.dir = rest.substr(0, separator + 1);
        rest.remove_prefix(separator + 1);
    }
    // A leading full stop is part of the name of a hidden file, not the start of an extension.
    const std::size_t stop = rest.rfind('.');
    if (stop == std::string_view::npos || stop == 0) {
        parts.name = rest;
    } else {
        parts.name = rest.substr(0, stop);
        parts.ext = rest.substr(stop);
    }
    return parts;
}

// The disk's names are UTF-8; the application's texts are not.
std::filesystem::path OnDisk(const CString& path) {
    return std::filesystem::path(path.ToUtf8());
}

} // namespace

int SplitPath(CString path, CString* drive, CString* dir, CString* name, CString* ext) {
    const Parts parts = Split(path);
    if (parts.name.empty())
        return 0;
    const auto give = [](CString* output, const std::string& part) {
        if (output)
            *output = CString(std::string_view(part));
    };
    give(drive, parts.drive);
    give(dir, parts.dir);
    give(name, parts.name);
    give(ext, parts.ext);
    return 1;
}

CString GetFileName(CString path) {
    const Parts parts = Split(path);
    return CString(std::string_view(parts.name + parts.ext));
}

CString GetExtension(CString path) {
    const Parts parts = Split(path);
    return parts.ext.empty() ? CString() : CString(std::string_view(parts.ext).substr(1));
}

CString GetFileDirectory(CString path) {
    const Parts parts = Split(path);
    std::string folder = parts.drive + parts.dir;
    if (parts.dir.size() > 1)
        folder.pop_back();
    return CString(std::string_view(folder));
}

CString ChangeExt(CString path, CString ext) {
    const Parts parts = Split(path);
    if (parts.name.empty())
        return path;
    std::string changed = parts.drive + parts.dir + parts.name;
    if (!ext.IsEmpty() && ext[0] != '.')
        changed += '.';
    changed += ext.View();
    return CString(std::string_view(changed));
}

int IsDirectory(CString path) {
    std::error_code ignored;
    return std::filesystem::is_directory(OnDisk(path), ignored) ? 1 : 0;
}

int Del(CString path) {
    std::error_code error;
    const std::filesystem::path file = OnDisk(path);
    if (std::filesystem::is_directory(std::filesystem::symlink_status(file, error)))
        return 0;
    return std::filesystem::remove(file, error) && !error ? 1 : 0;
}
