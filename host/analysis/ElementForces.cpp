#include "host/analysis/ElementForces.h"

#include <Eigen/Geometry>

namespace host {

namespace {

Eigen::Matrix<Long, 3, 1> PlaceOf(const FrameModel& model, int node) {
    const CFPoint& place = *model.nodes[static_cast<std::size_t>(node)]->GetPunto();
    return {place.x, place.y, place.z};
}

} // namespace

ElementForces::ElementForces(const FrameModel& model) : m_model(model) {
    m_elements.reserve(model.members.size());
    for (const Member& member : model.members)
        m_elements.push_back(ElementOf(model, member));
}

// A turn of the whole structure strains nothing only where every member lies exactly between its nodes.
ElementForces::Element ElementForces::ElementOf(const FrameModel& model, const Member& member) {
    const Vector3 between = PlaceOf(model, member.nodes[1]) - PlaceOf(model, member.nodes[0]);
    const Vector3 first = between.stableNormalized();
    const Vector3 across = member.axes.row(1).transpose().cast<Long>();
    const Vector3 second = (across - across.dot(first) * first).normalized();
    Element element{{member.nodes[0], member.nodes[1]}, {}, between.stableNorm(), StiffnessOfStrains(member)};
    element.axes.row(0) = first;
    element.axes.row(1) = second;
    element.axes.row(2) = first.cross(second);
    return element;
}

ElementForces::Strains ElementForces::StrainsOf(const Element& element, const LongVector& motion) {
    const auto at = [&](int end, int first) { return motion.segment<3>(6 * element.nodes[end] + first); };
    const Vector3 apart = element.axes * (at(1, 0) - at(0, 0));
    const Vector3 turns[2] = {element.axes * at(0, 3), element.axes * at(1, 3)};
    Strains strains;
    strains(0) = apart(0);
    strains(1) = turns[1](0) - turns[0](0);
    for (int i = 0; i < 2; ++i) {
        const Long chord = apart(1 + i) / element.length;
        const auto sign = static_cast<Long>(bendingPlanes[i].sign);
        strains(2 + 2 * i) = sign * turns[0](2 - i) - chord;
        strains(3 + 2 * i) = sign * turns[1](2 - i) - chord;
    }
    return strains;
}

LongVector6 ElementForces::Forces(const Element& element, const Strains& strains) {
    LongVector6 forces;
    forces(0) = element.stiffness.axial * strains(0);
    forces(1) = element.stiffness.torsion * strains(1);
    for (int i = 0; i < 2; ++i) {
        const StrainStiffness::Bending& bending = element.stiffness.bending[i];
        const Long first = strains(2 + 2 * i), second = strains(3 + 2 * i);
        forces(2 + 2 * i) = bending.first * first + bending.coupled * second;
        forces(3 + 2 * i) = bending.coupled * first + bending.second * second;
    }
    return forces;
}

Eigen::Matrix<Long, 12, 1> ElementForces::EndForces(const Element& element, const LongVector& motion) {
    const LongVector6 forces = Forces(element, StrainsOf(element, motion));
    Eigen::Matrix<Long, 12, 1> ends = Eigen::Matrix<Long, 12, 1>::Zero();
    ends(0) = -forces(0);
    ends(6) = forces(0);
    ends(3) = -forces(1);
    ends(9) = forces(1);
    for (int i = 0; i < 2; ++i) {
        const BendingPlane& plane = bendingPlanes[i];
        const Long across = (forces(2 + 2 * i) + forces(3 + 2 * i)) / element.length;
        ends(plane.v1) = across;
        ends(plane.v2) = -across;
        ends(plane.r1) = static_cast<Long>(plane.sign) * forces(2 + 2 * i);
        ends(plane.r2) = static_cast<Long>(plane.sign) * forces(3 + 2 * i);
    }
    return ends;
}

template <class Action>
void ElementForces::ForEachSpring(const Action& action) const {
    for (const auto* springs : {&m_model.springs, &m_added})
        for (const GroundSpring& spring : *springs)
            action(spring, 6 * spring.node + spring.first, spring.direction.cast<Long>());
}

LongVector ElementForces::Holding(const LongVector& motion) const {
    LongVector forces = LongVector::Zero(motion.size());
    for (const Element& element : m_elements) {
        const Eigen::Matrix<Long, 12, 1> ends = EndForces(element, motion);
        for (int i = 0; i < 12; i += 3)
            forces.segment<3>(6 * element.nodes[i / 6] + i % 6) += element.axes.transpose() * ends.segment<3>(i);
    }
    ForEachSpring([&](const GroundSpring& spring, int place, const Vector3& direction) {
        forces.segment<3>(place) += spring.stiffness * direction.dot(motion.segment<3>(place)) * direction;
    });
    return forces;
}

Long ElementForces::Energy(const LongVector& motion) const {
    Long energy = 0;
    for (const Element& element : m_elements) {
        const Strains strains = StrainsOf(element, motion);
        energy += strains.dot(Forces(element, strains));
    }
    ForEachSpring([&](const GroundSpring& spring, int place, const Vector3& direction) {
        const Long stretch = direction.dot(motion.segment<3>(place));
        energy += spring.stiffness * stretch * stretch;
    });
    return energy;
}

Vector12 ElementForces::OnEnds(std::size_t member, const LongVector& motion) const {
    return EndForces(m_elements[member], motion).cast<double>();
}

} // namespace host
