#include "host/analysis/Analysis.h"

#include "dialogs/frame/host/MainFrame.h"
#include "host/analysis/FrameSystem.h"
#include "host/document/Refusal.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"

#include <algorithm>
#include <chrono>
#include <future>

namespace host {

namespace {

Vector12 EndMotions(const Member& member, const Eigen::VectorXd& all) {
    Vector12 global;
    global << all.segment<6>(6 * member.nodes[0]), all.segment<6>(6 * member.nodes[1]);
    return member.ToLocal(global);
}

// One load case: from its loads to displacements, end forces and reactions.
class CaseAnalysis {
  public:
    CaseAnalysis(FrameModel& model, const FrameSystem& system, CaseLoads loads)
        : m_model(model), m_system(system), m_loads(std::move(loads)) {}

    // `former` holds the cases analysed before.
    CaseResults Run(int id, const std::vector<CaseResults>& former) {
        FixEnds();
        const bool settles = !m_loads.displacements.isZero(0);
        // What the held ends, moved where they must be, hand over to the nodes.
        Eigen::VectorXd forces = m_loads.nodal - EndForces(settles ? &m_loads.displacements : nullptr);
        if (settles)
            forces += m_system.SpringForces(m_loads.displacements);
        const Eigen::VectorXd displacements = m_system.Solve(forces, m_loads.displacements);
        CaseResults results;
        results.id = id;
        CompleteEnds(displacements);
        const Eigen::VectorXd needed = EndForces(nullptr) - m_loads.nodal;
        const Eigen::VectorXd springs = m_system.SpringForces(displacements);
        if (!displacements.allFinite() || !needed.allFinite() || !springs.allFinite())
            throw Refusal("I risultati del caso di carico n.ro %d non sono numeri finiti.", id);
        CheckBalance(id, needed, springs);
        React(results, needed, springs);
        for (std::size_t i = 0; i < m_model.members.size(); ++i) {
            double ends[12];
            Eigen::Map<Vector12>(ends, 12) = m_ends[i];
            m_loads.lines[i].SetEndForces(ends);
        }
        results.lines = LineResults(m_loads.lines, former.empty() ? nullptr : &former.front().lines);
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

    // The sum of the members' end forces at each node; with `motions`, of members whose ends have moved.
    Eigen::VectorXd EndForces(const Eigen::VectorXd* motions) const {
        Eigen::VectorXd sum = Eigen::VectorXd::Zero(m_loads.nodal.size());
        for (std::size_t i = 0; i < m_ends.size(); ++i) {
            const Member& member = m_model.members[i];
            Vector12 ends = m_ends[i];
            if (motions) {
                const Vector12 moved = EndMotions(member, *motions);
                if (!moved.isZero(0))
                    ends += Stiffness(member) * moved;
            } else if (ends.isZero(0)) {
                continue;
            }
            const Vector12 global = member.ToGlobal(ends);
            sum.segment<6>(6 * member.nodes[0]) += global.head<6>();
            sum.segment<6>(6 * member.nodes[1]) += global.tail<6>();
        }
        return sum;
    }

    void CompleteEnds(const Eigen::VectorXd& displacements) {
        for (std::size_t i = 0; i < m_ends.size(); ++i)
            m_ends[i] += Stiffness(m_model.members[i]) * EndMotions(m_model.members[i], displacements);
    }

    // What the ends of members on a node need beyond its loads, its springs must give, unless a support does. What is
    // missing tells how many digits the solution has lost, as with very short members or very long chains of them.
    void CheckBalance(int id, const Eigen::VectorXd& needed, const Eigen::VectorXd& springs) {
        constexpr double tolerable = 1e-6;
        double largest = 0, missing = 0;
        std::size_t worst = 0;
        for (Eigen::Index i = 0; i < needed.size(); ++i) {
            const auto node = static_cast<std::size_t>(i / 6);
            const double unit = i % 6 < 3 ? 1 : m_model.extent; // of moments as forces
            largest = std::max({largest, std::abs(needed(i)) / unit, std::abs(m_loads.nodal(i)) / unit});
            if (!m_model.active[node] || m_model.fixed[node] >> (i % 6) & 1)
                continue;
            if (const double lack = std::abs(needed(i) - springs(i)) / unit; lack > missing) {
                missing = lack;
                worst = node;
            }
        }
        if (missing <= tolerable * largest)
            return;
        CString text;
        text.Format("I risultati del caso di carico n.ro %d sono poco precisi: al nodo n.ro %d l'equilibrio manca di "
                    "%.1g volte la forza massima.",
                    id, m_model.nodes[worst]->GetID(), missing / largest);
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

CaseResults Combine(CCombinazione& combination, const std::vector<CaseResults>& cases) {
    CaseResults sum;
    std::vector<CTraveRisultati> lines;
    if (!cases.empty())
        sum = EmptySum(cases.front(), lines);
    sum.id = combination.GetID();
    for (const CaseResults& each : cases) {
        double factor = 0;
        if (!combination.GetFattoreCDC(combination.GetIndexCDC(each.id), factor))
            continue;
        for (std::size_t i = 0; i < sum.displacements.size(); ++i)
            for (std::size_t j = 0; j < 6; ++j)
                sum.displacements[i][j] += factor * each.displacements[i][j];
        for (std::size_t i = 0; i < lines.size(); ++i)
            lines[i].Sum(each.lines[i], factor);
        for (std::size_t i = 0; i < sum.reactions.size(); ++i)
            for (std::size_t j = 0; j < 6; ++j)
                sum.reactions[i].values[j] += factor * each.reactions[i].values[j];
    }
    if (!cases.empty())
        sum.lines = LineResults(lines, &cases.front().lines);
    return sum;
}

} // namespace host
