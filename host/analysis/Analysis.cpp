#include "host/analysis/Analysis.h"

#include "dialogs/frame/host/MainFrame.h"
#include "host/analysis/FrameSystem.h"
#include "host/document/Refusal.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"

#include <Eigen/Geometry>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <future>

namespace host {

namespace {

// Force and moment about a place of all that acts on a structure.
class Resultant {
  public:
    explicit Resultant(const Eigen::Vector3d& about) : m_about(about) {}

    void AtNode(CNodo& node, const double* six) {
        const CFPoint& place = *node.GetPunto();
        Add({place.x, place.y, place.z}, Eigen::Map<const Eigen::Vector3d>(six),
            Eigen::Map<const Eigen::Vector3d>(six + 3));
    }

    void OnMember(const Member& member, const CTraveRisultati& loads) {
        const CFPoint& start = *member.line->GetNodoIniziale()->GetPunto();
        const Eigen::Vector3d first(start.x, start.y, start.z);
        const auto add = [&](double x, const Eigen::Vector3d& force, const Eigen::Vector3d& moment) {
            Add(first + x * member.axes.row(0).transpose(), member.axes.transpose() * force,
                member.axes.transpose() * moment);
        };
        for (const CTraveRisultati::Distributed& load : loads.GetDistributed()) {
            // Two triangles: each its own resultant, at a third of the stretch.
            const double length = load.a - load.da;
            add(load.da + length / 3, length / 2 * Eigen::Map<const Eigen::Vector3d>(load.inizio),
                Eigen::Vector3d::Zero());
            add(load.a - length / 3, length / 2 * Eigen::Map<const Eigen::Vector3d>(load.fine),
                Eigen::Vector3d::Zero());
        }
        for (const CTraveRisultati::PointForce& load : loads.GetPointForces())
            add(load.x, Eigen::Map<const Eigen::Vector3d>(load.force), Eigen::Map<const Eigen::Vector3d>(load.moment));
    }

    Vector6 total = Vector6::Zero();
    double largest = 0; // sum of the forces' sizes

  private:
    void Add(const Eigen::Vector3d& place, const Eigen::Vector3d& force, const Eigen::Vector3d& moment) {
        total.head<3>() += force;
        total.tail<3>() += moment + (place - m_about).cross(force);
        largest += force.norm();
    }

    Eigen::Vector3d m_about;
};

// One load case: from its loads to displacements, end forces and reactions.
class CaseAnalysis {
  public:
    CaseAnalysis(FrameModel& model, const FrameSystem& system, CaseLoads loads)
        : m_model(model), m_system(system), m_loads(std::move(loads)) {}

    // `former` holds the cases analysed before.
    CaseResults Run(int id, const std::vector<CaseResults>& former) {
        FixEnds();
        const Eigen::VectorXd forces = m_loads.nodal - EndForces();
        Weigh(m_loads.nodal);
        WeighEnds();
        if (!m_loads.displacements.isZero(0))
            Weigh(m_system.Elements().Holding(m_loads.displacements.cast<Long>()).cast<double>());
        const LongVector motion = m_system.Solve(forces, m_loads.displacements);
        const Eigen::VectorXd displacements = motion.cast<double>().array() + 0.0; // no negative zeros
        CaseResults results;
        results.id = id;
        CompleteEnds(motion);
        WeighEnds();
        const Eigen::VectorXd needed = EndForces() - m_loads.nodal;
        const Eigen::VectorXd springs = m_system.SpringForces(displacements);
        if (!displacements.allFinite() || !needed.allFinite() || !springs.allFinite())
            throw Refusal("I risultati del caso di carico n.ro %d non sono numeri finiti.", id);
        CheckBalance(id, needed, springs);
        React(results, needed, springs);
        CheckSum(results);
        for (std::size_t i = 0; i < m_model.members.size(); ++i) {
            double ends[12];
            Eigen::Map<Vector12>(ends, 12) = m_ends[i];
            m_loads.lines[i].SetEndForces(ends);
        }
        results.lines = LineResults(m_loads.lines, former.empty() ? nullptr : &former.front().lines);
        results.scale = ScaleOf(m_loads.lines);
        results.displacements.resize(m_model.nodes.size());
        for (std::size_t i = 0; i < m_model.nodes.size(); ++i)
            std::copy_n(displacements.data() + 6 * i, 6, results.displacements[i].begin());
        return results;
    }

  private:
    void FixEnds() {
        m_ends.resize(m_model.members.size());
        for (std::size_t i = 0; i < m_ends.size(); ++i) {
            const auto thermal = m_loads.thermal.find(static_cast<int>(i));
            m_ends[i] = FixedEndForces(m_model.members[i], m_loads.lines[i],
                                       thermal == m_loads.thermal.end() ? ThermalStrain() : thermal->second);
        }
    }

    // The sum of the members' end forces at each node.
    Eigen::VectorXd EndForces() const {
        Eigen::VectorXd sum = Eigen::VectorXd::Zero(m_loads.nodal.size());
        for (std::size_t i = 0; i < m_ends.size(); ++i) {
            if (m_ends[i].isZero(0))
                continue;
            const Member& member = m_model.members[i];
            const Vector12 global = member.ToGlobal(m_ends[i]);
            sum.segment<6>(6 * member.nodes[0]) += global.head<6>();
            sum.segment<6>(6 * member.nodes[1]) += global.tail<6>();
        }
        return sum;
    }

    void CompleteEnds(const LongVector& motion) {
        for (std::size_t i = 0; i < m_ends.size(); ++i)
            m_ends[i] += m_system.Elements().OnEnds(i, motion);
    }

    // Six components at one node make one unit: moments count as forces at the extent of the model.
    double UnitOf(Eigen::Index component) const { return component % 6 < 3 ? 1 : m_model.extent; }

    // Keeps the largest: what is small against it is rounding. Where nothing resists a change of temperature or a
    // settlement, only the forces that would hold the ends tell how large the numbers were.
    void Weigh(const Eigen::Ref<const Eigen::VectorXd>& forces) {
        for (Eigen::Index i = 0; i < forces.size(); ++i)
            m_largest = std::max(m_largest, std::abs(forces(i)) / UnitOf(i));
    }

    void WeighEnds() {
        for (const Vector12& ends : m_ends)
            Weigh(ends);
    }

    // What the ends of members on a node need beyond its loads, its springs must give, unless a support does. What is
    // missing tells how many digits the solution has lost, as with very short members or very long chains of them.
    void CheckBalance(int id, const Eigen::VectorXd& needed, const Eigen::VectorXd& springs) {
        double missing = 0;
        std::size_t worst = 0;
        for (Eigen::Index i = 0; i < needed.size(); ++i) {
            const auto node = static_cast<std::size_t>(i / 6);
            if (!m_model.active[node] || m_model.fixed[node] >> (i % 6) & 1)
                continue;
            if (const double lack = std::abs(needed(i) - springs(i)) / UnitOf(i); lack > missing) {
                missing = lack;
                worst = node;
            }
        }
        CString where;
        where.Format("al nodo n.ro %d l'equilibrio manca"_t, m_model.nodes[worst]->GetID());
        Judge(id, where, missing, m_largest);
    }

    // The supports carry the loads, all of them and no more, whatever lies between.
    void CheckSum(const CaseResults& results) {
        Resultant sum(m_model.centre);
        for (std::size_t i = 0; i < m_model.nodes.size(); ++i)
            if (m_model.active[i])
                sum.AtNode(*m_model.nodes[i], m_loads.nodal.data() + 6 * i);
        for (const CaseResults::Reaction& reaction : results.reactions)
            if (m_model.active[static_cast<std::size_t>(reaction.node)])
                sum.AtNode(*m_model.nodes[static_cast<std::size_t>(reaction.node)], reaction.values.data());
        for (std::size_t i = 0; i < m_model.members.size(); ++i)
            sum.OnMember(m_model.members[i], m_loads.lines[i]);
        double missing = 0;
        for (Eigen::Index i = 0; i < 6; ++i)
            missing = std::max(missing, std::abs(sum.total(i)) / UnitOf(i));
        Judge(results.id, "alla somma delle reazioni e dei carichi l'equilibrio manca"_t, missing,
              std::max(m_largest, sum.largest));
    }

    // What is missing tells how many digits the results have.
    void Judge(int id, const CString& what, double missing, double largest) {
        constexpr double untrue = 1e-3, tolerable = 1e-9;
        if (missing <= tolerable * largest)
            return;
        if (!(missing <= untrue * largest))
            throw Refusal(
                "I risultati del caso di carico n.ro %d non sono attendibili: %s di %.1g volte la forza massima."_t, id,
                what, missing / largest);
        CString text;
        text.Format("I risultati del caso di carico n.ro %d sono poco precisi: %s di %.1g volte la forza massima.", id,
                    what, missing / largest);
        m_model.Note(text);
    }

    // What the members lack of equilibrium at a support is its reaction.
    void React(CaseResults& results, const Eigen::VectorXd& needed, const Eigen::VectorXd& springs) {
        std::vector<bool> sprung(m_model.nodes.size());
        for (const GroundSpring& spring : m_model.springs)
            sprung[static_cast<std::size_t>(spring.node)] = true;
        for (std::size_t i = 0; i < m_model.nodes.size(); ++i) {
            if (!m_model.fixed[i] && !sprung[i])
                continue;
            CaseResults::Reaction reaction{static_cast<int>(i), {}};
            for (int j = 0; j < 6; ++j) {
                const auto place = static_cast<Eigen::Index>(6 * i) + j;
                const double value = m_model.fixed[i] >> j & 1 ? needed(place) : springs(place);
                reaction.values[static_cast<std::size_t>(j)] = value + 0.0;
            }
            results.reactions.push_back(reaction);
        }
    }

    FrameModel& m_model;
    const FrameSystem& m_system;
    CaseLoads m_loads;
    std::vector<Vector12> m_ends; // forces on the members' ends, local
    double m_largest = 0;         // of the forces that there are, and of those that would hold the ends
};

// The long part: done aside, so that the window stays alive.
void Factor(FrameSystem& system) {
    constexpr std::chrono::milliseconds refresh(50);
    const WaitBar wait("Attendere...Soluzione delle equazioni.", 0);
    std::future<void> done = std::async(std::launch::async, [&system] { system.Factor(); });
    while (done.wait_for(refresh) != std::future_status::ready)
        CMainFrame::_StepBar();
    done.get();
}

} // namespace

AnalysisOutcome Analyse(DocumentData& data) {
    AnalysisOutcome outcome;
    try {
        const int count = data.Size(Kind::LoadCase);
        if (count == 0)
            throw Refusal("Il modello non ha casi di carico.");
        FrameModel model = ReadFrame(data);
        FrameSystem system(model);
        Factor(system);
        const LoadTable table(model);
        const WaitBar wait("Attendere...Analisi dei casi di carico.", static_cast<unsigned>(count));
        for (int i = 0; i < count; ++i) {
            auto& loadCase = *data.As<CCasoCarico>(Kind::LoadCase, i);
            CaseLoads loads = table.Gather(model, loadCase);
            CaseAnalysis analysis(model, system, std::move(loads));
            outcome.cases.push_back(analysis.Run(loadCase.GetID(), outcome.cases));
            CMainFrame::_StepBar();
        }
        outcome.notes = std::move(model.notes);
    } catch (const Refusal& refusal) {
        outcome.cases.clear();
        outcome.refusal = refusal;
    }
    return outcome;
}

namespace {

// Of the same model, with nothing in it.
CaseResults EmptySum(const CaseResults& alike, std::vector<CTraveRisultati>& lines) {
    CaseResults sum;
    sum.displacements.resize(alike.displacements.size());
    sum.reactions = alike.reactions;
    for (CaseResults::Reaction& reaction : sum.reactions)
        reaction.values = {};
    lines.resize(alike.lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const CTraveRisultati line = alike.lines[i];
        lines[i].SetID(line.GetID());
        lines[i].SetLineLength(line.GetLunghezzaLinea());
    }
    return sum;
}

} // namespace

CTraveRisultati::Scale ScaleOf(const std::vector<CTraveRisultati>& lines) {
    CTraveRisultati::Scale scale;
    for (const CTraveRisultati& line : lines)
        scale.Widen(line.GetScale());
    return scale;
}

CaseResults Combine(CCombinazione& combination, const std::vector<CaseResults>& cases) {
    CaseResults sum;
    std::vector<CTraveRisultati> lines;
    CTraveRisultati record;
    if (!cases.empty())
        sum = EmptySum(cases.front(), lines);
    sum.id = combination.GetID();
    for (const CaseResults& each : cases) {
        double factor = 0;
        if (!combination.GetFattoreCDC(combination.GetIndexCDC(each.id), factor))
            continue;
        sum.scale.Widen(each.scale, std::abs(factor));
        for (std::size_t i = 0; i < sum.displacements.size(); ++i)
            for (std::size_t j = 0; j < 6; ++j)
                sum.displacements[i][j] += factor * each.displacements[i][j];
        for (std::size_t i = 0; i < lines.size(); ++i) {
            each.lines.Read(i, record);
            lines[i].Sum(record, factor);
        }
        for (std::size_t i = 0; i < sum.reactions.size(); ++i)
            for (std::size_t j = 0; j < 6; ++j)
                sum.reactions[i].values[j] += factor * each.reactions[i].values[j];
    }
    if (!cases.empty())
        sum.lines = LineResults(lines, &cases.front().lines);
    return sum;
}

} // namespace host
