// Project files (".asg"): the whole of a document in a database of one file.
#pragma once

#include "host/document/DocumentData.h"

#include <string>

namespace host {

// Both take the file's path as the system spells it and throw FileError.

// Writes a new file beside the old one, has it on the disk, and only then gives it the old one's name: whenever the
// process or the machine dies, the path names the old project or the new one, whole. (Writing inside the old file would
// leave its recovery to a journal beside it, which gets lost when users copy or mail the file.)
// `version` is the application's, for the information record.
void SaveProject(const DocumentData& data, const std::string& path, const std::string& version);

// The content of the file. Nothing in it is trusted: a file that is not exactly a project of this format, or that says
// anything that a document cannot be, is refused as a whole.
DocumentData LoadProject(const std::string& path);

} // namespace host
