// Parts of a path, as text: nothing here but IsDirectory and Del looks at the disk. Folders are separated by "/"; "\\"
// and
// ":" are characters like any others.
#pragma once

#include "platform/core/String.h"

// Splits "/lavori/ponte.asg" into "", "/lavori/", "ponte" and ".asg"; there are no drives. Null outputs are skipped.
// Returns 0 and writes nothing when the path names no file: it is empty or ends with "/".
int SplitPath(CString path, CString* drive, CString* dir, CString* name, CString* ext);

CString GetFileName(CString path);      // without folder, with extension; empty when the path names no file
CString GetExtension(CString path);     // with its full stop; empty when there is none
CString GetFileDirectory(CString path); // up to the last "/", which it ends with; empty for a bare name
// The path with another extension, given with or without its full stop; an empty one takes the extension away.
CString ChangeExt(CString path, CString ext);

int IsDirectory(CString path); // non-zero for a folder that exists
// Deletes the files of one folder whose names fit the mask behind the last "/" (FitsMask), no folders. Non-zero when
// there was one and all are gone.
int Del(CString pattern);
