#include "model/values/Path.h"

#include "platform/core/Folder.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace {

struct Parts {
    std::string_view dir, name, ext; // of the path's own bytes
};

Parts Split(std::string_view path) {
    Parts parts;
    // Nothing found makes the beginning of a bare name.
    const std::size_t begin = path.rfind('/') + 1;
    parts.dir = path.substr(0, begin);
    parts.name = path.substr(begin);
    // A leading full stop is part of the name of a hidden file, not the start of an extension.
    const std::size_t stop = parts.name.rfind('.');
    if (stop != std::string_view::npos && stop != 0) {
        parts.ext = parts.name.substr(stop);
        parts.name = parts.name.substr(0, stop);
    }
    return parts;
}

} // namespace

int SplitPath(CString path, CString* drive, CString* dir, CString* name, CString* ext) {
    const Parts parts = Split(path.View());
    if (parts.name.empty())
        return 0;
    const auto give = [](CString* output, std::string_view part) {
        if (output)
            *output = CString(part);
    };
    give(drive, {});
    give(dir, parts.dir);
    give(name, parts.name);
    give(ext, parts.ext);
    return 1;
}

CString GetFileName(CString path) {
    return CString(path.View().substr(Split(path.View()).dir.size()));
}

CString GetExtension(CString path) {
    return CString(Split(path.View()).ext);
}

CString GetFileDirectory(CString path) {
    return CString(Split(path.View()).dir);
}

CString ChangeExt(CString path, CString ext) {
    const Parts parts = Split(path.View());
    if (parts.name.empty())
        return path;
    std::string changed(path.View().substr(0, path.View().size() - parts.ext.size()));
    if (!ext.IsEmpty() && ext[0] != '.')
        changed += '.';
    changed += ext.View();
    return CString(std::string_view(changed));
}

int IsDirectory(CString path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path.ToUtf8(), ignored) ? 1 : 0;
}

int Del(CString pattern) {
    const CString folder = GetFileDirectory(pattern);
    int deleted = 0;
    for (const FolderEntry& entry : ListFolder(folder, GetFileName(pattern)))
        if (!entry.isFolder) {
            if (!RemoveFile(folder + entry.name))
                return 0;
            deleted = 1;
        }
    return deleted;
}
