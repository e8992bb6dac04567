#include "host/analysis/FrameSystem.h"

#include "host/document/Refusal.h"

#include <Eigen/Eigenvalues>

#include <algorithm>
#include <numeric>
#include <random>
#include <utility>

namespace host {

namespace {

// Of a rotation's stiffness at a node, against the largest there: below it only rounding is left.
constexpr double idle = 1e-12;

const char* const axisNames[3] = {"X", "Y", "Z"};

} // namespace

FrameSystem::FrameSystem(const FrameModel& model) : m_model(model), m_elements(model) {
    Number();
    Assemble();
}

void FrameSystem::Number() {
    m_unknowns.assign(6 * m_model.nodes.size(), -1);
    for (std::size_t node = 0; node < m_model.nodes.size(); ++node) {
        for (int i = 0; i < 6; ++i) {
            if (m_model.active[node] && !(m_model.fixed[node] >> i & 1)) {
                Unknown(static_cast<int>(node), i) = static_cast<int>(m_nodesOfUnknowns.size());
                m_nodesOfUnknowns.push_back(static_cast<int>(node));
            }
        }
    }
    m_stiffness.resize(std::ssize(m_nodesOfUnknowns), std::ssize(m_nodesOfUnknowns));
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
    m_diagonal = m_stiffness.diagonal();
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
    if (!(largest > 0)) {
        for (int i = 0; i < 3; ++i)
            if (Unknown(node, 3 + i) >= 0)
                HoldIdleTurn({node, Eigen::Vector3d::Unit(i)}, 1);
        return;
    }
    if (free.determinant() > 1e-9 * largest * largest * largest)
        return; // nearly every node of a frame
    const Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d> solver(free);
    for (int i = 0; i < 3; ++i)
        if (solver.eigenvalues()(i) <= idle * largest)
            HoldIdleTurn({node, solver.eigenvectors().col(i)}, largest);
}

void FrameSystem::HoldIdleTurn(const IdleTurn& turn, double stiffness) {
    m_idleTurns.push_back(turn);
    m_elements.AddSpring({turn.node, 3, turn.axis, stiffness});
    AddBlock(turn.node, 3, turn.node, 3, stiffness * turn.axis * turn.axis.transpose());
}

// A part that nothing restrains moves as a whole: every node of it is named, not the one that happens to move most.
void FrameSystem::RefuseLooseParts() const {
    std::vector<int> parents(m_model.nodes.size());
    std::iota(parents.begin(), parents.end(), 0);
    const auto root = [&parents](int node) {
        while (parents[static_cast<std::size_t>(node)] != node) {
            int& parent = parents[static_cast<std::size_t>(node)];
            node = parent = parents[static_cast<std::size_t>(parent)];
        }
        return static_cast<std::size_t>(node);
    };
    for (const Member& member : m_model.members)
        parents[root(member.nodes[0])] = static_cast<int>(root(member.nodes[1]));
    std::vector<bool> held(m_model.nodes.size());
    for (std::size_t i = 0; i < m_model.nodes.size(); ++i)
        if (m_model.fixed[i])
            held[root(static_cast<int>(i))] = true;
    for (const GroundSpring& spring : m_model.springs)
        held[root(spring.node)] = true;
    constexpr int most = 12;
    CString list;
    int count = 0;
    for (std::size_t i = 0; i < m_model.nodes.size(); ++i) {
        if (!m_model.active[i] || held[root(static_cast<int>(i))])
            continue;
        CString number;
        number.Format(count == 0 ? "%d" : ", %d", m_model.nodes[i]->GetID());
        if (count++ < most)
            list += number;
    }
    if (count > most) {
        CString rest;
        rest.Format(" e altri %d", count - most);
        list += rest;
    }
    if (count > 0)
        throw Refusal("La struttura è labile: nessun vincolo trattiene i nodi n.ro %s."_t, list);
}

// A soft structure that the factor does solve for and a mechanism that rounding gave a little stiffness have equally
// small pivots. They differ in what the exact forces of a motion tell the factor: of a mechanism, nothing.
void FrameSystem::Factor() {
    constexpr double slow = 0.5;     // what remains of a motion after a round in which refinement is of use
    constexpr double settled = 1e-6; // a mechanism that is less of the first motion would not be seen
    constexpr int mostRounds = 200;
    constexpr Long mechanism = 1e-22L; // energy: geometry rounded to the last bit has 1e-32, the last double 1e-16
    RefuseLooseParts();
    if (Unknowns() == 0)
        return;
    for (Eigen::Index i = 0; i < m_diagonal.size(); ++i)
        if (!(m_diagonal(i) > 0)) // moves by itself
            Refuse("La struttura è labile"_t, Spread(Eigen::VectorXd::Unit(m_diagonal.size(), i)));
    FactorStiffness();
    LongVector motion = SoftMotion();
    double remaining = 1;
    int slowRounds = 0;
    Long energy = m_elements.Energy(motion);
    for (int round = 1; remaining > settled; ++round) {
        const LongVector rest = Unsolved(motion);
        const double rate = Size(Gathered(rest));
        remaining *= rate;
        if (remaining <= settled)
            return;
        motion = Normalised(rest);
        const Long former = std::exchange(energy, m_elements.Energy(motion));
        slowRounds = rate > slow ? slowRounds + 1 : 0;
        if (round < mostRounds && (slowRounds < 3 || energy < former / 2))
            continue;
        if (energy < mechanism)
            Refuse("La struttura è labile"_t, motion);
        Refuse("Il calcolo non distingue se la struttura è labile o ha rigidezze troppo diverse fra loro"_t +
                   OrTooShort(),
               motion);
    }
}

void FrameSystem::FactorStiffness() {
    if (m_solver.Factor(m_stiffness, m_nodesOfUnknowns))
        return;
    for (double more = 1e-15; more < 1e-3; more *= 10) {
        for (Eigen::Index i = 0; i < m_diagonal.size(); ++i)
            m_stiffness.coeffRef(i, i) = (1 + more) * m_diagonal(i);
        if (m_solver.Factor(m_stiffness, m_nodesOfUnknowns))
            return;
    }
    throw Refusal("Le equazioni della struttura non si risolvono: le rigidezze non sono numeri validi.");
}

LongVector FrameSystem::SoftMotion() const {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(-1, 1);
    Eigen::VectorXd motion = Eigen::VectorXd::NullaryExpr(m_diagonal.size(), [&] { return anywhere(random); });
    motion.array() /= m_diagonal.array().sqrt();
    for (int round = 0; round < 3; ++round)
        motion = Gathered(Normalised(Spread(m_solver.Solve(m_diagonal.cwiseProduct(motion)))));
    return Spread(motion);
}

LongVector FrameSystem::Unsolved(const LongVector& motion) const {
    return motion - Spread(m_solver.Solve(Gathered(m_elements.Holding(motion))));
}

LongVector FrameSystem::Normalised(const LongVector& motion) const {
    return motion / static_cast<Long>(Size(Gathered(motion)));
}

double FrameSystem::Size(const Eigen::VectorXd& unknowns) const {
    return std::sqrt(unknowns.cwiseAbs2().dot(m_diagonal));
}

Eigen::VectorXd FrameSystem::Gathered(const LongVector& all) const {
    Eigen::VectorXd unknowns(Unknowns());
    for (std::size_t i = 0; i < m_unknowns.size(); ++i)
        if (m_unknowns[i] >= 0)
            unknowns(m_unknowns[i]) = static_cast<double>(all(static_cast<Eigen::Index>(i)));
    return unknowns;
}

LongVector FrameSystem::Spread(const Eigen::VectorXd& unknowns) const {
    LongVector all = LongVector::Zero(static_cast<Eigen::Index>(m_unknowns.size()));
    for (std::size_t i = 0; i < m_unknowns.size(); ++i)
        if (m_unknowns[i] >= 0)
            all(static_cast<Eigen::Index>(i)) = unknowns(m_unknowns[i]);
    return all;
}

void FrameSystem::Refuse(const CString& verdict, const LongVector& motion) const {
    // The node that moves most, and the axis that it moves along most. Turns count where nothing moves.
    struct Largest {
        double value = 0;
        int node = 0, axis = 0;
    } moved, turned;
    for (std::size_t node = 0; node < m_model.nodes.size(); ++node) {
        for (const int first : {0, 3}) {
            const Eigen::Vector3d part = motion.segment<3>(6 * static_cast<Eigen::Index>(node) + first).cast<double>();
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
    throw Refusal("%s: il nodo n.ro %d %s %s.", verdict, m_model.nodes[static_cast<std::size_t>(found.node)]->GetID(),
                  CString(turns ? "ruota attorno all'asse" : "si sposta in direzione"), CString(axisNames[found.axis]));
}

// A member so short that it is as good as rigid against the others is the likely reason.
CString FrameSystem::OrTooShort() const {
    constexpr double veryShort = 1e-3; // of the mean
    const auto shorter = [](const Member& a, const Member& b) { return a.length < b.length; };
    const auto shortest = std::min_element(m_model.members.begin(), m_model.members.end(), shorter);
    CString text;
    if (shortest != m_model.members.end() && shortest->length < veryShort * m_model.typicalLength)
        text.Format(" (l'elemento n.ro %d è troppo corto rispetto agli altri)"_t, shortest->line->GetID());
    return text;
}

LongVector FrameSystem::Solve(const Eigen::VectorXd& forces, const Eigen::VectorXd& prescribed) const {
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
    LongVector all = prescribed.cast<Long>();
    if (Unknowns() == 0)
        return all;
    // Each round solves for what the elements still lack, and takes back what the condition of the system cost.
    constexpr int most = 60;
    constexpr double enough = 1e-20; // against the first answer
    double first = 0, former = 0;
    for (int round = 0; round < most; ++round) {
        const Eigen::VectorXd step = m_solver.Solve(Gathered(forces.cast<Long>() - m_elements.Holding(all)));
        const double size = Size(step);
        all += Spread(step);
        if (round == 0)
            first = size;
        else if (!(size > 0) || size * (size / former) <= enough * first || size > former / 2)
            break; // there, or only rounding is left
        former = size;
    }
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
