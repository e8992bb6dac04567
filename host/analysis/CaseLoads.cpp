// Loads of a case: from the elements that carry them to numbers in the members' axes.
#include "host/analysis/FrameModel.h"

#include "host/analysis/Analysis.h"
#include "host/document/Refusal.h"
#include "model/element/TipoElemento.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Materiale.h"

#include <algorithm>

namespace host {

namespace {

Eigen::Vector3d LocalVector(const Member& member, CCarico& load, const CFPoint& vector) {
    const Eigen::Vector3d given(vector.x, vector.y, vector.z);
    return load.GetReference() == CCarico::Local ? given : Eigen::Vector3d(member.axes * given);
}

void Copy(const Eigen::Vector3d& from, double (&to)[3]) {
    for (int i = 0; i < 3; ++i)
        to[i] = from(i) + 0.0; // no negative zeros
}

void AddUniform(CTraveRisultati& line, const Member& member, const Eigen::Vector3d& local) {
    if (local.isZero(0))
        return;
    CTraveRisultati::Distributed load;
    load.a = member.length;
    Copy(local, load.inizio);
    Copy(local, load.fine);
    line.AddCarico(load);
}

// Each axis of the load has a stretch of its own. False when a part of it lies beyond the member's ends, and is cut
// off.
bool AddTrapezoidal(CTraveRisultati& line, const Member& member, CCaricoTrapezoidale& load) {
    bool inside = true;
    const double slack = sameEnd * member.length;
    for (int axis = 0; axis < 3; ++axis) {
        auto part = load.GetStretch(axis);
        if ((part.inizio == 0 && part.fine == 0) || part.a == part.da)
            continue;
        if (part.a < part.da) {
            std::swap(part.da, part.a);
            std::swap(part.inizio, part.fine);
        }
        const double from = std::max(part.da, 0.0), to = std::min(part.a, member.length);
        inside = inside && from - part.da <= slack && part.a - to <= slack;
        if (!(to > from))
            continue;
        const double slope = (part.fine - part.inizio) / (part.a - part.da);
        CFPoint direction;
        (axis == 0 ? direction.x : axis == 1 ? direction.y : direction.z) = 1;
        const Eigen::Vector3d along = LocalVector(member, load, direction);
        CTraveRisultati::Distributed stretch;
        stretch.da = from;
        stretch.a = to;
        // The last value as it was given, unless it was cut: a triangle ends at exactly 0.
        const double last = to == part.a ? part.fine : part.inizio + slope * (to - part.da);
        Copy(along * (part.inizio + slope * (from - part.da)), stretch.inizio);
        Copy(along * last, stretch.fine);
        line.AddCarico(stretch);
    }
    return inside;
}

// False, and nothing added, for a load beyond the member's ends.
bool AddConcentrated(CTraveRisultati& line, const Member& member, CCaricoConcentrato& load) {
    CTraveRisultati::PointForce point;
    point.x = std::clamp(load.GetDistance(), 0.0, member.length);
    if (!(std::abs(point.x - load.GetDistance()) <= sameEnd * member.length))
        return false;
    Copy(LocalVector(member, load, load.GetForceVector()), point.force);
    Copy(LocalVector(member, load, load.GetMomentVector()), point.moment);
    line.AddCarico(point);
    return true;
}

ThermalStrain StrainOf(CCaricoTemperatura& load, const Member& member) {
    const double alpha = load.GetAlpha() != 0 ? load.GetAlpha() : member.line->GetMateriale()->GetAlpha();
    return {alpha * load.GetTemperature(), alpha * load.GetGradient2(), alpha * load.GetGradient3()};
}

class Gatherer {
  public:
    Gatherer(FrameModel& model, CaseLoads& loads) : m_model(model), m_loads(loads) {
        const auto size = static_cast<Eigen::Index>(6 * model.nodes.size());
        loads.nodal = loads.displacements = Eigen::VectorXd::Zero(size);
        loads.lines.resize(model.members.size());
        for (std::size_t i = 0; i < model.members.size(); ++i) {
            loads.lines[i].SetID(model.members[i].line->GetID());
            loads.lines[i].SetLineLength(model.members[i].length);
        }
    }

    void Weight(const CFPoint& acceleration) {
        const Eigen::Vector3d global(acceleration.x, acceleration.y, acceleration.z);
        for (std::size_t i = 0; i < m_model.members.size(); ++i) {
            const Member& member = m_model.members[i];
            AddUniform(m_loads.lines[i], member, member.axes * global * member.mass);
        }
    }

    void OnMember(int index, CCarico& load) {
        const Member& member = m_model.members[static_cast<std::size_t>(index)];
        CTraveRisultati& line = m_loads.lines[static_cast<std::size_t>(index)];
        switch (load.GetTipoElemento()) {
        case TipoElemento::CaricoUniforme:
            AddUniform(line, member, LocalVector(member, load, static_cast<CCaricoUniforme&>(load).GetCarico()));
            break;
        case TipoElemento::CaricoTrapezoidale:
            if (!AddTrapezoidal(line, member, static_cast<CCaricoTrapezoidale&>(load)))
                LeaveOutBeyond(member);
            break;
        case TipoElemento::CaricoConcentrato:
            if (!AddConcentrated(line, member, static_cast<CCaricoConcentrato&>(load)))
                LeaveOutBeyond(member);
            break;
        case TipoElemento::CaricoTemperatura: {
            const ThermalStrain strain = StrainOf(static_cast<CCaricoTemperatura&>(load), member);
            ThermalStrain& sum = m_loads.thermal[index];
            sum.axial += strain.axial;
            sum.curvature2 += strain.curvature2;
            sum.curvature3 += strain.curvature3;
            break;
        }
        default:
            LeaveOut("Un carico di tipo non previsto sull'elemento n.ro %d non è considerato."_t, member.line->GetID());
        }
    }

    void OnNode(int index, CCarico& load) {
        if (load.GetTipoElemento() == TipoElemento::CaricoNodale) {
            auto& nodal = static_cast<CCaricoNodale&>(load);
            Force(index, {nodal.GetForceVector(), nodal.GetMomentVector()});
        } else if (load.GetTipoElemento() == TipoElemento::CaricoSpostamento) {
            auto& moved = static_cast<CCaricoSpostamento&>(load);
            Displacement(index, {moved.GetDisplacement(), moved.GetRotation()});
        } else {
            LeaveOut("Un carico di tipo non previsto sul nodo n.ro %d non è considerato."_t, IdOf(index));
        }
    }

  private:
    using Pair = std::pair<CFPoint, CFPoint>;

    static double Component(const Pair& pair, int i) {
        const CFPoint& half = i < 3 ? pair.first : pair.second;
        return i % 3 == 0 ? half.x : i % 3 == 1 ? half.y : half.z;
    }
    int IdOf(int node) const { return m_model.nodes[static_cast<std::size_t>(node)]->GetID(); }
    bool IsFixed(int node, int i) const { return m_model.fixed[static_cast<std::size_t>(node)] >> i & 1; }

    void LeaveOut(const CString& format, int id) {
        CString text;
        text.Format(format, id);
        m_model.Note(text);
    }
    void LeaveOutBeyond(const Member& member) {
        LeaveOut("Un carico dell'elemento n.ro %d va oltre la sua lunghezza: la parte fuori non è considerata."_t,
                 member.line->GetID());
    }

    void Force(int node, const Pair& values) {
        for (int i = 0; i < 6; ++i) {
            const double value = Component(values, i);
            if (value != 0 && !m_model.active[static_cast<std::size_t>(node)] && !IsFixed(node, i))
                LeaveOut("Il nodo n.ro %d non appartiene a travi o aste: i suoi carichi non sono considerati.",
                         IdOf(node));
            else
                m_loads.nodal(6 * node + i) += value;
        }
    }

    void Displacement(int node, const Pair& values) {
        for (int i = 0; i < 6; ++i) {
            const double value = Component(values, i);
            if (IsFixed(node, i))
                m_loads.displacements(6 * node + i) += value;
            else if (value != 0)
                LeaveOut("Uno spostamento imposto al nodo n.ro %d, non vincolato in quella direzione, non è "
                         "considerato."_t,
                         IdOf(node));
        }
    }

    FrameModel& m_model;
    CaseLoads& m_loads;
};

} // namespace

LoadTable::LoadTable(const FrameModel& model) {
    const auto enter = [this](CElementoCarico& carrier, int index, bool node) {
        for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
            CCarico* load = carrier.GetIndexCarico(i);
            if (!load)
                continue;
            References& its = m_byCase[carrier.GetIndexIDCasoCarico(i)];
            (node ? its.onNodes : its.onMembers).push_back({index, load});
        }
    };
    for (std::size_t i = 0; i < model.members.size(); ++i)
        enter(*model.members[i].line, static_cast<int>(i), false);
    for (std::size_t i = 0; i < model.nodes.size(); ++i)
        enter(*model.nodes[i], static_cast<int>(i), true);
}

CaseLoads LoadTable::Gather(FrameModel& model, CCasoCarico& loadCase) const {
    CaseLoads loads;
    Gatherer gatherer(model, loads);
    for (int i = 0; i < loadCase.GetSizeCarichi(); ++i) {
        CCarico* load = loadCase.GetIndexCarico(i);
        if (load->GetTipoElemento() == TipoElemento::CaricoPesoProprio)
            gatherer.Weight(static_cast<CCaricoPesoProprio*>(load)->GetAcceleration());
    }
    const auto found = m_byCase.find(loadCase.GetID());
    if (found == m_byCase.end())
        return loads;
    for (const Reference& each : found->second.onMembers)
        gatherer.OnMember(each.index, *each.load);
    for (const Reference& each : found->second.onNodes)
        gatherer.OnNode(each.index, *each.load);
    return loads;
}

} // namespace host
