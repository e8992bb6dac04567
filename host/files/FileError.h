// Why a file could not be read or written, told to the user.
#pragma once

#include <stdexcept>
#include <string>

namespace host {

// The text is Italian, UTF-8, and says what is wrong and where ("Tabella travi, riga 12: ...", "Riga 37: ...").
class FileError : public std::runtime_error {
  public:
    explicit FileError(const std::string& message) : std::runtime_error(message) {}
};

} // namespace host
