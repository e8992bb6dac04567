#include "host/commands/Assign.h"

#include "host/commands/AssignDialogs.h"
#include "host/document/HostDocument.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "platform/window/Application.h"

#include <algorithm>
#include <vector>

namespace host {

namespace {

// The selected objects of a kind, as one step.
template <class T, class Change>
int ChangeSelected(HostDocument& document, Kind kind, const char* stepName, const Change& change) {
    const int count = document.Selection().Size(kind);
    const UndoStep step(document.Undo(), stepName);
    for (int i = 0; i < count; ++i) {
        auto* object = static_cast<T*>(document.Selection().At(kind, i));
        document.Modify(*object, [&] { change(*object); });
    }
    return count;
}

template <class T>
T* FirstSelected(HostDocument& document, Kind kind, const CString& message) {
    auto* first = static_cast<T*>(document.Selection().At(kind, 0));
    if (!first)
        AfxMessageBox(message);
    return first;
}

const CString noNodes("Selezionare prima i nodi.");
const CString noBeams("Selezionare prima le travi.");

void RemoveReleases(CTrave& beam) {
    for (int i = beam.GetSizeSpecifiche(); i-- > 0;)
        if (beam.GetIndexSpecifica(i)->IsKindOf(RUNTIME_CLASS(CSpecificheSvincoliTrave)))
            beam.EliminaIndexSpecifica(i);
}

EndReleases ReleasesOf(CTrave& beam) {
    EndReleases releases;
    for (int end = 0; end < 2; ++end)
        for (int i = 0; i < 4; ++i)
            releases.released[end][i] = beam.GetReleases(end) >> i & 1u;
    return releases;
}

const Support supports[] = {
    {"incastro", "&Incastro", "Bloccate le traslazioni e le rotazioni", CVincolo::All},
    {"cerniera", "&Cerniera", "Bloccate le traslazioni, libere le rotazioni",
     CVincolo::Tx | CVincolo::Ty | CVincolo::Tz},
    {"carrello_x", "Carrello &X", "Scorre lungo X: bloccate le traslazioni Y e Z", CVincolo::Ty | CVincolo::Tz},
    {"carrello_y", "Carrello &Y", "Scorre lungo Y: bloccate le traslazioni X e Z", CVincolo::Tx | CVincolo::Tz},
    {"carrello_z", "Carrello &Z", "Scorre lungo Z: bloccate le traslazioni X e Y", CVincolo::Tx | CVincolo::Ty},
};

} // namespace

std::span<const Support> Supports() {
    return supports;
}

int AssignRestraint(HostDocument& document, const CVincolo& restraint) {
    return ChangeSelected<CNodo>(document, Kind::Node, "Assegna vincolo",
                                 [&](CNodo& node) { node.SetRestraint(&restraint); });
}

int AssignSpring(HostDocument& document, const CMolla* spring, bool keep) {
    return ChangeSelected<CNodo>(document, Kind::Node, "Assegna molla", [&](CNodo& node) {
        if (!keep)
            node.RemoveSprings();
        if (spring)
            node.AddSpring(*spring);
    });
}

int AssignReleases(HostDocument& document, const EndReleases& releases) {
    return ChangeSelected<CTrave>(document, Kind::Beam, "Assegna svincoli", [&](CTrave& beam) {
        RemoveReleases(beam);
        for (int end = 0; end < 2; ++end) {
            const auto& of = releases.released[end];
            if (std::any_of(std::begin(of), std::end(of), [](bool released) { return released; }))
                beam.AddSpecifica(new CSpecificheSvincoliTrave(end, of[0], of[1], of[2], of[3])); // the beam's own
        }
    });
}

void RunAssignSupport(HostDocument& document, unsigned fixed) {
    if (FirstSelected<CNodo>(document, Kind::Node, noNodes))
        AssignRestraint(document, CVincolo(fixed));
}

void RunAssignRestraint(HostDocument& document, QWidget& parent) {
    CNodo* first = FirstSelected<CNodo>(document, Kind::Node, noNodes);
    if (!first)
        return;
    const CVincolo* present = first->GetVincolo();
    if (const auto chosen = AskRestraint(parent, present ? *present : CVincolo()))
        AssignRestraint(document, *chosen);
}

void RunAssignSpring(HostDocument& document, QWidget& parent) {
    CNodo* first = FirstSelected<CNodo>(document, Kind::Node, noNodes);
    if (!first)
        return;
    const CMolla* present = first->GetIndexMolla(0);
    const Lunghezza length = document.GetLunghezza();
    const Forza force = document.GetForza();
    const CMolla shown = present ? *present : CMolla(CMolla::Translational, 0, CFPoint(0, 0, 1), length, force);
    if (const auto chosen = AskSpring(parent, shown, length, force))
        AssignSpring(document, chosen->spring ? &*chosen->spring : nullptr, chosen->keep);
}

void RunAssignReleases(HostDocument& document, QWidget& parent) {
    CTrave* first = FirstSelected<CTrave>(document, Kind::Beam, noBeams);
    if (!first)
        return;
    if (const auto chosen = AskReleases(parent, ReleasesOf(*first)))
        AssignReleases(document, *chosen);
}

} // namespace host
