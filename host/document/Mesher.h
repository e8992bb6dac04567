// A quadrilateral, or a triangle where two neighbouring corners are one, divided into walls.
#pragma once

#include "host/document/Generation.h"
#include "host/document/HostGeneration.h"
#include "host/document/Refusal.h"

#include <optional>
#include <vector>

namespace host {

// The corners go round in order; those of a quadrilateral need not lie in one plane, the inner nodes then lie on the
// surface of straight lines between its sides. The first side, from corner 0 to 1, and the one across it are divided
// `first` times, the other two `second` times. The normals of all elements are on one side.
class Mesher {
  public:
    static constexpr int mostElements = 1'000'000;

    struct Corners {
        CFPoint at[4];
    };
    Mesher(HostEditing& document, const Corners& corners, int first, int second);

    // Why there can be no such mesh; null when there can. Asked before Run.
    std::optional<Refusal> Check();
    // As one step, with a wait bar. False when the user broke it off: then nothing has changed.
    bool Run();

  private:
    const char* Fault();
    bool JoinCorners(double tolerance);
    bool IsConvex() const;
    void FillPlaces();
    bool AreLargerThan(double size) const;
    bool MakeNodes();
    bool MakeElements();
    void MakeElement(std::size_t corner);
    bool Goes(); // one more object is done; false to break off
    std::size_t Row() const { return static_cast<std::size_t>(m_first) + 1; }

    HostEditing& m_document;
    Corners m_corners;
    int m_first, m_second;
    Places m_places;             // row by row
    std::vector<CNodo*> m_nodes; // at the places
    std::vector<CNodo*> m_sides; // of the element at work
    int m_firstNew = 0;          // nodes from that number on were made here
    int m_nodesMet = 0, m_wallsMet = 0;
};

} // namespace host
