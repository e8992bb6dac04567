// Moving, rotating, mirroring and copying the selection.
#include "dialogs/frame/host/MainFrame.h"
#include "host/document/Copier.h"
#include "host/document/HostDocument.h"
#include "host/document/Motion.h"
#include "model/element/LineaFisica.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace host {

namespace {

Refusal TooMany(bool interrupted) {
    return Refusal(interrupted ? "Troppe copie: il comando è stato interrotto."_t
                               : "Troppe copie: il comando non è stato eseguito."_t);
}

// The nodes that go along with the selection: those selected and those of the selected elements, each once.
std::vector<CNodo*> NodesOf(const std::vector<CElemento*>& selection) {
    std::vector<CNodo*> nodes;
    for (CElemento* element : selection) {
        for (int i = 0; i < element->GetSize(); ++i) {
            CNodo* node = element->GetIndexNodo(i);
            if (node->IsAlready())
                continue;
            node->SetAlready(1);
            nodes.push_back(node);
        }
    }
    for (CNodo* node : nodes)
        node->SetAlready(0);
    return nodes;
}

// The turn that each line needs whose two nodes move; asked before they do.
std::vector<std::pair<CLineaFisica*, double>> TurnsOf(const std::vector<CNodo*>& nodes, const Motion& motion) {
    std::vector<std::pair<CLineaFisica*, double>> turns;
    if (!motion.Turns())
        return turns;
    for (CNodo* node : nodes)
        node->SetAlready(1);
    for (CNodo* node : nodes) {
        for (int i = 0; i < node->GetSizeElementi(); ++i) {
            auto* line = DYNAMIC_DOWNCAST(CLineaFisica, node->GetIndexElemento(i));
            // Each line once, from its first node.
            if (!line || line->GetNodoIniziale() != node || !line->GetNodoFinale()->IsAlready())
                continue;
            const double beta = BetaAfter(*line, motion, motion.Place(*node->GetPunto()),
                                          motion.Place(*line->GetNodoFinale()->GetPunto()));
            if (std::fabs(std::remainder(beta - line->GetBeta(), 360)) > 1e-9)
                turns.emplace_back(line, beta);
        }
    }
    for (CNodo* node : nodes)
        node->SetAlready(0);
    return turns;
}

// Moves the selection itself. Nodes that come to lie on others stay apart: the model check names them.
void Move(HostDocument& document, const Motion& motion) {
    const std::vector<CNodo*> nodes = NodesOf(document.Selection().All());
    std::vector<std::pair<CNodo*, CFPoint>> places;
    places.reserve(nodes.size());
    for (CNodo* node : nodes) {
        places.emplace_back(node, motion.Place(*node->GetPunto()));
        if (!IsUsablePlace(places.back().second))
            return;
    }
    for (const auto& [line, beta] : TurnsOf(nodes, motion))
        document.Modify(*line, [line = line, beta = beta] { line->SetBeta(beta); });
    document.MoveNodes(places);
}

// False, and nothing made, for too many.
bool Copy(HostDocument& document, const Motion& motion, int copies, int join, const CString& message) {
    Copier copier(document, document.Selection().All());
    if (!copier.Accepts(copies))
        return false;
    WaitBar bar(message, static_cast<unsigned>(copies) * static_cast<unsigned>(copier.Objects()));
    for (int i = 0; i < copies; ++i)
        copier.Copy(motion, join);
    return true;
}

} // namespace

void HostSelection::Transform(const Motion& motion, int copies, int join, const char* stepName,
                              const CString& message) {
    if (IsEmpty() || copies < 0)
        return;
    UndoStep step(m_document.Undo(), stepName);
    m_document.Undo().Rename(stepName);
    m_refused = copies > 0 && !Copy(m_document, motion, copies, join, message);
    if (m_refused)
        m_document.Refuse(TooMany(false));
    if (copies == 0)
        Move(m_document, motion);
}

bool HostSelection::TakeRefusal() {
    return std::exchange(m_refused, false);
}

void HostSelection::TraslaSelezione(double dx, double dy, double dz, int nCopie, int unione) {
    const CFPoint vector(dx, dy, dz);
    if (vector.IsFinite() && vector != CFPoint())
        Transform(Motion::Translation(vector), nCopie, unione, nCopie > 0 ? "Copia Trasla" : "Muovi",
                  "Attendere...Traslazione dei nodi/elementi selezionati.");
}

void HostSelection::RuotaSelezione(double seno, double coseno, int asse, int nCopie, int unione) {
    const double length = std::hypot(seno, coseno); // 1 but for rounding
    if (asse < 0 || asse > 2 || !std::isfinite(length) || std::fabs(length - 1) > 1e-6)
        return;
    const CFPoint axes[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    Transform(Motion::Rotation({}, axes[asse], seno / length, coseno / length), nCopie, unione,
              nCopie > 0 ? "Copia Ruota" : "Ruota", "Attendere...Rotazione dei nodi/elementi selezionati.");
}

void HostSelection::RuotaSelezione(double x1, double y1, double z1, double x2, double y2, double z2, double gradi,
                                   int nCopie, int unione) {
    const CFPoint from(x1, y1, z1);
    CFPoint axis = CFPoint(x2, y2, z2) - from;
    if (!from.IsFinite() || !std::isfinite(gradi) || !axis.Normalize())
        return;
    // Quarter turns exactly: a column copied round a corner must meet the node that is there.
    const double angle = std::remainder(gradi, 360) * std::numbers::pi / 180;
    double sine = std::sin(angle), cosine = std::cos(angle);
    if (std::remainder(gradi, 90) == 0) {
        sine = std::round(sine);
        cosine = std::round(cosine);
    }
    Transform(Motion::Rotation(from, axis, sine, cosine), nCopie, unione, nCopie > 0 ? "Copia Ruota" : "Ruota",
              "Attendere...Rotazione dei nodi/elementi selezionati.");
}

// A mirrored copy; the selection itself stays.
void HostSelection::SpecchiaSelezione(double x, double y, double z, int piano) {
    const CFPoint point(x, y, z);
    const CFPoint normals[] = {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}; // of XY, YZ and XZ
    if (!point.IsFinite() || piano < 0 || piano > 3)
        return;
    // In the origin means in the origin, whatever the point fields hold.
    Transform(piano == 3 ? Motion::Inversion({}) : Motion::Reflection(point, normals[piano]), 1, UNIONE_NIENTE,
              "Specchia", "Attendere...Specchiatura dei nodi/elementi selezionati.");
}

// The cycle keeps its state in the copier. Of the caller's lists it fills only the first, whose size sizes the wait
// bar; a second list of every copy would cost as much memory again and nobody reads it.
void HostSelection::InizioCicloTraslaSelezione(Adv3dRect&, CObList& oggetti) {
    for (CElemento* element : m_all)
        oggetti.AddTail(element);
    m_cycle = std::make_unique<Copier>(m_document, m_all);
    m_refused = false;
    m_document.Undo().Rename("Copia Trasla");
}

void HostSelection::CicloTraslaSelezione(double dx, double dy, double dz, int unione, unsigned int& contatore,
                                         Adv3dRect&, CObList&, CObList&) {
    const CFPoint vector(dx, dy, dz);
    if (!m_cycle || m_refused || !vector.IsFinite())
        return;
    if (m_cycle->Copy(Motion::Translation(vector), unione))
        ++contatore;
    else
        m_refused = true;
}

void HostSelection::FineCicloTraslaSelezione(Adv3dRect&, unsigned int) {
    m_cycle.reset();
    if (m_refused)
        m_document.Refuse(TooMany(true));
}

} // namespace host
