// What members and springs answer to motions of the nodes, one after the other and in extended precision.
//
// An assembled stiffness is rounded: in a stiff structure that moves as a whole the rounding is as large as the forces.
// Here a member feels its strains alone, in which motions as a rigid body cancel before anything is multiplied; what a
// mechanism costs comes out as nothing. (Where `long double` is no wider than `double`, digits are lost later.)
#pragma once

#include "host/analysis/FrameModel.h"

namespace host {

using Long = long double;
using LongVector = Eigen::Matrix<Long, Eigen::Dynamic, 1>; // six components a node, in global axes
using LongVector6 = Eigen::Matrix<Long, 6, 1>;

class ElementForces {
  public:
    // The model must outlive it. The springs are the model's, and those added later.
    explicit ElementForces(const FrameModel& model);
    void AddSpring(const GroundSpring& spring) { m_added.push_back(spring); }

    // What the nodes must act with to hold the motion.
    LongVector Holding(const LongVector& motion) const;
    // Twice the energy of the motion: a sum of squares, by strains.
    Long Energy(const LongVector& motion) const;
    // The forces on the ends of a member, in its axes, from the motion alone.
    Vector12 OnEnds(std::size_t member, const LongVector& motion) const;

  private:
    using Vector3 = Eigen::Matrix<Long, 3, 1>;

    struct Element {
        int nodes[2];
        Eigen::Matrix<Long, 3, 3> axes; // rows; to the last digit at right angles, the first from node to node
        Long length;
        StrainStiffness stiffness;
    };
    // In the order of the stiffness: axial, torsion, turns of both ends against the chord in both planes.
    using Strains = LongVector6;

    static Element ElementOf(const FrameModel& model, const Member& member);
    static Strains StrainsOf(const Element& element, const LongVector& motion);
    static LongVector6 Forces(const Element& element, const Strains& strains);
    // Twelve components in the member's axes.
    static Eigen::Matrix<Long, 12, 1> EndForces(const Element& element, const LongVector& motion);
    template <class Action>
    void ForEachSpring(const Action& action) const;

    const FrameModel& m_model;
    std::vector<Element> m_elements;
    std::vector<GroundSpring> m_added;
};

} // namespace host
