// A change of the document's units, which converts every stored value. Undone exactly: the old values are kept, since
// converting back would round.
#pragma once

#include "host/document/DocumentData.h"
#include "host/document/HostUndo.h"

namespace host {

// Converts every stored value, for good.
void ConvertUnits(DocumentData& data, DocumentUnits units);
// A file may be in feet; the user is offered inches instead.
void UseOfferedUnits(DocumentData& data);

class UnitChange : public Change {
  public:
    // Converts everything.
    UnitChange(DocumentData& data, DocumentUnits units);

    void Undo() override { Swap(); }
    void Redo() override { Swap(); }
    bool KeepsAll() const override { return true; }
    unsigned GetNews() const override { return newsLengths | newsUnits; }

  private:
    void Swap();

    DocumentData& m_data;
    DocumentUnits m_units;
    double m_tolerance;
    std::vector<std::pair<CElemento*, std::unique_ptr<CElemento>>> m_others;
};

} // namespace host
