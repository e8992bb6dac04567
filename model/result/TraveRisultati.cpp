#include "model/result/TraveRisultati.h"

#include "model/view/ElementoSettings.h"

#include <algorithm>
#include <cmath>

IMPLEMENT_DYNCREATE(CTraveRisultati, CElementoRisultati)

namespace {

// The local axis, 0 to 2, of the forces that bend as this component does: M2 comes from forces along 3.
int BendingAxis(int component) {
    return component == 4 ? 2 : 1;
}

// Sign of an internal force at the first end against the force on that end; at the second end it is the opposite. The
// moment about 2 turns the other way round so that both moments stretch the negative side.
double EndSign(int component) {
    return component == 4 ? 1.0 : -1.0;
}

// The load's resultant before x along an axis, and its moment about x.
void Resultant(const CTraveRisultati::Distributed& load, int axis, double x, double& force, double& moment) {
    const double whole = load.a - load.da;
    const double s = std::min(x, load.a) - load.da;
    if (!(s > 0))
        return;
    const double q = load.inizio[axis];
    const double slope = (load.fine[axis] - q) / whole;
    const double sum = s * (q + slope * s / 2);
    force += sum;
    moment += s * s * (q / 2 + slope * s / 6) + sum * (x - load.da - s);
}

void AddUp(CTraveRisultati::Distributed& sum, const CTraveRisultati::Distributed& load) {
    for (int i = 0; i < 3; ++i) {
        sum.inizio[i] += load.inizio[i];
        sum.fine[i] += load.fine[i];
    }
}

void AddUp(CTraveRisultati::PointForce& sum, const CTraveRisultati::PointForce& load) {
    for (int i = 0; i < 3; ++i) {
        sum.force[i] += load.force[i];
        sum.moment[i] += load.moment[i];
    }
}

bool AtOnePlace(const CTraveRisultati::Distributed& a, const CTraveRisultati::Distributed& b) {
    return a.da == b.da && a.a == b.a;
}

bool AtOnePlace(const CTraveRisultati::PointForce& a, const CTraveRisultati::PointForce& b) {
    return a.x == b.x;
}

template <class Loads>
void AppendScaled(Loads& to, const Loads& from, double factor) {
    for (auto load : from) {
        if constexpr (requires { load.inizio; }) {
            for (int i = 0; i < 3; ++i) {
                load.inizio[i] *= factor;
                load.fine[i] *= factor;
            }
        } else {
            for (int i = 0; i < 3; ++i) {
                load.force[i] *= factor;
                load.moment[i] *= factor;
            }
        }
        // Looked for among a few only: it saves room where lines carry the same loads in every case, as most do.
        constexpr std::ptrdiff_t few = 16;
        const auto last = to.begin() + std::min<std::ptrdiff_t>(few, std::distance(to.begin(), to.end()));
        const auto there = std::find_if(to.begin(), last, [&load](const auto& each) { return AtOnePlace(each, load); });
        if (there == last)
            to.push_back(load);
        else
            AddUp(*there, load);
    }
}

} // namespace

int CTraveRisultati::Component(int tipo) {
    switch (tipo) {
    case CElementoSettings::N:
        return 0;
    case CElementoSettings::V2:
        return 1;
    case CElementoSettings::V3:
        return 2;
    case CElementoSettings::T:
        return 3;
    case CElementoSettings::M2:
        return 4;
    case CElementoSettings::M3:
        return 5;
    default:
        return -1;
    }
}

void CTraveRisultati::GetEndForces(double (&forze)[12]) const {
    for (int i = 0; i < 6; ++i) {
        forze[i] = EndSign(i) * GetNodeResults(0)->GetIndex(i);
        forze[6 + i] = -EndSign(i) * GetNodeResults(1)->GetIndex(i);
    }
}

void CTraveRisultati::SetEndForces(const double (&forze)[12]) {
    for (int i = 0; i < 6; ++i) {
        // Adding 0 turns a negative zero into the plain one, which is what users want to read.
        GetNodeResults(0)->GetIndex(i) = EndSign(i) * forze[i] + 0.0;
        GetNodeResults(1)->GetIndex(i) = -EndSign(i) * forze[6 + i] + 0.0;
    }
}

void CTraveRisultati::RemoveCarichi() {
    m_distributed.clear();
    m_pointForces.clear();
}

double CTraveRisultati::GetLargestForce() const {
    double largest = 0;
    if (!(m_dLunghezza > 0))
        return 0;
    const auto see = [&largest](double force) { largest = std::max(largest, std::abs(force)); };
    for (int i = 0; i < 3; ++i) {
        for (int end = 0; end < 2; ++end) {
            see(GetNodeResults(end)->GetIndex(i));
            see(GetNodeResults(end)->GetIndex(i + 3) / m_dLunghezza);
        }
        for (const Distributed& load : m_distributed) {
            see(load.inizio[i] * (load.a - load.da));
            see(load.fine[i] * (load.a - load.da));
        }
        for (const PointForce& load : m_pointForces) {
            see(load.force[i]);
            see(load.moment[i] / m_dLunghezza);
        }
    }
    return largest;
}

void CTraveRisultati::Scale::Widen(const Scale& other, double factor) {
    force = std::max(force, factor * other.force);
    moment = std::max(moment, factor * other.moment);
}

CTraveRisultati::Scale CTraveRisultati::GetScale() const {
    const double largest = GetLargestForce();
    Scale scale{largest, largest * m_dLunghezza};
    scale.Widen(m_caseScale);
    return scale;
}

void CTraveRisultati::Sum(const CTraveRisultati& altro, double fattore) {
    for (int end = 0; end < 2; ++end)
        for (int i = 0; i < 6; ++i)
            GetNodeResults(end)->GetIndex(i) += fattore * altro.GetNodeResults(end)->GetIndex(i);
    m_dLunghezza = altro.m_dLunghezza;
    if (fattore == 0)
        return;
    AppendScaled(m_distributed, altro.m_distributed, fattore);
    AppendScaled(m_pointForces, altro.m_pointForces, fattore);
}

double CTraveRisultati::GetInternalForce(int tipo, double x, Side lato) const {
    const int which = Component(tipo);
    return which < 0 ? 0 : GetBalancedForce(which, x, lato) + x * GetGrowth(which);
}

// What equilibrium lacks at the second end, per length; what rounding leaves is nothing.
double CTraveRisultati::GetGrowth(int which) const {
    constexpr double rounding = 1e-6;
    if (!(m_dLunghezza > 0))
        return 0;
    const double missing = GetNodeResults(1)->GetIndex(which) - GetBalancedForce(which, m_dLunghezza, After);
    const double largest = GetLargestForce() * (which < 3 ? 1 : m_dLunghezza);
    return std::abs(missing) > rounding * largest ? missing / m_dLunghezza : 0;
}

// From the first end on, by equilibrium.
double CTraveRisultati::GetBalancedForce(int which, double x, Side lato) const {
    const CNodoRisultati& first = *GetNodeResults(0);
    const bool bending = which > 3;
    const int axis = bending ? BendingAxis(which) : which;
    double force = 0, moment = 0;
    if (which != 3)
        for (const Distributed& load : m_distributed)
            Resultant(load, axis, x, force, moment);
    double value = first.GetIndex(which) - (bending ? x * first.GetIndex(axis) - moment : force);
    for (const PointForce& load : m_pointForces) {
        if (load.x > x || (load.x == x && lato == Before))
            continue;
        if (bending)
            value += load.force[axis] * (x - load.x) + EndSign(which) * load.moment[which - 3];
        else
            value -= which == 3 ? load.moment[0] : load.force[axis];
    }
    return value;
}

namespace {

// Walks along a line from load to load and carries the internal force with it, so that many loads cost no more than one
// look each.
class DiagramWalk {
  public:
    DiagramWalk(const CTraveRisultati& line, int component)
        : m_component(component),
          m_axis(component > 3 ? BendingAxis(component) : component),
          m_value(line.GetNodeResults(0)->GetIndex(component)),
          m_shear(component > 3 ? line.GetNodeResults(0)->GetIndex(m_axis) : 0) {
        for (const auto& load : line.GetDistributed())
            m_waiting.push_back(&load);
        for (const auto& load : line.GetPointForces())
            m_points.push_back(&load);
        const auto byStart = [](const auto* a, const auto* b) { return a->da > b->da; };
        std::sort(m_waiting.begin(), m_waiting.end(), byStart); // the next one last
        std::stable_sort(m_points.begin(), m_points.end(), [](const auto* a, const auto* b) { return a->x > b->x; });
    }

    DiagramStretch Next(double from, double to) {
        PassPoints(from);
        double q = 0, slope = 0;
        Spread(from, q, slope);
        DiagramStretch piece{from, to, {m_value}};
        const double s = to - from;
        if (m_component > 3) {
            piece.c[1] = -m_shear;
            piece.c[2] = q / 2;
            piece.c[3] = slope / 6;
            m_shear -= s * (q + s * slope / 2);
        } else {
            piece.c[1] = -q;
            piece.c[2] = -slope / 2;
        }
        m_value = piece.GetValue(to);
        return piece;
    }

  private:
    void PassPoints(double from) {
        for (; !m_points.empty() && m_points.back()->x <= from; m_points.pop_back()) {
            const CTraveRisultati::PointForce& load = *m_points.back();
            if (m_component > 3) {
                m_value += EndSign(m_component) * load.moment[m_component - 3];
                m_shear -= load.force[m_axis];
            } else {
                m_value -= m_component == 3 ? load.moment[0] : load.force[m_axis];
            }
        }
    }

    // The force per length at `from`, and how it grows, from the loads that lie there.
    void Spread(double from, double& q, double& slope) {
        for (; !m_waiting.empty() && m_waiting.back()->da <= from; m_waiting.pop_back())
            m_present.push_back(m_waiting.back());
        std::erase_if(m_present, [from](const auto* load) { return load->a <= from; });
        if (m_component == 3)
            return;
        for (const auto* load : m_present) {
            const double its = (load->fine[m_axis] - load->inizio[m_axis]) / (load->a - load->da);
            q += load->inizio[m_axis] + its * (from - load->da);
            slope += its;
        }
    }

    int m_component;
    int m_axis;
    double m_value;
    double m_shear; // of a moment
    std::vector<const CTraveRisultati::Distributed*> m_waiting, m_present;
    std::vector<const CTraveRisultati::PointForce*> m_points;
};

} // namespace

std::vector<DiagramStretch> CTraveRisultati::GetDiagram(int tipo) const {
    std::vector<DiagramStretch> pieces;
    const int which = Component(tipo);
    if (which < 0 || !(m_dLunghezza > 0))
        return pieces;
    std::vector<double> places{0, m_dLunghezza};
    for (const Distributed& load : m_distributed)
        places.insert(places.end(), {load.da, load.a});
    for (const PointForce& load : m_pointForces)
        places.push_back(load.x);
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    pieces.reserve(places.size() - 1);
    DiagramWalk walk(*this, which);
    const double growth = GetGrowth(which);
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        DiagramStretch& piece = pieces.emplace_back(walk.Next(places[i], places[i + 1]));
        piece.c[0] += growth * piece.da;
        piece.c[1] += growth;
    }
    return pieces;
}
