// Copies of the selection, each by a motion of its own.
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

// Nodes of selected elements are copied with them. A copy carries what the selected object carries (material, section,
// thickness, releases, restraints, springs, loads), whatever was met on the way, but enters no group. Restraints,
// global loads and prescribed displacements keep their directions; what is given in an element's own axes, and springs,
// turn with it.
//
// A node that was there before the copy began and lies within the document's tolerance serves as the copy's node, for
// one of the selected nodes only: nodes that are separate on purpose stay so. Nodes that have an element of the same
// kind between them get no second one. What is met stays as it was.
class Copier {
  public:
    Copier(HostDocument& document, const std::vector<CElemento*>& selection);

    int Objects() const { return m_objects; } // selected objects: the steps of the wait bar that one copy takes
    // Whether so many copies stay within what a document can use.
    bool Accepts(std::size_t copies) const;
    // Whether all nodes of the copy would lie where a node may lie.
    bool Reaches(const Motion& motion) const;
    // The motion leads from the selection to the copy. The nodes of the copy made last, at first the selection's own,
    // are joined with those of this one.
    void Copy(const Motion& motion, int join);

  private:
    struct Item {
        Kind kind;
        CElemento* original;
        std::vector<std::size_t> nodes;
    };

    void PlaceNodes(const Motion& motion);
    CNodo* Met(const CFPoint& place, int firstNew) const;
    CNodo* CopyNode(CNodo& original, const CFPoint& place, const Motion& motion);
    void CopyItem(const Item& item, const Motion& motion);
    void MakeCopy(const Item& item, const Motion& motion);
    void Join(int join);
    void MirrorLoads(CElementoCarico& copy, int axis);

    HostDocument& m_document;
    int m_objects = 0;
    std::vector<CNodo*> m_originals, m_former, m_next; // of the selection, the copy before and this one
    std::vector<bool> m_selected;                      // by node: it counts for the wait bar
    std::vector<Item> m_items;
    std::vector<CNodo*> m_corners; // of the element at work
    CFPoint m_low, m_high;         // the box around the nodes
    std::unordered_map<CCarico*, CCarico*> m_mirrored[2];
};

// The copies of a cycle, gathered until their number is known: a command that cannot be carried out whole is not begun.
struct CopyCycle {
    struct Planned {
        double x, y, z; // from the selection
        int join;
    };

    Copier copier;
    std::vector<Planned> copies;
    CFPoint last;
    bool tooMany = false;
};

// Turns the node's springs along with it.
void TurnSprings(CNodo& node, const Motion& motion);

// The turn about its own axis that a line needs after the motion, its nodes being at the new places, for its axes to
// have gone along; degrees. A mirrored line keeps its third axis, and its second one changes sides.
double BetaAfter(CLineaFisica& line, const Motion& motion, const CFPoint& newFirst, const CFPoint& newSecond);

// The turn about its own axis that gives a line between two places the third axis `third`, or the nearest that it can
// have; degrees.
double BetaFor(const CFPoint& third, const CFPoint& first, const CFPoint& second);

} // namespace host
