// One step of the document's undo around a command.
#pragma once

#include "dialogs/frame/host/QuovarUndo.h"

#include <array>

class CQuovarDoc;

// The step is open for as long as this lives: opened with the record of its kind, closed even when the host operation
// inside it throws.
class CommandUndo {
  public:
    using Record = std::array<double, 10>;

    CommandUndo(CQuovarDoc& doc, unsigned int kind, const Record& record = {});
    ~CommandUndo() noexcept(false); // the host may run out of memory
    CommandUndo(const CommandUndo&) = delete;
    CommandUndo& operator=(const CommandUndo&) = delete;

  private:
    CQuovarUndo& m_undo;
    unsigned int m_kind;
};
