// The stiffness of one member and the forces that hold its ends while it is loaded, in its local axes.
//
// Twelve components: three displacements and three rotations of the first end, then of the second. All of it is
// linear elastic, with shear deformation where a shear ratio is not 0.
#pragma once

#include "model/element/LineaRisultati.h"

#include <Eigen/Core>

namespace host {

using Vector6 = Eigen::Matrix<double, 6, 1>;
using Vector12 = Eigen::Matrix<double, 12, 1>;
using Matrix12 = Eigen::Matrix<double, 12, 12>;

struct Member {
    CLineaRisultati* line = nullptr; // the document's
    int nodes[2] = {};               // indexes
    bool truss = false;              // axial stiffness only; loads across it rest on its ends
    unsigned released = 0;           // bit i: component i is not handed over to the node
    double length = 0;
    Eigen::Matrix3d axes; // rows: the local axes in global components
    double ea = 0, gj = 0;
    double ei2 = 0, ei3 = 0;       // bending about axes 2 and 3
    double shear2 = 0, shear3 = 0; // 12 EI / (G As L^2) for displacements along 2 and 3; 0 is rigid in shear
    double mass = 0;               // per length

    // Local components of a global vector of twelve, and back.
    Vector12 ToLocal(const Vector12& global) const;
    Vector12 ToGlobal(const Vector12& local) const;
};

// What a change of temperature does to a member that is free to follow it.
struct ThermalStrain {
    double axial = 0;                      // elongation per length
    double curvature2 = 0, curvature3 = 0; // growth of the elongation along axes 2 and 3, per length
};

// What resists the six ways in which a member strains; a motion as a rigid body is none of them. What is released
// resists nothing, exactly.
struct StrainStiffness {
    // Of a plane of bending: moments at both ends under turns of the ends against the chord.
    struct Bending {
        double first = 0, coupled = 0, second = 0;
    };
    double axial = 0, torsion = 0; // of the growth of the length, of the turn of one end against the other
    Bending bending[2];            // with displacements along 2, along 3
};
StrainStiffness StiffnessOfStrains(const Member& member);

// The components of a plane of bending: displacement and rotation of the first end, then of the second. Along axis 3
// a positive rotation is the falling slope, hence the sign.
struct BendingPlane {
    int v1, r1, v2, r2;
    double sign;
};
inline constexpr BendingPlane bendingPlanes[2] = {{1, 5, 7, 11, 1.0}, {2, 4, 8, 10, -1.0}}; // along 2, along 3

// The stiffness with the releases condensed out: what the nodes feel. Released components have rows of zeros.
Matrix12 Stiffness(const Member& member);
// The forces on fixed ends under the loads that the record carries and the thermal strain, in the same condensed form.
// Throws Refusal when a load acts along a motion that the releases of both ends leave to the member alone.
Vector12 FixedEndForces(const Member& member, const CTraveRisultati& loads, const ThermalStrain& thermal);

} // namespace host
