// Copies of the selection, each made from the one before it by a motion.
#pragma once

#include "host/document/DocumentData.h"
#include "host/document/Motion.h"

#include <unordered_map>
#include <vector>

class CCarico;
class CElementoCarico;
class CLineaFisica;

namespace host {

class HostDocument;

// Nodes of selected elements are copied with them. A place where a node lies within the document's tolerance gets no
// second one, and nodes that have an element of the same kind between them get no second one either. Copies carry what
// their originals carry (material, section, thickness, releases, restraints, springs, loads), but enter no group.
// Restraints, global loads and prescribed displacements keep their directions; what is given in an element's own axes,
// and springs, turn with it.
class Copier {
  public:
    Copier(HostDocument& document, const std::vector<CElemento*>& selection);

    int Objects() const { return m_objects; } // selected objects: the steps of the wait bar that one copy takes
    // Whether so many copies more stay within what a document can use.
    bool Accepts(int copies) const;
    // False, and nothing made, when the document would grow beyond every use.
    bool Copy(const Motion& motion, int join);

  private:
    struct Item {
        Kind kind;
        CElemento* current; // null once a copy of it would have had coinciding nodes
        std::vector<std::size_t> nodes;
    };

    void CopyNodes(const Motion& motion);
    CNodo* CopyNode(CNodo& original, const CFPoint& place, const Motion& motion);
    void CopyItem(Item& item, const Motion& motion);
    CElemento* MakeCopy(const Item& item, const Motion& motion);
    CElemento* Existing(const Item& item) const;
    void Join(int join);
    void MirrorLoads(CElementoCarico& copy);

    HostDocument& m_document;
    int m_objects = 0;
    std::size_t m_made = 0;
    std::vector<CNodo*> m_current, m_next;
    std::vector<bool> m_selected; // by node: it counts for the wait bar
    std::vector<Item> m_items;
    std::unordered_map<CCarico*, CCarico*> m_mirrored;
};

// The turn about its own axis that a line needs after the motion, its nodes being at the new places, for its axes to
// have gone along; degrees. A mirrored line keeps its third axis, and its second one changes sides.
double BetaAfter(CLineaFisica& line, const Motion& motion, const CFPoint& newFirst, const CFPoint& newSecond);

} // namespace host
