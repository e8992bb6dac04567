// Whether what holds a structure can keep it in place.
#pragma once

#include <unordered_map>

class CMolla;
class CNodo;
class CTrave;
class CVincolo;

// Gathers the supports of one structure, node by node.
class StructureRestraint {
  public:
    void Add(CNodo& node);
    // Every node is fixed in all its components: nothing is left to solve. True before the first node.
    bool AllFixed() const { return m_allFixed; }
    // The structure can move as a rigid body: a translation is free, or fewer than six components are held.
    bool Labile() const { return !(m_held[0] && m_held[1] && m_held[2]) || m_count < 6; }

  private:
    void AddSpring(const CMolla& spring);
    void AddRestraint(const CVincolo& restraint);

    bool m_held[3] = {}; // translations along x, y and z
    long m_count = 0;    // held components
    bool m_allFixed = true;
};

// The beam is released for the same force at both ends. One with fewer than two specifications is not examined.
bool ReleasedAtBothEnds(CTrave& beam);

// Whether the rotations of a node are held, by its restraint or by a beam or wall that meets there.
class RotationCheck {
  public:
    bool Held(CNodo& node);

  private:
    // Answers for nodes with many elements, which would be walked once for each of them.
    std::unordered_map<const CNodo*, bool> m_known;
};
