// Pictures of the main window and of every dialog on a model.
#pragma once

#include <QString>

#include <string>

namespace host {

class Workspace;

// `model` is the file to show, empty for the example; a dialog that does not open on it is left out.
//
// Runs `program` once for each scale, off the screen, and writes index.html into the folder, which is made when it is
// missing. 0 on success; otherwise 1 and a message on the error stream.
int WriteGallery(const std::string& program, const std::string& folder, const std::string& model);

// The pictures at the scale of this process, named after it ("...-100.png"). 0 on success.
int WriteGalleryPictures(Workspace& workspace, const QString& folder, const QString& model);

} // namespace host
