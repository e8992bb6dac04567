// Makes beams, truss members, walls and slabs through nodes that the user picks one after the other, each an undo step.
#pragma once

#include "platform/core/String.h"

#include <vector>

class CNodo;

namespace host {

class HostDocument;
enum class Kind;

// A line goes on from its second node, so that a frame is drawn in one go; a wall of four nodes is whole, other
// polygons are when their first or last node is picked once more.
class ElementDrawing {
  public:
    explicit ElementDrawing(HostDocument& document) : m_document(document) {}

    // Empty, or why there is nothing to draw through.
    CString Start(Kind kind);
    void Stop();
    // The user's Escape: what was picked is let go; without any the drawing ends.
    void StepBack();

    bool IsActive() const { return m_active; }
    // Empty, or why the node was not taken.
    CString Take(CNodo& node);
    // In the order of picking; those that have gone meanwhile are left out.
    std::vector<CNodo*> Picked() const;
    CString Prompt() const; // empty while not active

  private:
    CString TakeForLine(CNodo& node);
    CString TakeForPolygon(CNodo& node);
    CString Close();

    HostDocument& m_document;
    bool m_active = false;
    Kind m_kind{};
    std::vector<int> m_picked; // numbers: undo may take the nodes away
};

} // namespace host
