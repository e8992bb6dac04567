#include "host/analysis/FrameSystem.h"

#include "host/document/Refusal.h"

#include <Eigen/Eigenvalues>

#include <algorithm>
#include <random>

namespace host {

namespace {

// Of a rotation's stiffness at a node, against the largest there: below it only rounding is left.
constexpr double idle = 1e-12;

const char* const axisNames[3] = {"X", "Y", "Z"};

} // namespace

FrameSystem::FrameSystem(const FrameModel& model) : m_model(model) {
    Number();
    Assemble();
}

void FrameSystem::Number() {
    m_unknowns.assign(6 * m_model.nodes.size(), -1);
    int next = 0;
    for (std::size_t node = 0; node < m_model.nodes.size(); ++node)
        for (int i = 0; i < 6; ++i)
            if (m_model.active[node] && !(m_model.fixed[node] >> i & 1))
                Unknown(static_cast<int>(node), i) = next++;
    m_stiffness.resize(next, next);
}

void FrameSystem::AddBlock(int rowNode, int row, int columnNode, int column, const Eigen::Matrix3d& block) {
    if (rowNode == columnNode && row == 3 && column == 3)
        m_turning[static_cast<std::size_t>(rowNode)] += block;
    for (int i = 0; i < 3; ++i) {
        const int to = Unknown(rowNode, row + i);
        if (to < 0)
            continue;
        for (int j = 0; j < 3; ++j) {
            const int from = Unknown(columnNode, column + j);
            if (from >= 0 && from <= to && block(i, j) != 0)
                m_entries.emplace_back(to, from, block(i, j));
        }
    }
}

void FrameSystem::Assemble() {
    m_turning.assign(m_model.nodes.size(), Eigen::Matrix3d::Zero());
    m_entries.reserve(90 * m_model.members.size());
    for (const Member& member : m_model.members) {
        const Matrix12 local = Stiffness(member);
        for (int i = 0; i < 12; i += 3) {
            for (int j = 0; j < 12; j += 3) {
                const Eigen::Matrix3d block = member.axes.transpose() * local.block<3, 3>(i, j) * member.axes;
                AddBlock(member.nodes[i / 6], i % 6, member.nodes[j / 6], j % 6, block);
            }
        }
    }
    for (const GroundSpring& spring : m_model.springs)
        AddBlock(spring.node, spring.first, spring.node, spring.first,
                 spring.stiffness * spring.direction * spring.direction.transpose());
    HoldIdleTurns();
    m_stiffness.setFromTriplets(m_entries.begin(), m_entries.end());
    m_entries = {};
    m_turning = {};
}

void FrameSystem::HoldIdleTurns() {
    for (std::size_t node = 0; node < m_model.nodes.size(); ++node)
        if (m_model.active[node])
            HoldIdleTurnsOf(static_cast<int>(node), m_turning[node]);
}

// Where only truss members or released ends meet, the node's own rotation is no motion of the structure. The sum of the
// members' stiffness about an axis being 0, each of them is: the axis couples with nothing and can be held by itself.
void FrameSystem::HoldIdleTurnsOf(int node, const Eigen::Matrix3d& stiffness) {
    const double largest = stiffness.trace();
    Eigen::Matrix3d free = stiffness;
    int restrained = 0;
    for (int i = 0; i < 3; ++i) {
        if (Unknown(node, 3 + i) >= 0)
            continue;
        free.row(i).setZero();
        free.col(i).setZero();
        free(i, i) = largest;
        ++restrained;
    }
    if (restrained == 3)
        return;
    Eigen::Matrix3d held = Eigen::Matrix3d::Zero();
    if (!(largest > 0)) {
        for (int i = 0; i < 3; ++i) {
            held(i, i) = 1;
            if (Unknown(node, 3 + i) >= 0)
                m_idleTurns.push_back({node, Eigen::Vector3d::Unit(i)});
        }
    } else if (free.determinant() > 1e-9 * largest * largest * largest) {
        return; // nearly every node of a frame
    } else {
        const Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d> solver(free);
        for (int i = 0; i < 3; ++i) {
            if (solver.eigenvalues()(i) > idle * largest)
                continue;
            const Eigen::Vector3d axis = solver.eigenvectors().col(i);
            held += largest * axis * axis.transpose();
            m_idleTurns.push_back({node, axis});
        }
    }
    AddBlock(node, 3, node, 3, held);
}

void FrameSystem::Factor() {
    if (Unknowns() == 0)
        return;
    // Small pivots: the structure is soft somewhere, or a mechanism.
    const bool factored = m_solver.Factor(m_stiffness);
    if (factored && m_solver.LeastPivot() > 1e-8)
        return;
    double energy;
    const Eigen::VectorXd motion = SoftestMotion(energy);
    constexpr double mechanism = 1e-14; // a slender chain of a thousand members has 1e-13
    if (!factored || !(energy > mechanism))
        Refuse(motion);
}

// The motion that costs the least energy against the diagonal's, by inverse iteration. `energy` is that ratio: free of
// units, rounding alone for a mechanism.
Eigen::VectorXd FrameSystem::SoftestMotion(double& energy) const {
    const Eigen::VectorXd diagonal = m_stiffness.diagonal();
    for (Eigen::Index i = 0; i < diagonal.size(); ++i) {
        // A component with no stiffness at all moves by itself.
        if (!(diagonal(i) > 0)) {
            energy = 0;
            return Eigen::VectorXd::Unit(diagonal.size(), i);
        }
    }
    // A little more stiffness everywhere, so that there is a factor: as little as rounding allows.
    SparseCholesky solver;
    Sparse shifted = m_stiffness;
    double shift = 1e-12;
    for (; shift < 1e-3; shift *= 100) {
        for (Eigen::Index i = 0; i < diagonal.size(); ++i)
            shifted.coeffRef(i, i) = (1 + shift) * diagonal(i);
        if (solver.Factor(shifted))
            break;
    }
    if (shift >= 1e-3) {
        energy = 0;
        return Eigen::VectorXd::Ones(diagonal.size());
    }
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(-1, 1);
    Eigen::VectorXd motion = Eigen::VectorXd::NullaryExpr(diagonal.size(), [&] { return anywhere(random); });
    const auto weight = [&](const Eigen::VectorXd& x) { return x.cwiseProduct(x).dot(diagonal); };
    motion.array() /= diagonal.array().sqrt();
    for (int round = 0; round < 8; ++round) {
        motion /= std::sqrt(weight(motion));
        motion = solver.Solve(diagonal.cwiseProduct(motion));
    }
    motion /= std::sqrt(weight(motion));
    energy = motion.dot(m_stiffness.selfadjointView<Eigen::Lower>() * motion);
    return motion;
}

void FrameSystem::Refuse(const Eigen::VectorXd& motion) const {
    // The node that moves most, and the axis that it moves along most. Turns count where nothing moves.
    struct Largest {
        double value = 0;
        int node = 0, axis = 0;
    } moved, turned;
    for (std::size_t node = 0; node < m_model.nodes.size(); ++node) {
        for (const int first : {0, 3}) {
            Eigen::Vector3d part = Eigen::Vector3d::Zero();
            for (int i = 0; i < 3; ++i)
                if (const int unknown = Unknown(static_cast<int>(node), first + i); unknown >= 0)
                    part(i) = motion(unknown);
            Largest& largest = first == 0 ? moved : turned;
            // The first of equals, whatever the rounding.
            if (!(part.norm() > largest.value * (1 + 1e-6)))
                continue;
            largest.value = part.norm();
            largest.node = static_cast<int>(node);
            for (int i = largest.axis = 0; i < 3; ++i)
                if (std::abs(part(i)) > std::abs(part(largest.axis)) * (1 + 1e-6))
                    largest.axis = i;
        }
    }
    const bool turns = moved.value < 1e-6 * turned.value * m_model.typicalLength;
    const Largest& found = turns ? turned : moved;
    throw Refusal("La struttura è labile%s: il nodo n.ro %d %s %s."_t, OrTooShort(),
                  m_model.nodes[static_cast<std::size_t>(found.node)]->GetID(),
                  CString(turns ? "ruota attorno all'asse" : "si sposta in direzione"), CString(axisNames[found.axis]));
}

// Numbers cannot tell a mechanism from a member so short that it is as good as rigid against the others.
CString FrameSystem::OrTooShort() const {
    constexpr double veryShort = 1e-3; // of the mean
    const auto shorter = [](const Member& a, const Member& b) { return a.length < b.length; };
    const auto shortest = std::min_element(m_model.members.begin(), m_model.members.end(), shorter);
    CString text;
    if (shortest != m_model.members.end() && shortest->length < veryShort * m_model.typicalLength)
        text.Format(", oppure l'elemento n.ro %d è troppo corto rispetto agli altri"_t, shortest->line->GetID());
    return text;
}

Eigen::VectorXd FrameSystem::Solve(const Eigen::VectorXd& forces, const Eigen::VectorXd& prescribed) const {
    double scale = 0; // of the moments: what is small against it is rounding
    for (Eigen::Index i = 0; i < forces.size(); ++i)
        scale = std::max(scale, std::abs(forces(i)) * (i % 6 < 3 ? m_model.typicalLength : 1));
    for (const IdleTurn& turn : m_idleTurns) {
        const Eigen::Vector3d moment = forces.segment<3>(6 * turn.node + 3);
        if (std::abs(moment.dot(turn.axis)) <= 1e-9 * scale)
            continue;
        Eigen::Index axis;
        turn.axis.cwiseAbs().maxCoeff(&axis);
        throw Refusal("La struttura è labile: il nodo n.ro %d ruota attorno all'asse %s."_t,
                      m_model.nodes[static_cast<std::size_t>(turn.node)]->GetID(), axisNames[axis]);
    }
    Eigen::VectorXd all = prescribed;
    if (Unknowns() == 0)
        return all;
    Eigen::VectorXd right(Unknowns());
    for (std::size_t i = 0; i < m_unknowns.size(); ++i)
        if (m_unknowns[i] >= 0)
            right(m_unknowns[i]) = forces(static_cast<Eigen::Index>(i));
    Eigen::VectorXd solution = m_solver.Solve(right);
    // One refinement takes back what a bad condition costs.
    const Eigen::VectorXd residual = right - m_stiffness.selfadjointView<Eigen::Lower>() * solution;
    solution += m_solver.Solve(residual);
    for (std::size_t i = 0; i < m_unknowns.size(); ++i)
        if (m_unknowns[i] >= 0)
            all(static_cast<Eigen::Index>(i)) = solution(m_unknowns[i]) + 0.0;
    return all;
}

Eigen::VectorXd FrameSystem::SpringForces(const Eigen::VectorXd& displacements) const {
    Eigen::VectorXd forces = Eigen::VectorXd::Zero(displacements.size());
    for (const GroundSpring& spring : m_model.springs) {
        const int place = 6 * spring.node + spring.first;
        const double stretch = spring.direction.dot(displacements.segment<3>(place));
        forces.segment<3>(place) -= spring.stiffness * stretch * spring.direction;
    }
    return forces;
}

} // namespace host
