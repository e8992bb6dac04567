// Files and folders of the disk by name. Paths are written with "/"; "\\" is a character like any other. A path that
// does not begin with "/" starts from the current folder. Names that the code page cannot write show "?" for what it
// lacks, and are found by no operation.
#pragma once

#include "platform/core/String.h"
#include "platform/core/Types.h"

#include <vector>

struct FolderEntry {
    CString name;  // without folder
    bool isFolder; // also for a link to one
};

// The name fits the mask: "*" stands for any characters and none, "?" for one. Case does not count. "*.*" fits every
// name, and "a*.*" every one that begins with "a", also one without a full stop.
bool FitsMask(const CString& name, const CString& mask);

// What a folder holds, as far as it fits the mask: ".", "..", then the names in their order without regard to case.
// Empty for a folder that cannot be read; "" is the current one.
std::vector<FolderEntry> ListFolder(const CString& folder, const CString& mask);

CString GetCurrentFolder(); // without "/" at its end, but "/" for the root; empty when it was removed
// Non-zero on success, which all of these tell.
BOOL ChangeFolder(const CString& folder);
BOOL MakeFolder(const CString& folder);   // not the folders that lead to it
BOOL RemoveFolder(const CString& folder); // an empty one
// The folder with everything in it; a link is removed, not what it leads to. Refuses the root and a path whose last
// name is
// "." or "..", which would take along the folder that somebody stands in.
BOOL RemoveFolderTree(const CString& folder);
BOOL RemoveFile(const CString& file);
BOOL RenameFile(const CString& from, const CString& to); // also a folder; never replaces what is there
