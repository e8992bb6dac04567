// What dialogs change on load cases and combinations by themselves. They say so with MODIFICA_CASI_CARICO; the document
// then finds out what it was and records it, so that it can be undone like everything else.
#pragma once

#include "platform/core/String.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace host {

class DocumentData;
class HostUndo;

class DirectChanges {
  public:
    // Both outlive it.
    DirectChanges(DocumentData& data, HostUndo& undo) : m_data(data), m_undo(undo) {}

    // Notes the names as they are after a step. True when groups came, went or were renamed.
    bool Remember();
    // A load case has just been made: what a dialog fills it with belongs to it.
    void CaseMade(int id);
    // Records what differs from what is known. What a command inside a bracket changes, it records itself.
    void Record();

  private:
    void RecordNewNames();
    void RecordFilledCase();

    DocumentData& m_data;
    HostUndo& m_undo;
    std::unordered_map<int, CString> m_names;      // of load cases and combinations, which share their numbers
    std::vector<std::pair<int, CString>> m_groups; // in document order
    struct {
        int id = 0; // of the load case made last
        std::size_t records = 0;
    } m_newCase;
};

} // namespace host
