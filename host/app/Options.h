// What the command line asks for.
#pragma once

#include <string>

namespace host {

struct Options {
    enum class Action { Open, Gallery, GalleryPictures, WriteExample, Results, Check, Help, Version, Invalid };

    Action action = Action::Open;
    std::string argument; // the file or folder; empty when the command line names none
    std::string model;    // what the gallery shows; empty for the example
    std::string error;    // of Invalid, Italian, UTF-8
};

Options ParseOptions(int argc, char** argv);

extern const char* const usageText; // Italian, UTF-8

} // namespace host
