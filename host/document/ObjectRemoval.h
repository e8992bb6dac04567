// Removing objects from a document with what hangs on them.
#pragma once

#include <vector>

class CElemento;

namespace host {

class HostEditing;

// As one undo step. Nodes take their elements with them, load cases their loads; what refers to a removed object
// (groups, combinations, elements with its material ...) lets it go. Null entries, repeated ones and objects that are
// not the document's are passed over.
void RemoveObjects(HostEditing& document, std::vector<CElemento*> objects);

} // namespace host
