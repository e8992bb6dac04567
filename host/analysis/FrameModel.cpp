#include "host/analysis/FrameModel.h"

#include "host/document/Refusal.h"
#include "model/element/Trave.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"

#include <Eigen/Geometry>

namespace host {

namespace {

Eigen::Vector3d VectorOf(const CFPoint& point) {
    return {point.x, point.y, point.z};
}

class Reader {
  public:
    explicit Reader(DocumentData& data) : m_data(data) {}

    FrameModel Read() {
        ReadNodes();
        const int beams = m_data.Size(Kind::Beam), trusses = m_data.Size(Kind::Truss);
        if (beams + trusses == 0)
            throw Refusal("Il modello non ha travi né aste da analizzare."_t);
        m_model.members.reserve(static_cast<std::size_t>(beams + trusses));
        for (int i = 0; i < beams; ++i)
            ReadMember(*m_data.As<CLineaRisultati>(Kind::Beam, i), false);
        for (int i = 0; i < trusses; ++i)
            ReadMember(*m_data.As<CLineaRisultati>(Kind::Truss, i), true);
        Measure();
        LeaveOutLooseSprings();
        LeaveOut(Kind::Wall, "I setti non sono analizzati: %d nel modello, esclusi con il loro peso e i loro carichi.");
        LeaveOut(Kind::Slab, "I solai non sono analizzati: %d nel modello, esclusi con il loro peso e i loro carichi.");
        return std::move(m_model);
    }

  private:
    void Measure() {
        double sum = 0;
        Eigen::AlignedBox3d box;
        for (const Member& member : m_model.members) {
            sum += member.length;
            for (const int node : member.nodes)
                box.extend(VectorOf(*m_model.nodes[static_cast<std::size_t>(node)]->GetPunto()));
        }
        m_model.typicalLength = sum / static_cast<double>(m_model.members.size());
        m_model.extent = box.diagonal().norm();
        m_model.centre = box.center();
    }

    void ReadNodes() {
        const int count = m_data.Size(Kind::Node);
        m_model.nodes.reserve(static_cast<std::size_t>(count));
        m_model.fixed.reserve(static_cast<std::size_t>(count));
        m_model.active.assign(static_cast<std::size_t>(count), false);
        m_index.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            CNodo* node = m_data.Node(i);
            m_index.emplace(node, i);
            m_model.nodes.push_back(node);
            const CVincolo* restraint = node->GetVincolo();
            m_model.fixed.push_back(restraint ? restraint->GetMask() : 0);
            for (int j = 0; j < node->GetSizeMolle(); ++j)
                ReadSpring(i, *node->GetIndexMolla(j));
        }
    }

    void ReadSpring(int node, const CMolla& spring) {
        // Springs count in units of their own.
        CGrandezza stiffness = spring.GetStiffness();
        stiffness.ChangeLunghezza(m_data.Units().length);
        stiffness.ChangeForza(m_data.Units().force);
        const Eigen::Vector3d direction = VectorOf(spring.GetDirection());
        const int id = m_model.nodes[static_cast<std::size_t>(node)]->GetID();
        if (!(stiffness.GetValue() >= 0) || !std::isfinite(stiffness.GetValue()))
            throw Refusal("La rigidezza di una molla del nodo n.ro %d non è valida."_t, id);
        if (!(direction.norm() > 0) || !direction.allFinite())
            throw Refusal("La direzione di una molla del nodo n.ro %d non è valida."_t, id);
        if (stiffness.GetValue() == 0)
            return;
        m_model.springs.push_back(
            {node, spring.GetTipo() == CMolla::Rotational ? 3 : 0, direction.normalized(), stiffness.GetValue()});
    }

    // Where only springs hold a node, most of its ways to move are nobody's.
    void LeaveOutLooseSprings() {
        for (const GroundSpring& spring : m_model.springs) {
            if (m_model.active[static_cast<std::size_t>(spring.node)])
                continue;
            CString text;
            text.Format("Il nodo n.ro %d non appartiene a travi o aste: le sue molle non sono considerate.",
                        m_model.nodes[static_cast<std::size_t>(spring.node)]->GetID());
            m_model.Note(text);
        }
    }

    void ReadMember(CLineaRisultati& line, bool truss) {
        Member member;
        member.line = &line;
        member.truss = truss;
        CNodo* ends[2] = {line.GetNodoIniziale(), line.GetNodoFinale()};
        CFPoint axes[3];
        if (!ends[0] || !ends[1] || !line.GetLocalAxes(axes[0], axes[1], axes[2]))
            Refuse(line, truss, "la lunghezza è nulla."_t);
        for (int i = 0; i < 2; ++i) {
            member.nodes[i] = m_index.at(ends[i]);
            m_model.active[static_cast<std::size_t>(member.nodes[i])] = true;
        }
        for (int i = 0; i < 3; ++i)
            member.axes.row(i) = VectorOf(axes[i]);
        member.length = line.GetLunghezzaLinea();
        ReadProperties(member, line, truss);
        if (!truss)
            ReadReleases(member, static_cast<CTrave&>(line));
        m_model.members.push_back(member);
    }

    [[noreturn]] static void Refuse(CLineaRisultati& line, bool truss, const CString& why) {
        throw Refusal("%s n.ro %d: %s", CString(truss ? "Asta" : "Trave"), line.GetID(), why);
    }

    static void ReadProperties(Member& m, CLineaRisultati& line, bool truss) {
        const CMateriale* material = line.GetMateriale();
        const CSezione* section = line.GetSezione();
        const auto need = [&](bool met, const CString& why) {
            if (!met)
                Refuse(line, truss, why);
        };
        const auto positive = [](double value) { return value > 0 && std::isfinite(value); };
        need(material, "manca il materiale.");
        need(section, "manca la sezione.");
        need(positive(material->GetE()), "il modulo di elasticità del materiale non è maggiore di zero."_t);
        need(positive(section->GetArea()), "l'area della sezione non è maggiore di zero."_t);
        m.ea = material->GetE() * section->GetArea();
        m.mass = material->GetDensity() * section->GetArea();
        if (truss)
            return;
        need(positive(material->GetG()), "il modulo di taglio del materiale non è maggiore di zero."_t);
        need(positive(section->GetJ()) && positive(section->GetI2()) && positive(section->GetI3()),
             "un momento d'inerzia della sezione non è maggiore di zero."_t);
        m.gj = material->GetG() * section->GetJ();
        m.ei2 = material->GetE() * section->GetI2();
        m.ei3 = material->GetE() * section->GetI3();
        const auto ratio = [&](double ei, double area) {
            return area > 0 ? 12 * ei / (material->GetG() * area * m.length * m.length) : 0;
        };
        m.shear2 = ratio(m.ei3, section->GetArea2());
        m.shear3 = ratio(m.ei2, section->GetArea3());
    }

    static void ReadReleases(Member& member, CTrave& beam) {
        static constexpr int places[4] = {0, 3, 4, 5}; // N, T, M2, M3
        for (int end = 0; end < 2; ++end) {
            const unsigned released = beam.GetReleases(end);
            for (int i = 0; i < 4; ++i)
                if (released >> i & 1)
                    member.released |= 1u << (places[i] + 6 * end);
        }
    }

    void LeaveOut(Kind kind, const char* what) {
        if (m_data.Size(kind) == 0)
            return;
        CString text;
        text.Format(what, m_data.Size(kind));
        m_model.Note(text);
    }

    DocumentData& m_data;
    FrameModel m_model;
    std::unordered_map<const CNodo*, int> m_index;
};

} // namespace

void FrameModel::Note(const CString& sentence) {
    if (m_noted.insert(sentence.ToUtf8()).second)
        notes.push_back(sentence);
}

FrameModel ReadFrame(DocumentData& data) {
    return Reader(data).Read();
}

} // namespace host
