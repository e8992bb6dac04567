#include "host/ui/Assign.h"

#include "host/document/HostDocument.h"
#include "host/ui/AssignDialogs.h"
#include "model/Nodo.h"
#include "model/Trave.h"
#include "platform/Application.h"

#include <algorithm>
#include <vector>

namespace {

// The selected objects of a kind, as one step.
template <class T, class Change>
int changeSelected(HostDocument& document, Kind kind, const char* stepName, const Change& change) {
    const int count = document.Selection().Size(kind);
    const UndoStep step(document.Undo(), stepName);
    for (int i = 0; i < count; ++i) {
        auto* object = static_cast<T*>(document.Selection().At(kind, i));
        document.Modify(*object, [&] { change(*object); });
    }
    return count;
}

template <class T>
T* firstSelected(HostDocument& document, Kind kind, const CString& message) {
    auto* first = static_cast<T*>(document.Selection().At(kind, 0));
    if (!first)
        AfxMessageBox(message);
    return first;
}

const CString noNodes("Selezionare prima i nodi.");
const CString noBeams("Selezionare prima le travi.");

void removeReleases(CTrave& beam) {
    for (int i = beam.GetSizeSpecifiche(); i-- > 0;)
        if (beam.GetIndexSpecifica(i)->IsKindOf(RUNTIME_CLASS(CSpecificheSvincoliTrave)))
            beam.EliminaIndexSpecifica(i);
}

EndReleases releasesOf(CTrave& beam) {
    EndReleases releases;
    for (int end = 0; end < 2; ++end)
        for (int i = 0; i < 4; ++i)
            releases.released[end][i] = beam.GetSvincoli(end) >> i & 1u;
    return releases;
}

} // namespace

int AssignRestraint(HostDocument& document, const CVincolo& restraint) {
    return changeSelected<CNodo>(document, Kind::Node, "Assegna vincolo",
                                 [&](CNodo& node) { node.SetVincolo(&restraint); });
}

int AssignSpring(HostDocument& document, const CMolla* spring, bool keep) {
    return changeSelected<CNodo>(document, Kind::Node, "Assegna molla", [&](CNodo& node) {
        if (!keep)
            node.EliminaMolle();
        if (spring)
            node.AddMolla(*spring);
    });
}

int AssignReleases(HostDocument& document, const EndReleases& releases) {
    return changeSelected<CTrave>(document, Kind::Beam, "Assegna svincoli", [&](CTrave& beam) {
        removeReleases(beam);
        for (int end = 0; end < 2; ++end) {
            const auto& of = releases.released[end];
            if (std::any_of(std::begin(of), std::end(of), [](bool released) { return released; }))
                beam.AddSpecifica(new CSpecificheSvincoliTrave(end, of[0], of[1], of[2], of[3])); // the beam's own
        }
    });
}

void RunAssignRestraint(HostDocument& document, QWidget& parent) {
    CNodo* first = firstSelected<CNodo>(document, Kind::Node, noNodes);
    if (!first)
        return;
    const CVincolo* present = first->GetVincolo();
    if (const auto chosen = AskRestraint(parent, present ? *present : CVincolo()))
        AssignRestraint(document, *chosen);
}

void RunAssignSpring(HostDocument& document, QWidget& parent) {
    CNodo* first = firstSelected<CNodo>(document, Kind::Node, noNodes);
    if (!first)
        return;
    const CMolla* present = first->GetIndexMolla(0);
    const Lunghezza length = document.GetLunghezza();
    const Forza force = document.GetForza();
    const CMolla shown = present ? *present : CMolla(CMolla::Traslazionale, 0, CFPoint(0, 0, 1), length, force);
    if (const auto chosen = AskSpring(parent, shown, length, force))
        AssignSpring(document, chosen->spring ? &*chosen->spring : nullptr, chosen->keep);
}

void RunAssignReleases(HostDocument& document, QWidget& parent) {
    CTrave* first = firstSelected<CTrave>(document, Kind::Beam, noBeams);
    if (!first)
        return;
    if (const auto chosen = AskReleases(parent, releasesOf(*first)))
        AssignReleases(document, *chosen);
}
