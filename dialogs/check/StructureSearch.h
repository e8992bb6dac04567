// The separate structures of a model: the sets of nodes that are connected through elements.
#pragma once

#include "dialogs/check/NodeIndex.h"
#include "platform/core/Collections.h"

class CNodo;
class CQuovarDoc;
class DocumentLists;

// The nodes that the document has now. Structures are kept from the time of their search, and a node that was removed
// since must not be touched.
class CurrentNodes {
  public:
    explicit CurrentNodes(DocumentLists& lists);
    bool Has(const CObject* node, int id) const { return id != NodeIndex::none && m_index.IdOf(node) == id; }

  private:
    NodeIndex m_index;
};

class StructureSearch {
  public:
    virtual ~StructureSearch();

    // Searches the whole document, with the wait bar. Structures are in the order in which document order first reaches
    // them; what an earlier search found goes. A null document has none.
    void FindStructures(CQuovarDoc* pDoc);

    int GetSizeStructures() const { return m_aStrutture.GetSize(); }
    CObArray* GetIndexStructure(int i) const; // owned here; null for an index outside
    // Non-zero when some structure, or structure s, holds the node.
    int ThereNodo(CNodo* pNodo) const;
    int ThereNodo(CNodo* pNodo, int s) const;
    void RemoveAllStructures();

  protected:
    // A new empty structure at the end; null after reporting the framework's exception, with nothing added.
    CObArray* InsertNewStructure();
    // Where an array comes from. May throw a CException by pointer.
    virtual CObArray* NewArray();

    // The entry of a structure was a node when the structure was found; asks the index, as the object may be gone.
    bool IsNode(const CObject* entry) const { return m_index.Find(entry) != NodeIndex::none; }
    // It is a node of the document still, and the same one.
    bool IsCurrent(const CObject* entry, const CurrentNodes& current) const;

    CObArray m_aStrutture; // arrays of CNodo; the arrays are owned, the nodes are the document's

  private:
    void AddStructure(CQuovarDoc& doc, CNodo* seed);

    NodeIndex m_index; // of every node in the arrays: looking through them once a node would be quadratic
};
