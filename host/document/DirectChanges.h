// What the steps are called that dialogs make by writing directly into the model and sending a code, and whether groups
// changed with a step.
#pragma once

#include "platform/core/String.h"

#include <utility>
#include <vector>

namespace host {

class DocumentData;
class HostUndo;

class DirectChanges {
  public:
    // Both outlive it.
    DirectChanges(DocumentData& data, HostUndo& undo) : m_data(data), m_undo(undo) {}

    // Notes the groups as they are after a step. True when some came, went or were renamed.
    bool Remember();
    // A load case has just been made: when the code comes next, a dialog has filled it with another's loads.
    void CaseMade() { m_caseMade = true; }
    // A code was sent.
    void CodeSent(long hint);

  private:
    DocumentData& m_data;
    HostUndo& m_undo;
    std::vector<std::pair<int, CString>> m_groups; // in document order
    bool m_caseMade = false;
};

} // namespace host
