#include "host/analysis/Member.h"

#include "host/document/Refusal.h"

namespace host {

namespace {

using Bending = StrainStiffness::Bending;

void AddBar(Matrix12& k, int first, int second, double stiffness) {
    k(first, first) += stiffness;
    k(second, second) += stiffness;
    k(first, second) -= stiffness;
    k(second, first) -= stiffness;
}

void AddBending(Matrix12& k, const BendingPlane& p, const Bending& bending, double length) {
    const double near = (bending.first + bending.coupled) / length * p.sign;
    const double far = (bending.coupled + bending.second) / length * p.sign;
    AddBar(k, p.v1, p.v2, (near + far) * p.sign / length);
    const auto both = [&k](int i, int j, double value) {
        k(i, j) += value;
        k(j, i) += value;
    };
    both(p.v1, p.r1, near);
    both(p.v1, p.r2, far);
    both(p.v2, p.r1, -near);
    both(p.v2, p.r2, -far);
    both(p.r1, p.r2, bending.coupled);
    k(p.r1, p.r1) += bending.first;
    k(p.r2, p.r2) += bending.second;
}

Matrix12 Assembled(const StrainStiffness& strains, double length) {
    Matrix12 k = Matrix12::Zero();
    AddBar(k, 0, 6, strains.axial);
    AddBar(k, 3, 9, strains.torsion);
    for (int i = 0; i < 2; ++i)
        AddBending(k, bendingPlanes[i], strains.bending[i], length);
    return k;
}

// With a hinge at an end, that end's turn follows the other's.
Bending BendingStiffness(double ei, double shear, double length, bool firstReleased, bool secondReleased) {
    if (firstReleased && secondReleased)
        return {};
    const double unit = ei / length;
    if (firstReleased || secondReleased) {
        const double hinged = 12 * unit / (4 + shear);
        return {secondReleased ? hinged : 0, 0, firstReleased ? hinged : 0};
    }
    const double near = (4 + shear) / (1 + shear) * unit;
    return {near, (2 - shear) / (1 + shear) * unit, near};
}

StrainStiffness StrainsOf(const Member& m, unsigned released) {
    const auto free = [released](int component) { return (released >> component & 1) != 0; };
    StrainStiffness strains;
    if (!free(0) && !free(6))
        strains.axial = m.ea / m.length;
    if (m.truss)
        return strains;
    if (!free(3) && !free(9))
        strains.torsion = m.gj / m.length;
    strains.bending[0] = BendingStiffness(m.ei3, m.shear2, m.length, free(5), free(11));
    strains.bending[1] = BendingStiffness(m.ei2, m.shear3, m.length, free(4), free(10));
    return strains;
}

// A component whose stiffness is gone once others are condensed out: only rounding is left of it.
constexpr double nothing = 1e-12;

// Frees the released components, one after the other. Calls `lost` with a component that nothing holds any more.
template <class Lost>
void Condense(const Member& m, Matrix12& k, Vector12& forces, const Lost& lost) {
    const Vector12 before = k.diagonal();
    for (int d = 0; d < 12; ++d) {
        if (!(m.released >> d & 1))
            continue;
        const double pivot = k(d, d);
        if (pivot > nothing * before(d)) {
            const Vector12 column = k.col(d) / pivot;
            forces -= column * forces(d);
            k -= column * k.row(d).eval();
        } else {
            lost(d, forces(d));
        }
        k.row(d).setZero();
        k.col(d).setZero();
        forces(d) = 0;
    }
}

// Displacement, and rotation, at a place for unit motions of the ends: v1, r1, v2, r2. With shear deformation the
// rotation is the section's, not the slope.
struct Shape {
    double displacement[4];
    double rotation[4];
};

Shape BeamShape(double x, double length, double shear) {
    const double t = x / length, u = 1 - t, f = 1 / (1 + shear);
    return {
        {f * u * (u * (1 + 2 * t) + shear), f * length * t * u * (u + shear / 2), f * t * (t * (3 - 2 * t) + shear),
         -f * length * t * u * (t + shear / 2)},
        {-f * 6 * t * u / length, f * u * (1 - 3 * t + shear), f * 6 * t * u / length, f * t * (3 * t - 2 + shear)}};
}

Shape TrussShape(double x, double length) {
    const double t = x / length;
    return {{1 - t, 0, t, 0}, {-1 / length, 0, 1 / length, 0}};
}

void HoldAcross(Vector12& f, const BendingPlane& p, const Shape& shape, double force, double moment) {
    const int places[4] = {p.v1, p.r1, p.v2, p.r2};
    for (int i = 0; i < 4; ++i) {
        const double turn = i % 2 ? p.sign : 1.0; // of a rotation against the slope of the shape
        f(places[i]) -= turn * (force * shape.displacement[i] + p.sign * moment * shape.rotation[i]);
    }
}

// By the reciprocal theorem the ends' forces under a load are the work of the load in unit motions of the ends.
void HoldPoint(Vector12& f, const Member& m, double x, const double (&force)[3], const double (&moment)[3]) {
    const double t = x / m.length;
    f(0) -= force[0] * (1 - t);
    f(6) -= force[0] * t;
    f(3) -= moment[0] * (1 - t);
    f(9) -= moment[0] * t;
    for (int i = 0; i < 2; ++i) {
        const Shape shape = m.truss ? TrussShape(x, m.length) : BeamShape(x, m.length, i == 0 ? m.shear2 : m.shear3);
        HoldAcross(f, bendingPlanes[i], shape, force[1 + i], moment[2 - i]);
    }
}

// The shapes are cubic and the load linear: three points of Gauss integrate their product exactly.
void HoldDistributed(Vector12& f, const Member& m, const CTraveRisultati::Distributed& load) {
    static constexpr double place[3] = {0.11270166537925831148, 0.5, 0.88729833462074168852};
    static constexpr double weight[3] = {5.0 / 18, 8.0 / 18, 5.0 / 18};
    static constexpr double none[3] = {};
    const double length = load.a - load.da;
    for (int i = 0; i < 3; ++i) {
        double force[3];
        for (int axis = 0; axis < 3; ++axis)
            force[axis] = weight[i] * length * (load.inizio[axis] + place[i] * (load.fine[axis] - load.inizio[axis]));
        HoldPoint(f, m, load.da + place[i] * length, force, none);
    }
}

void HoldThermal(Vector12& f, const Member& m, const ThermalStrain& thermal) {
    const double axial = m.ea * thermal.axial;
    f(0) += axial;
    f(6) -= axial;
    if (m.truss)
        return;
    // Growing warmer along 2 turns the sections backwards about 3; along 3, forwards about 2.
    const double moment3 = m.ei3 * thermal.curvature2, moment2 = m.ei2 * thermal.curvature3;
    f(5) -= moment3;
    f(11) += moment3;
    f(4) += moment2;
    f(10) -= moment2;
}

} // namespace

Vector12 Member::ToLocal(const Vector12& global) const {
    Vector12 local;
    for (int i = 0; i < 12; i += 3)
        local.segment<3>(i) = axes * global.segment<3>(i);
    return local;
}

Vector12 Member::ToGlobal(const Vector12& local) const {
    Vector12 global;
    for (int i = 0; i < 12; i += 3)
        global.segment<3>(i) = axes.transpose() * local.segment<3>(i);
    return global;
}

StrainStiffness StiffnessOfStrains(const Member& member) {
    return StrainsOf(member, member.released);
}

Matrix12 Stiffness(const Member& member) {
    return Assembled(StiffnessOfStrains(member), member.length);
}

Vector12 FixedEndForces(const Member& member, const CTraveRisultati& loads, const ThermalStrain& thermal) {
    Vector12 f = Vector12::Zero();
    for (const auto& load : loads.GetDistributed())
        HoldDistributed(f, member, load);
    for (const auto& load : loads.GetPointForces())
        HoldPoint(f, member, load.x, load.force, load.moment);
    HoldThermal(f, member, thermal);
    const double scale = f.cwiseAbs().maxCoeff();
    const auto lost = [&](int component, double force) {
        if (std::abs(force) <= 1e-9 * scale)
            return;
        const CString kind = member.truss ? "l'asta" : "la trave";
        if (component % 6 < 3)
            throw Refusal(
                "La struttura è labile: %s n.ro %d, svincolata ai due estremi, scorre lungo il proprio asse al nodo n.ro %d."_t,
                kind, member.line->GetID(), member.line->GetIDNodoIniziale());
        throw Refusal(
            "La struttura è labile: %s n.ro %d, svincolata ai due estremi, ruota attorno al proprio asse al nodo n.ro %d."_t,
            kind, member.line->GetID(), member.line->GetIDNodoIniziale());
    };
    if (member.truss) {
        lost(3, f(3));
        lost(9, f(9));
        f(3) = f(9) = 0;
    } else if (member.released) {
        Matrix12 k = Assembled(StrainsOf(member, 0), member.length);
        Condense(member, k, f, lost);
    }
    return f;
}

} // namespace host
