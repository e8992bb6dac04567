// The part of the document that selects and deletes groups.
#pragma once

class DocumentGroups {
  public:
    virtual int EliminaGruppo(int index) = 0; // 0 for an index outside
    // Adds the members of the group with that identifier to the selection.
    virtual void SelezionaGruppo(int id) = 0;

  protected:
    ~DocumentGroups() = default;
};
