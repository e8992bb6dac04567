#include "host/app/Example.h"

#include "host/document/ExampleModel.h"
#include "host/document/HostDocument.h"
#include "host/files/FileError.h"
#include "host/files/ProjectFile.h"
#include "host/files/Version.h"

#include <cstdio>

namespace host {

BatchStatus WriteExample(const std::string& path) {
    HostDocument document;
    BuildExample(document);
    try {
        SaveProject(document.Data(), path, applicationVersion);
    } catch (const FileError& error) {
        std::fprintf(stderr, "quovar: %s\n", error.what());
        return notDone;
    }
    return nothingFound;
}

} // namespace host
