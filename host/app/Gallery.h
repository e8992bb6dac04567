// Pictures of the main window and of every dialog on a model.
#pragma once

#include "host/commands/BatchStatus.h"

#include <QString>

#include <string>

namespace host {

class Workspace;

// `model` is the file to show, empty for the example; a dialog that does not open on it is left out.
//
// Runs `program` once for each scale, off the screen, and writes index.html into the folder, which is made when it is
// missing. Why something cannot be done goes to the error stream.
BatchStatus WriteGallery(const std::string& program, const std::string& folder, const std::string& model);

// The pictures at the scale of this process, named after it ("...-100.png").
BatchStatus WriteGalleryPictures(Workspace& workspace, const QString& folder, const QString& model);

} // namespace host
