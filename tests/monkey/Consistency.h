// What must hold of a document at any moment between two commands.
#pragma once

#include <string>

namespace host {
class DocumentData;
class HostDocument;
} // namespace host

// Each answers with the first fault that it finds, or with an empty text.

// Numbers, links in both directions, the search by place, units.
std::string ModelFault(const host::DocumentData& data);
// The model and what is selected of it.
std::string DocumentFault(host::HostDocument& document);
// Undone to the start and redone to the end, each state is the one that it was. The document is left where it was.
std::string UndoFault(host::HostDocument& document);
// Written into the folder and read again, the model is the same.
std::string FileFault(const host::DocumentData& data, const std::string& folder);
