// A model to check: a sound cantilever that a test completes, with the application's own commands.
#pragma once

#include "host/commands/Assign.h"
#include "host/document/HostDocument.h"
#include "model/element/Molla.h"
#include "model/element/Trave.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

#include <initializer_list>

class CheckBuilder {
  public:
    explicit CheckBuilder(host::HostDocument& document) : document(document) {
        auto material = std::make_unique<CMateriale>();
        material->SetNome("Calcestruzzo");
        this->material = document.AddNew(std::move(material));
        document.AddNew(std::make_unique<CSezione>());
        document.AddNew(std::make_unique<CSpessore>());
        // Fixed at one end: sound, whatever else hangs on its free end.
        Fix(*Node(0, 0, 0), CVincolo::All);
        Node(3, 0, 0);
        Beam(1, 2);
    }

    // Also where one lies already.
    CNodo* Node(double x, double y, double z) {
        CFPoint place(x, y, z);
        return document.AddNodo(place, nullptr, 0);
    }
    void Fix(CNodo& node, unsigned mask) {
        Select(node);
        AssignRestraint(document, CVincolo(mask));
    }
    void Spring(CNodo& node, int kind, double stiffness, CFPoint direction) {
        Select(node);
        const CMolla spring(kind, stiffness, direction);
        AssignSpring(document, &spring, true);
    }
    void Release(CTrave& beam, std::initializer_list<int> ends) {
        host::EndReleases releases;
        for (const int end : ends)
            releases.released[end][CSpecificheSvincoliTrave::M3] = true;
        Select(beam);
        AssignReleases(document, releases);
    }
    CTrave* Beam(int a, int b) { return document.AddTrave(a, b, nullptr); }
    CNodo& At(int number) { return *document.Data().FindNode(number); }

    host::HostDocument& document;
    CMateriale* material;

  private:
    void Select(CElemento& element) {
        document.Selection().Clear();
        document.Selection().Add(&element);
    }
};
