#include "benchmarks/Models.h"

#include "host/document/HostDocument.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"

#include <cmath>

using namespace host;

namespace bench {

DocumentData MakeGrid(int nodes) {
    DocumentData data;
    CMateriale* material = data.AppendNew(Kind::Material, std::make_unique<CMateriale>());
    CSezione* section = data.AppendNew(Kind::Section, std::make_unique<CSezione>());
    const int side = static_cast<int>(std::ceil(std::cbrt(nodes)));
    CNodo* previous = nullptr;
    for (int i = 0; i < nodes; ++i) {
        auto node = std::make_unique<CNodo>();
        *node->GetPunto() = CFPoint(i % side, i / side % side, i / side / side);
        CNodo* made = data.AppendNew(Kind::Node, std::move(node));
        if (i % side != 0) {
            auto beam = std::make_unique<CTrave>();
            beam->SetNodi(previous, made);
            beam->SetMateriale(material->GetID(), material);
            beam->SetSezione(section->GetID(), section);
            data.AppendNew(Kind::Beam, std::move(beam));
        }
        previous = made;
    }
    return data;
}

void FillGrid(HostDocument& document, int nodes) {
    document.Replace(MakeGrid(nodes));
}

} // namespace bench
