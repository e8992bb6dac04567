// The stiffness of one member and the forces that hold its ends while it is loaded, in its local axes.
//
// Twelve components: three displacements and three rotations of the first end, then of the second. All of it is
// linear elastic, with shear deformation where a shear ratio is not 0.
#pragma once

#include "model/element/LineaRisultati.h"

#include <Eigen/Core>

namespace host {

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

// The stiffness with the releases condensed out: what the nodes feel. Released components have rows of zeros.
Matrix12 Stiffness(const Member& member);
// The forces on fixed ends under the loads that the record carries and the thermal strain, in the same condensed form.
// Throws Refusal when a load acts along a motion that the releases of both ends leave to the member alone.
Vector12 FixedEndForces(const Member& member, const CTraveRisultati& loads, const ThermalStrain& thermal);

} // namespace host
