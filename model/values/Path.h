// Parts of a path, as text: nothing here but IsDirectory and Del looks at the disk. Folders are separated by '/' or
// '\'.
#pragma once

#include "platform/core/String.h"

// Splits "C:\lavori\ponte.asg" into "C:", "\lavori\", "ponte" and ".asg"; null outputs are skipped. Returns 0 and
// writes nothing when the path names no file: it is empty or ends with a separator.
int SplitPath(CString path, CString* drive, CString* dir, CString* name, CString* ext);

CString GetFileName(CString path);      // without folder, with extension; empty when the path names no file
CString GetExtension(CString path);     // without the full stop; empty when there is none
CString GetFileDirectory(CString path); // up to and without the last separator; "/" for a file of the root
// The path with another extension, given with or without its full stop; an empty one takes the extension away.
CString ChangeExt(CString path, CString ext);

int IsDirectory(CString path); // non-zero for a folder that exists
int Del(CString path);         // deletes a file, no folder; non-zero when it is gone
