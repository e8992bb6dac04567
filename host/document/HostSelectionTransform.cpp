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

CString NoAxis() {
    return "L'asse di rotazione non è valido"_t;
}

CString NoAngle() {
    return "L'angolo di rotazione non è valido"_t;
}

CString NoPlace() {
    return "Le coordinate che ne risultano non sono valide";
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

// Moves the selection itself. Nodes that come to lie on others stay apart: the model check names them. False, and
// nothing moved, when one would go out of reach.
bool Move(HostDocument& document, const Motion& motion) {
    const std::vector<CNodo*> nodes = NodesOf(document.Selection().All());
    std::vector<std::pair<CNodo*, CFPoint>> places;
    places.reserve(nodes.size());
    for (CNodo* node : nodes) {
        const CFPoint place = motion.Place(*node->GetPunto());
        if (!IsUsablePlace(place))
            return false;
        if (!(place == *node->GetPunto()))
            places.emplace_back(node, place);
    }
    for (const auto& [line, beta] : TurnsOf(nodes, motion))
        document.Modify(*line, [line = line, beta = beta] { line->SetBeta(beta); });
    for (CNodo* node : nodes)
        if (motion.Turns() && node->GetSizeMolle() > 0)
            document.Modify(*node, [node, &motion] { TurnSprings(*node, motion); });
    document.MoveNodes(places);
    return true;
}

} // namespace

// The one place where a command on the selection is refused.
void HostSelection::Refuse(const CString& why) const {
    m_document.Refuse(Refusal(why + ": il comando non è stato eseguito."_t));
}

// Whether there is something to do; a negative number of copies makes none, and that is no fault.
bool HostSelection::CanBegin(int copies) const {
    if (copies >= 0 && IsEmpty())
        Refuse("Nessun elemento selezionato");
    return copies >= 0 && !IsEmpty();
}

// All of the copies or, when one of them cannot be made, none and a refusal.
bool HostSelection::CanCopy(const Copier& copier, int copies, const MotionOf& motionOf) const {
    CString why;
    if (!copier.Accepts(static_cast<std::size_t>(copies)))
        why = "Troppe copie";
    for (int i = 1; why.IsEmpty() && i <= copies; ++i)
        if (!copier.Reaches(motionOf(i)))
            why = NoPlace();
    if (!why.IsEmpty())
        Refuse(why);
    return why.IsEmpty();
}

void HostSelection::Transform(const MotionOf& motionOf, int copies, int join, const char* stepName,
                              const CString& message) {
    UndoStep step(m_document.Undo(), stepName);
    m_document.Undo().Rename(stepName);
    if (copies == 0) {
        if (!Move(m_document, motionOf(1)))
            Refuse(NoPlace());
        return;
    }
    Copier copier(m_document, m_all);
    if (!CanCopy(copier, copies, motionOf))
        return;
    WaitBar bar(message, static_cast<unsigned>(copies) * static_cast<unsigned>(copier.Objects()));
    for (int i = 1; i <= copies; ++i)
        copier.Copy(motionOf(i), join);
}

void HostSelection::TraslaSelezione(double dx, double dy, double dz, int nCopie, int unione) {
    const CFPoint vector(dx, dy, dz);
    if (CanBegin(nCopie) && !(vector == CFPoint()))
        Transform([&vector](int i) { return Motion::Translation(vector * i); }, nCopie, unione,
                  nCopie > 0 ? "Copia Trasla" : "Muovi", "Attendere...Traslazione dei nodi/elementi selezionati.");
}

// Each copy is turned from the selection by its own multiple of the angle: turns do not add up their rounding.
void HostSelection::Rotate(const CFPoint& from, const CFPoint& axis, const std::function<double(int)>& radians,
                           double snap, int copies, int join) {
    Transform([&](int i) { return Motion::Rotation(from, axis, radians(i), snap); }, copies, join,
              copies > 0 ? "Copia Ruota" : "Ruota", "Attendere...Rotazione dei nodi/elementi selezionati.");
}

void HostSelection::RuotaSelezione(double seno, double coseno, int asse, int nCopie, int unione) {
    constexpr double snap = 1e-8;                   // the angle was made with a pi of nine decimals
    const double length = std::hypot(seno, coseno); // 1 but for rounding
    if (!CanBegin(nCopie))
        return;
    if (asse < 0 || asse > 2)
        Refuse(NoAxis());
    else if (!(std::fabs(length - 1) <= 1e-6))
        Refuse(NoAngle());
    else
        Rotate(
            {}, {asse == 0 ? 1.0 : 0, asse == 1 ? 1.0 : 0, asse == 2 ? 1.0 : 0},
            [angle = std::atan2(seno, coseno)](int i) { return angle * i; }, snap, nCopie, unione);
}

void HostSelection::RuotaSelezione(double x1, double y1, double z1, double x2, double y2, double z2, double gradi,
                                   int nCopie, int unione) {
    constexpr double snap = 1e-12;
    const CFPoint from(x1, y1, z1);
    CFPoint axis = CFPoint(x2, y2, z2) - from;
    if (!CanBegin(nCopie))
        return;
    if (!from.IsFinite() || !axis.Normalize())
        Refuse(NoAxis());
    else if (!std::isfinite(gradi))
        Refuse(NoAngle());
    else
        Rotate(
            from, axis, [gradi](int i) { return std::remainder(gradi * i, 360) * std::numbers::pi / 180; }, snap,
            nCopie, unione);
}

// A mirrored copy; the selection itself stays.
void HostSelection::SpecchiaSelezione(double x, double y, double z, int piano) {
    const CFPoint point(x, y, z);
    const CFPoint normals[] = {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}; // of XY, YZ and XZ
    if (!CanBegin(1))
        return;
    if (piano < 0 || piano > 3) {
        Refuse("Il piano di simmetria non è valido"_t);
        return;
    }
    // In the origin means in the origin, whatever the point fields hold.
    const Motion motion = piano == 3 ? Motion::Inversion({}) : Motion::Reflection(point, normals[piano]);
    Transform([&motion](int) { return motion; }, 1, UNIONE_NIENTE, "Specchia",
              "Attendere...Specchiatura dei nodi/elementi selezionati.");
}

// Of the caller's lists only the first is filled, whose size sizes the wait bar; a second list of every copy would cost
// as much memory again and nobody reads it.
void HostSelection::InizioCicloTraslaSelezione(Adv3dRect&, CObList& oggetti) {
    for (CElemento* element : m_all)
        oggetti.AddTail(element);
    m_cycle.reset(new CopyCycle{Copier(m_document, m_all), {}, {}});
    m_document.Undo().Rename("Copia Trasla");
}

void HostSelection::CicloTraslaSelezione(double dx, double dy, double dz, int unione, unsigned int& contatore,
                                         Adv3dRect&, CObList&, CObList&) {
    if (!m_cycle || m_cycle->tooMany)
        return;
    ++contatore;
    m_cycle->tooMany = !m_cycle->copier.Accepts(m_cycle->copies.size() + 1);
    CFPoint& sum = m_cycle->last;
    sum += CFPoint(dx, dy, dz);
    m_cycle->copies.push_back({sum.x, sum.y, sum.z, unione});
}

void HostSelection::FineCicloTraslaSelezione(Adv3dRect&, unsigned int) {
    const std::unique_ptr<CopyCycle> cycle = std::move(m_cycle);
    if (!cycle || cycle->copies.empty() || !CanBegin(1))
        return;
    const auto& copies = cycle->copies;
    const auto motionOf = [&copies](int i) {
        const CopyCycle::Planned& its = copies[static_cast<std::size_t>(i - 1)];
        return Motion::Translation({its.x, its.y, its.z});
    };
    const int count = static_cast<int>(copies.size());
    if (!CanCopy(cycle->copier, count, motionOf))
        return;
    for (int i = 1; i <= count; ++i)
        cycle->copier.Copy(motionOf(i), copies[static_cast<std::size_t>(i - 1)].join);
}

} // namespace host
